#include "stats/variance/onewayform.h"

#include "editor/main/commands.h"
#include "stats/frame/outputfolder.h"
#include "stats/variance/variancehelp.h"
#include "stats/variance/varianceresults.h"
#include "voice/narration.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr TextView kHow =
    u"項目の範囲と記録の範囲がそれぞれ群と被験者になります。範囲指定がないときわ、ID以外の全項目、全記録です。"
    u"ﾃﾞｰﾀの0わ、標本の数が等しくない場合に、無ﾃﾞｰﾀとして扱われます。スペースでチェック、CRで実行、escで中止します。"
    u"ctrl+ﾍﾟｰｼﾞﾀﾞｳﾝで結果が読まれます。";

}  // namespace

frmVanalysis::frmVanalysis() : Form(kName, u"1元配置分散分析") {
  for (Control* control :
       {static_cast<Control*>(&Check1), static_cast<Control*>(&Label2), static_cast<Control*>(&Command1),
        static_cast<Control*>(&Label1), static_cast<Control*>(&Grid1), static_cast<Control*>(&Label3),
        static_cast<Control*>(&Command3)})
    control->place = Place::newRow;
  Command1.onClick = [this] { frmVanalysis_Command1_Click(); };
  Command1.isDefault = true;
  Command5.onClick = [] { showVarianceHelp(VarianceHelp::oneWay); };
  narrate();
}

void frmVanalysis::narrate() {
  Narration voice(*this);
  voice.explain([this] { return markStop + selectionWords() + markStop + Text(kHow) + Label3.caption(); });
  voice.check(Check1, u"ﾁｪｯｸﾎﾞｯｸｽ");
  result_.narrate(voice);
  for (Button* button : {&Command1, &Command2, &Command3, &Command5}) voice.say(*button, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ");
  voice.say(Command4, kResultFolderButton);
}

void frmVanalysis::frmVanalysis_Command1_Click() {
  result_.clear();
  const ItemSpan items = itemsOfRange();
  if (!groupsFit(items) || !beginVariance()) return;
  const bool unequal = Check1.value() == 1;
  const ColumnsRead read = readVarianceColumns(items, unequal);
  if (read.end != ReadEnd::whole) return result_.end(read.end);
  result_.show(oneWayResult(items, read.columns, unequal));
}

void registerOneWayForm() {
  registerForm<frmVanalysis>();
  registerCommand(u"mnu1", [] { showAnalysisForm<frmVanalysis>(); });
}

}  // namespace zelko
