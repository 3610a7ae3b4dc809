#include "stats/frequency/frequencyform.h"

#include "parts/report/resultfolder.h"
#include "stats/frequency/frequencyrun.h"
#include "voice/dialogs.h"
#include "voice/narration.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr TextView kConfirm =
    u" ﾃﾞｰﾀ頻度集計：指定項目(複数可)のﾃﾞｰﾀの種類別集計をします."
    u"例えば指定項目の男女別集計などに使って下さい(N<=1000こと)\r"
    u"結果は大量になる可能性のため\r"
    u"KEKKA.txtに出力されます";

}  // namespace

frmDISP::frmDISP() : Form(kName, u"項目ﾃﾞｰﾀ単純集計") {
  Grid1.screenName = u"項目";
  File1.setPattern(u"*.txt");
  boxes_.open(appDir);
  boxes_.words = resultFolderWords();
  boxes_.onFolderChanged = [this] { showFolder(); };
  for (Control* control : {static_cast<Control*>(&Grid1), static_cast<Control*>(&Check), static_cast<Control*>(&Label2),
                           static_cast<Control*>(&Drive1), static_cast<Control*>(&File1),
                           static_cast<Control*>(&Check1), static_cast<Control*>(&Command1)})
    control->place = Place::newRow;
  File1.onClick = [this] { boxes_.sayMarkedFile(); };
  Command1.onClick = [this] { frmDISP_Command1_Click(); };
  Command2.onClick = [this] { screen().unload(*this); };
  Command3.onClick = [this] { boxes_.makeFolderHere(); };
  Command1.isDefault = true;
  Command2.isCancel = true;
  choice_.fill();
  narrate();
  showFolder();
}

void frmDISP::narrate() {
  Narration voice(*this);
  voice.explain([this] { return markStop + Label1.caption(); });
  choice_.narrate(voice);
  boxes_.narrate(voice);
  boxes_.narrateFiles(voice);
  voice.check(Check1, u"ﾁｪｯｸﾎﾞｯｸｽ");
  for (Button* button : {&Command1, &Command2, &Command3}) voice.say(*button, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ");
}

void frmDISP::showFolder() { Label2.setCaption(resultFolderLabel(u"結果は", Dir1.path())); }

void frmDISP::frmDISP_Command1_Click() {
  const auto items = choice_.marked();
  if (items.empty()) return choice_.tellNothingMarked();
  if (!beginAnalysis(RangeTest::bothEnds)) return;
  if (!askOK(kConfirm, u"KEKKA.TXT確認")) return;
  reportFrequencies(*this, items, Dir1.path(), Check1.value() == 1);
}

}  // namespace zelko
