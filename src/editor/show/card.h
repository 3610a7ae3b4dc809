// The card: the current record alone, one line an item.
#pragma once

#include "platform/forms/form.h"
#include "platform/forms/grid.h"

namespace zelko {

class frmKOJIND : public Form {
 public:
  static constexpr TextView kName = u"frmKOJIND";
  frmKOJIND();

  Grid Grid1{*this, u"Grid1"};  // columns: number, name, cell

  void repaint();

 private:
  Text cellAtGrid(int row, int col) const;
  Text markedLine() const;
  bool painting_ = false;
};

}  // namespace zelko
