#include "files/output/outputform.h"

#include <map>

#include "editor/main/commands.h"
#include "editor/show/showcell.h"
#include "files/output/output.h"
#include "files/output/outputname.h"
#include "parts/disk/filewords.h"
#include "platform/files/files.h"
#include "platform/host.h"
#include "store/table/cursor.h"
#include "store/table/itemfile.h"
#include "store/table/notice.h"
#include "voice/dialogs.h"
#include "voice/names.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr TextView kOpening =
    u"出力ファイル名を指定するフォームが開かれました。ファイル名を、拡張子をつけずに入力して、実行ボタンを押してくださ"
    u"い。"
    u"実行ボタンは拡張子をつけて、入力ボックスにフォーカスを戻します。もう一度実行ボタンを押してください。"
    u"入力ボックスでCRを叩くだけでもかまいません。";
constexpr TextView kAppends = u"ファイルボックスで既存のファイルを選択すると、記録はその後に追加されます。";

constexpr TextView kNameBox = u"出力ﾌｧｲﾙ名ﾃｷｽﾄﾎﾞｯｸｽ";

TextView noteFor(OutputManner manner) {
  if (manner == OutputManner::copies) return u"同名の既存ファイルがある場合、出力記録は既存記録の後に追加されます";
  if (manner == OutputManner::replaces) return u"同名の既存ファイルがある場合上書きされます";
  return u"既存ﾌｧｲﾙ指定の場合、出力記録は既存記録の後に追加されます";
}

Text openingFor(OutputManner manner) {
  return Text(kOpening) + (manner == OutputManner::replaces ? Text(noteFor(manner)) + markStop : Text(kAppends));
}

std::map<Text, OutputJob, std::less<>>& jobs() {
  static std::map<Text, OutputJob, std::less<>> all;
  return all;
}

}  // namespace

formHOZON::formHOZON() : Form(kName, u"出力ﾌｧｲﾙ名") {
  Label2.setCaption(noteFor(job_.manner));
  File1.setPattern(u"k?*.txt");
  boxes_.open(docPath.empty() ? appDir : besideTable({}));
  boxes_.shownName = tableOfItemFile;
  boxes_.onFolderChanged = [this] { formHOZON_folderChanged(); };
  wire();
  narrate();
  RichTextBox1.setFocus();
}

void formHOZON::take(TextView word) {
  const auto found = jobs().find(word);
  job_ = found == jobs().end() ? OutputJob{} : found->second;
  mode = word_ = word;
  Label2.setCaption(noteFor(job_.manner));
}

void formHOZON::wire() {
  for (Control* control : {static_cast<Control*>(&Label2), static_cast<Control*>(&Drive1),
                           static_cast<Control*>(&File1), static_cast<Control*>(&Command1)})
    control->place = Place::newRow;
  RichTextBox1.onChange = [this] { formHOZON_RichTextBox1_Change(); };
  RichTextBox1.onKeyDown = [this](KeyEvent& key) { formHOZON_RichTextBox1_KeyDown(key); };
  File1.onClick = [this] { formHOZON_File1_Click(); };
  Command1.onClick = [this] { formHOZON_Command1_Click(); };
  Command2.onClick = [this] { formHOZON_Command2_Click(); };
  Command3.onClick = [this] { boxes_.makeFolderHere(); };
  Command1.isDefault = true;
  Command2.isCancel = true;
  onActivate = [this] { formHOZON_Activate(); };
  onClose = [this] { formHOZON_Command2_Click(); };
}

void formHOZON::narrate() {
  Narration voice(*this);
  voice.explain([this] {
    return markStop + openingFor(job_.manner) + (job_.manner == OutputManner::replaces ? Text() : Label2.caption());
  });
  voice.box(RichTextBox1, kNameBox);
  boxes_.narrate(voice);
  boxes_.narrateFiles(voice);
  for (Button* button : {&Command1, &Command2, &Command3}) voice.say(*button, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ");
}

void formHOZON::fillName(TextView name) {
  filling_ = true;
  RichTextBox1.setText(name);
  RichTextBox1.moveCaretToEnd();
  filling_ = false;
}

void formHOZON::formHOZON_Activate() {
  if (opened_) return;
  opened_ = true;
  if (talkMode != 0) waitSec(talkGap);
  talkS(*this, openingFor(job_.manner));
}

void formHOZON::formHOZON_RichTextBox1_Change() {
  if (filling_)
    lastName_ = RichTextBox1.content();
  else
    talkRichChange(RichTextBox1, lastName_);
}

// The box holds one line: Enter presses the default button.
void formHOZON::formHOZON_RichTextBox1_KeyDown(KeyEvent& key) {
  if (key.code != key::Enter) return;
  key.swallow();
  formHOZON_Command1_Click();
}

Text formHOZON::chosenName() const { return pathIn(File1.path(), tableOfItemFile(File1.fileName())); }

void formHOZON::formHOZON_File1_Click() {
  if (File1.listIndex() < 0) return;
  fillName(chosenName());
  boxes_.sayMarkedFile();
}

// A name that was given with the old folder goes along.
void formHOZON::formHOZON_folderChanged() {
  const Text& typed = RichTextBox1.content();
  const std::size_t slash = typed.rfind(u'/');
  if (slash != Text::npos) fillName(pathIn(Dir1.path(), typed.substr(slash + 1)));
}

void formHOZON::formHOZON_Command1_Click() {
  Text typed = RichTextBox1.content(), fullName;
  switch (settleName(Dir1.path(), typed, fullName)) {
    case NameStep::noName:
      host().beep();
      return showOK(u"ファイル名を指定してください", u"ファイル名なし");
    case NameStep::extended: {
      host().beep();
      fillName(typed);
      talkS(*this, typed + u"。OKなら再度CRをﾀﾀｲﾃｸﾀﾞｻｲ");
      return RichTextBox1.setFocus();
    }
    case NameStep::settled:
      break;
  }
  if (!job_.run) return host().beep();
  mode = word_;
  // One table, whatever the case of the letters it was typed in.
  job_.run(findIgnoringCase(fullName).value_or(fullName));
}

void formHOZON::formHOZON_Command2_Click() {
  mode.clear();
  screen().unload(*this);
  fire(job_.cancelled);
  if (!docPath.empty()) dispAll(curItem);
}

void registerOutputJob(TextView word, OutputJob job) { jobs()[Text(word)] = std::move(job); }

}  // namespace zelko
