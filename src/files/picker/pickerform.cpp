// What the picker is made of, and how its controls speak.
#include "files/picker/pickerform.h"

#include <algorithm>

#include "files/picker/pickerwords.h"
#include "parts/disk/filewords.h"
#include "platform/host.h"
#include "store/table/cursor.h"
#include "voice/dialogs.h"
#include "voice/talk.h"

namespace zelko {

frmDISK::frmDISK() : Form(kName, u"Zelkoﾌｧｲﾙ指定"), job_(&pickerJob(PickFor::table)) {
  writeHints();
  boxes_.open(appDir);
  dress();
  boxes_.onFolderChanged = [this] {
    fillList1();
    Text1.setText({});
  };
  boxes_.shownName = [this](TextView listed) { return ownName(listed); };
  wireLists();
  wireButtons();
  onActivate = [this] { frmDISK_Activate(); };
  onKeyUp = [this](KeyEvent& key) { frmDISK_KeyUp(key); };
  onClose = [this] { frmDISK_Command3_Click(); };
  onUnload = [this] {
    if (mode == job_->word) mode.clear();
  };
  narrate();
  if (!visible()) list().setFocus();
}

void frmDISK::writeHints() {
  Text2.setText(kCsvHint);
  Text3.setText(kListHint);
  for (RichTextBox* hint : {&Text2, &Text3}) {
    hint->readOnly = true;
    hint->tabStop = false;
  }
  Text1.readOnly = true;
  Dir1.place = Place::sameRow;
  Text1.screenName = u"選択ﾌｧｲﾙ名";
  Label2.place = Place::newRow;
  Check1.place = Place::newRow;
  Check1.setValue(1);
  Command1.place = Place::newRow;
  Text2.place = Place::newRow;
  File1.labelledBy = &Label2;
}

void frmDISK::wireLists() {
  for (ListBox* box : {static_cast<ListBox*>(&File1), &List1}) {
    box->onClick = [this] { frmDISK_list_Click(); };
    box->onDblClick = [this] { frmDISK_Command1_Click(); };
    box->onKeyDown = [this](KeyEvent& key) { heldKey_ = key.code; };
    box->onKeyUp = [this](KeyEvent& key) { frmDISK_list_KeyUp(key); };
    box->onLostFocus = [this] { heldKey_ = 0; };
  }
  File1.onKeyPress = [this](CharEvent& event) { frmDISK_File1_KeyPress(event); };
}

void frmDISK::wireButtons() {
  Command1.onClick = [this] { frmDISK_Command1_Click(); };
  Command2.onClick = [this] { frmDISK_Command2_Click(); };
  Command3.onClick = [this] { frmDISK_Command3_Click(); };
  Command4.onClick = [this] { frmDISK_Command4_Click(); };
  cmdNOTZLK.onClick = [this] { frmDISK_cmdNOTZLK_Click(); };
  Command1.isDefault = true;
  Command3.isCancel = true;
}

void frmDISK::narrate() {
  const Sentence listSentence = [this] {
    if (list().count() == 0) return u"ファイル、" + Text(kNoFileHere) + u"ﾌｧｲﾙﾘｽﾄﾎﾞｯｸｽ";
    return u"ファイル、" + spokenName(ownName(chosenEntry())) + u"ﾌｧｲﾙﾘｽﾄﾎﾞｯｸｽ";
  };
  Narration voice(*this);
  voice.explain([this] { return pickerHelp(*job_); });
  boxes_.narrate(voice);
  voice.say(File1, listSentence).say(List1, listSentence).box(Text1, u"選択ﾌｧｲﾙ名ﾃｷｽﾄﾎﾞｯｸｽ");
  voice.check(Check1, u"ﾁｪｯｸﾎﾞｯｸｽ");
  for (Button* button : {&Command1, &Command2, &Command3, &Command4, &cmdNOTZLK}) voice.say(*button, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ");
}

void frmDISK::take(PickFor purpose) {
  const bool wasText = job_->purpose == PickFor::text;
  job_ = &pickerJob(purpose);
  mode = job_->word;
  dress();
  if (wasText != (purpose == PickFor::text)) File1.setListIndex(-1);
  if (!visible()) list().setFocus();
}

void frmDISK::dress() {
  const PickFor purpose = job_->purpose;
  const bool choosesTable = purpose == PickFor::table, allFiles = purpose == PickFor::text;
  setCaption(job_->caption);
  Command1.setCaption(job_->command);
  Label2.setCaption(job_->listLabel);
  cmdNOTZLK.setCaption(allFiles ? u"Zelkoファイルだけを表示する" : u"すべてのファイルを表示する");
  for (Control* control : {static_cast<Control*>(&cmdNOTZLK), static_cast<Control*>(&Text3)})
    control->setVisible(choosesTable || allFiles);
  for (Control* control : {static_cast<Control*>(&Command2), static_cast<Control*>(&Text2)})
    control->setVisible(choosesTable || purpose == PickFor::csv);
  Check1.setVisible(purpose == PickFor::csv);
  File1.setPattern(job_->pattern);
  File1.setVisible(purpose != PickFor::reference);
  List1.setVisible(purpose == PickFor::reference);
  fillList1();
  Text1.setText({});
}

void frmDISK::choose(const Text& file) {
  const Silence silence;
  const std::size_t name = file.rfind(u'/') + 1;
  boxes_.open(file.substr(0, name));
  const auto& entries = File1.entries();
  const auto found = std::ranges::find(entries, TextView(file).substr(name));
  if (found == entries.end()) return;
  File1.setListIndex(static_cast<int>(found - entries.begin()));
  Text1.setText(*found);
  File1.setFocus();
}

void frmDISK::sayJob() const {
  const Text marked = ownName(chosenEntry());
  const Text file = list().count() == 0 ? Text(kNoFileHere) : spokenName(marked);
  talkBehindDialog(Label2.caption() + markPause + Text(job_->prompt) + file + u"ﾌｧｲﾙﾘｽﾄﾎﾞｯｸｽ");
}

void frmDISK::fillList1() {
  std::vector<Text> names;
  if (List1.visible()) {
    for (const Text& listed : File1.entries()) names.push_back(tableOfItemFile(listed));
  }
  List1.setEntries(std::move(names));
}

void frmDISK::frmDISK_Activate() {
  if (opened_) return;
  opened_ = true;
  if (gateOpens()) talkNow(composed(this, openingSentence(*job_, list().count() == 0)));
}

void frmDISK::frmDISK_KeyUp(KeyEvent& key) {
  if (!isRepeatKey(key)) return;
  key.swallow();
  if (gateOpens()) talkNow(composed(this, activeReport()));
}

Text frmDISK::activeReport() const {
  const Control* focused = activeControl();
  Text where = boxes_.whereItStands(focused);
  if (focused == &File1 || focused == &List1) {
    where = u"フォルダは" + spokenName(File1.path()) + u"です。";
    if (job_->tables) where += u"。なお、スペースキーをたたくと、選択ファイルの項目名一覧Windowが　開かれます。";
  } else if (focused && focused->kind() == ControlKind::commandButton) {
    where = buttonReport(*focused);
  }
  return fileReport(ownName(chosenEntry()), where);
}

Text frmDISK::buttonReport(const Control& button) const {
  if (&button == &Command1 && job_->command == u"読み込み(CR)") return u"読み込み（CR)コマンドボタン";
  if (&button == &Command3) return u"中止(ESC)コマンドボタン";
  Text report = withoutMarks(button.caption()) + u"コマンドボタン";
  if (&button == &cmdNOTZLK) report += toggleReport(job_->purpose == PickFor::text);
  if (&button == &Command2) report += markStop + Text2.content();
  return report;
}

void frmDISK::frmDISK_list_Click() {
  Text1.setText(ownName(chosenEntry()));
  if (list().listIndex() < 0 || boxes_.sayFolderReport() || !gateOpens()) return;
  ++composedSentences;
  talkNow(spokenName(Text1.content()) + u"ﾌｧｲﾙﾘｽﾄﾎﾞｯｸｽ");
}

}  // namespace zelko
