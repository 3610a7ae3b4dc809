// The two-way analyses of variance.
#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "platform/forms/grid.h"
#include "stats/frame/datacheck.h"
#include "stats/variance/variancegrid.h"

namespace zelko {

class frmBUNSAN2 : public Form {
 public:
  static constexpr TextView kName = u"frmBUNSAN2";
  frmBUNSAN2();

  Frame Frame1{*this, u"Frame1", u"ケース"};
  OptionButton Option1{*this, u"Option1", u"被験体×処理　練習､時間効果など", -1, &Frame1};
  OptionButton Option2{*this, u"Option2", u"処理×処理ｾﾙ内検体が1", -1, &Frame1};
  OptionButton Option3{*this, u"Option3", u"処理×処理ｾﾙ内検体が複数", -1, &Frame1};
  CheckBox Check1{*this, u"Check1", u"ｾﾙ内被験者数が異なる"};
  Button Command1{*this, u"Command1", u"実行(cr)"};
  DataCheckButton CommandCheck{*this, RangeTest::bothEnds, [] { return listOf(itemsOfRange()); }};
  Button Command2{*this, u"Command2", u"中止(esc)"};
  Button Command5{*this, u"Command5", u"ヘルプ"};
  Label Label1{*this, u"Label1", u"結果"};
  Grid Grid1{*this, u"Grid1"};
  Button Command3{*this, u"Command3", u"KEKKA出力"};
  Button Command4{*this, u"Command4", u"ホルダ変更"};

 private:
  void narrate();
  void frmBUNSAN2_Option_Click();
  void frmBUNSAN2_Command1_Click();
  void analyseRange();
  void analyseGroups();

  VarianceGrid result_{*this, Grid1, Command3, Command4, Command2, 6};
};

// The form and mnu2.
void registerTwoWayForm();

}  // namespace zelko
