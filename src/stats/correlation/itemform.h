// The form in which four analyses get their items: Pearson's coefficients, the cross report, factor and cluster
// analysis. What differs between them is plain data and callbacks.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "parts/grid/itemchoice.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "stats/frame/datacheck.h"

namespace zelko {

class frmRP;
using ItemList = std::vector<std::int16_t>;

struct ItemFormJob {
  Text word;         // published in analysisMode while the form is open
  Text caption;      // of the form
  Text explanation;  // the label that tells what the analysis does
  // Where a second group of items can be marked; elsewhere its key is refused in words.
  enum class SecondGroup { never, whereChecked, always };
  SecondGroup secondGroup = SecondGroup::never;  // whereChecked shows Check1
  bool converts = false;                         // shows Check2
  // What speaks against the items of group 1, empty for nothing: told under "注意", the form stays. Without a check no
  // item at all is refused with the sentence of the grid.
  std::function<Text(const ItemList& group1)> check = {};
  // The run. The row is stored, firstRecord and lastRecord are set (by a range of records only), both groups are filled
  // that the form may fill. Ends with AnalysisRun::finish(form), or leaves the form open.
  std::function<void(frmRP& form, const ItemList& group1, const ItemList& group2)> run = {};
};

class frmRP : public Form {
 public:
  static constexpr TextView kName = u"frmRP";
  frmRP();

  Label Label5{*this, u"Label5", u""};
  Grid Grid1{*this, u"Grid1"};
  CheckBox Check1{*this, u"Check1", u"指定項目群内部相関ﾏﾄﾘｸｽ /異なる指定項目群(群1,群2)間の全組合わせ相関ﾏﾄﾘｸｽ "};
  CheckBox Check2{*this, u"Check2", u"ﾃﾞｰﾀを偏差値変換後Rp計算/原ﾃﾞｰﾀを用いて計算  "};
  Label Label1{*this, u"Label1", u"未ﾁｪｯｸ時はXY編量を偏差値に変換後計算"};
  Button Command1{*this, u"Command1", u"実行"};
  Button Command2{*this, u"Command2", u"ｷｬﾝｾﾙ"};
  Button Command3{*this, u"Command3", u"出力ﾌｫﾙﾀﾞ指定"};
  DataCheckButton CommandCheck{*this, RangeTest::wholeRecords, [this] { return chosenItems(); }};

  void take(const ItemFormJob& job);
  const Text& word() const { return job_.word; }

 private:
  void wire();
  void narrate();
  bool hasSecondGroup() const;
  ItemList chosenItems() const;  // of both groups
  bool mayMarkSecond();
  void frmRP_Command1_Click();
  void frmRP_Command2_Click();

  ItemFormJob job_;
  ItemChoice items_{Grid1, 2};
};

// Opens the form, modal, with no item marked, or as it was when its check of the data led to a cell.
void openItemForm(const ItemFormJob& job);

}  // namespace zelko
