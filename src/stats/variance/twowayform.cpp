#include "stats/variance/twowayform.h"

#include "editor/main/commands.h"
#include "stats/frame/outputfolder.h"
#include "stats/variance/variancehelp.h"
#include "stats/variance/varianceresults.h"
#include "voice/narration.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr TextView kHow =
    u"ケースを選んでCRで実行、escで中止します。はじめの二つのケースでわ、項目の範囲が列、記録の範囲が行になります。"
    u"ｾﾙ内検体が複数のケースでわ、対象項目と処理A、処理Bの群分け項目を、実行の時に番号で答えます。"
    u"ctrl+ﾍﾟｰｼﾞﾀﾞｳﾝで結果が読まれます。";

}  // namespace

frmBUNSAN2::frmBUNSAN2() : Form(kName, u"2元配置分散分析") {
  Option1.setValue(1);
  for (Control* control :
       {static_cast<Control*>(&Option1), static_cast<Control*>(&Option2), static_cast<Control*>(&Option3),
        static_cast<Control*>(&Check1), static_cast<Control*>(&Command1), static_cast<Control*>(&Label1),
        static_cast<Control*>(&Grid1), static_cast<Control*>(&Command3)})
    control->place = Place::newRow;
  for (OptionButton* option : {&Option1, &Option2, &Option3}) option->onClick = [this] { frmBUNSAN2_Option_Click(); };
  frmBUNSAN2_Option_Click();
  Command1.onClick = [this] { frmBUNSAN2_Command1_Click(); };
  Command1.isDefault = true;
  Command5.onClick = [] { showVarianceHelp(VarianceHelp::twoWay); };
  narrate();
}

void frmBUNSAN2::narrate() {
  Narration voice(*this);
  voice.explain([] { return markStop + selectionWords() + markStop + Text(kHow); });
  for (OptionButton* option : {&Option1, &Option2, &Option3}) {
    voice.say(*option, [option] {
      return option->frame()->caption() + markPause + option->caption() + Text(option->value() ? u"選択中" : u"") +
             u"ｵﾌﾟｼｮﾝﾎﾞﾀﾝ";
    });
  }
  voice.check(Check1, u"ﾁｪｯｸﾎﾞｯｸｽ");
  result_.narrate(voice);
  for (Button* button : {&Command1, &Command2, &Command3, &Command5}) voice.say(*button, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ");
  voice.say(Command4, kResultFolderButton);
}

// Only cells with several values can differ in their number.
void frmBUNSAN2::frmBUNSAN2_Option_Click() { Check1.setEnabled(Option3.value() != 0); }

void frmBUNSAN2::frmBUNSAN2_Command1_Click() {
  result_.clear();
  Option3.value() ? analyseGroups() : analyseRange();
}

void frmBUNSAN2::analyseRange() {
  const ItemSpan items = itemsOfRange();
  if (!groupsFit(items) || !beginVariance() || !rowsFit()) return;
  const MatrixRead read = readVarianceMatrix(items);
  if (read.end != ReadEnd::whole) return result_.end(read.end);
  result_.show(Option1.value() ? trialsResult(items, read.values) : crossedResult(items, read.values));
}

void frmBUNSAN2::analyseGroups() {
  if (!beginVariance()) return;
  const auto items = askDesignItems(AskedValues::item, ThirdFactor::none);
  if (!items) return result_.end(ReadEnd::stopped);
  const DesignRead read = readDesign(*items);
  if (read.end != ReadEnd::whole) return result_.end(read.end);
  const bool unequal = Check1.value() == 1;
  if (!cellsFit(read, 2, unequal ? CellSize::unequal : CellSize::several)) return;
  result_.show(cellsResult(*items, read, unequal));
}

void registerTwoWayForm() {
  registerForm<frmBUNSAN2>();
  registerCommand(u"mnu2", [] { showAnalysisForm<frmBUNSAN2>(); });
}

}  // namespace zelko
