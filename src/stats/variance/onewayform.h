// The one-way analysis of variance: the items of the range are the groups.
#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "platform/forms/grid.h"
#include "stats/frame/datacheck.h"
#include "stats/variance/variancegrid.h"

namespace zelko {

class frmVanalysis : public Form {
 public:
  static constexpr TextView kName = u"frmVanalysis";
  frmVanalysis();

  CheckBox Check1{*this, u"Check1", u"標本の数が等しくない"};
  Label Label2{*this, u"Label2", u"ﾃﾞｰﾀ0値は無ﾃﾞｰﾀとして扱われます"};
  Button Command1{*this, u"Command1", u"実行(cr)"};
  DataCheckButton CommandCheck{*this, RangeTest::bothEnds, [] { return listOf(itemsOfRange()); }};
  Button Command2{*this, u"Command2", u"中止(esc)"};
  Button Command5{*this, u"Command5", u"ヘルプ"};
  Label Label1{*this, u"Label1", u"結果"};
  Grid Grid1{*this, u"Grid1"};
  Label Label3{*this, u"Label3", u"ｸﾞﾘｯﾄﾞﾗｲﾝをﾄﾞﾗｯｸﾞすればｾﾙ幅を調整できます"};
  Button Command3{*this, u"Command3", u"KEKKA出力"};
  Button Command4{*this, u"Command4", u"ホルダ変更"};

 private:
  void narrate();
  void frmVanalysis_Command1_Click();

  VarianceGrid result_{*this, Grid1, Command3, Command4, Command2, 4};
};

// The form and mnu1.
void registerOneWayForm();

}  // namespace zelko
