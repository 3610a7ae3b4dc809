// The sheet: the cached records as a table, the current cell marked, and what is being typed.
#pragma once

#include <cstdint>

#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "platform/forms/grid.h"

namespace zelko {

class frmSHEET : public Form {
 public:
  static constexpr TextView kName = u"frmSHEET";
  frmSHEET();

  Label Label1{*this, u"Label1", u""};  // the typing line
  Grid Grid1{*this, u"Grid1"};          // row 0 the item names, column 0 the record numbers

  // Takes the shape of the table, the cursor and the masks over; the cells are asked for when they are shown.
  void repaint();
  // The caption: how many items and records there are.
  void showHead();

 private:
  Text cellAtGrid(int row, int col) const;
  Text markedCell() const;
  void Grid1_RowColChange();
  void openMarkedCell();
  bool painting_ = false;
};

// The typing line shows `text`, or, where it is empty, the current cell as it stands.
void showTyping(TextView text);

// The block of a range, and the block that a move or copy would land on; a pair may be given in either order. They stay
// where they are until hidden, whatever part of the table is shown.
void rangeMask(std::int32_t rec1, std::int32_t rec2, std::int16_t item1, std::int16_t item2, Colour colour);
void hideRangeMask();
void targetMask(std::int32_t rec1, std::int32_t rec2, std::int16_t item1, std::int16_t item2, Colour colour);
void hideTargetMask();

}  // namespace zelko
