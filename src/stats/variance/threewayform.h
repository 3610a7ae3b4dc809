// The three-way analyses of variance.
#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "platform/forms/grid.h"
#include "stats/frame/datacheck.h"
#include "stats/variance/variancegrid.h"
#include "stats/variance/varianceresults.h"

namespace zelko {

class FrmBunsan3 : public Form {
 public:
  static constexpr TextView kName = u"FrmBunsan3";
  FrmBunsan3();

  Button Command1{*this, u"Command1", u"処理A×処理B×処理C"};
  Button Command4{*this, u"Command4", u"処理×処理×処理のヘルプ"};
  Button Command2{*this, u"Command2", u"処理A×処理B×被験体C･･Ⅰ"};
  Button Command5{*this, u"Command5", u"処理×処理×被検体..Ⅰのヘルプ"};
  Button Command3{*this, u"Command3", u"処理A×処理B×被験体C･･Ⅱ"};
  Button Command6{*this, u"Command6", u"処理×処理×被検体..Ⅱのヘルプ"};
  Button Command7{*this, u"Command7", u"処理A×処理B×処理C(ｾﾙ内複数Ss)"};
  Button Command8{*this, u"Command8", u"処理×処理×処理(被検体が処理セル内に複数配置)のヘルプ"};
  Label Label1{*this, u"Label1", u"Ⅰ･･処理A各水準で同一被験体 Ⅱ･･処理A各水準で異なる被験体 "};
  Grid Grid1{*this, u"Grid1"};
  Button Command9{*this, u"Command9", u"KEKKA出力"};
  Button Command10{*this, u"Command10", u"ホルダ変更"};
  DataCheckButton CommandCheck{*this, RangeTest::bothEnds, [] { return listOf(itemsOfRange()); }};
  Button Command11{*this, u"Command11", u"中止(esc)"};

 private:
  void narrate();
  void run(ThreeWayDesign design);

  VarianceGrid result_{*this, Grid1, Command9, Command10, Command11, 10};
};

// The form and mnu3.
void registerThreeWayForm();

}  // namespace zelko
