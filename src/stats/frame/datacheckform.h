// The form that tells what stands in the chosen items, a row an item.
#pragma once

#include <optional>
#include <vector>

#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "platform/forms/grid.h"
#include "stats/frame/cellkinds.h"

namespace zelko {

struct CellPlaceOfTable {
  std::int32_t record = 0;
  std::int16_t item = 0;
};

class frmDCHECK : public Form {
 public:
  static constexpr TextView kName = u"frmDCHECK";
  frmDCHECK();

  Grid Grid1{*this, u"Grid1"};
  Button Command1{*this, u"Command1", u"ｾﾙへ(CR)"};
  Button Command2{*this, u"Command2", u"戻る(esc)"};

  void take(std::vector<ItemCells> cells);
  std::optional<CellPlaceOfTable> chosen;

 private:
  void frmDCHECK_Command1_Click();
  void frmDCHECK_Grid1_RowColChange();
  Text rowSentence() const;
  Text cellSentence() const;
  const ItemCells& current() const;

  std::vector<ItemCells> cells_;
  int rowBefore_ = 1;
  bool filling_ = false;
};

// Modal; the cell to go to, or nothing for the way back.
std::optional<CellPlaceOfTable> showDataCheck(const std::vector<ItemCells>& cells);

void registerDataCheck();

}  // namespace zelko
