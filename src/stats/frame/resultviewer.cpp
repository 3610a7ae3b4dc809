#include "stats/frame/resultviewer.h"

#include "editor/main/commands.h"
#include "parts/disk/filewords.h"
#include "parts/disk/ownnames.h"
#include "parts/keys/enterkey.h"
#include "parts/reading/printtext.h"
#include "parts/reading/tablewalk.h"
#include "parts/reading/textfile.h"
#include "parts/report/report.h"
#include "platform/files/files.h"
#include "platform/host.h"
#include "stats/frame/resultfolderform.h"
#include "store/table/itemfile.h"
#include "store/table/notice.h"
#include "voice/dialogs.h"
#include "voice/heard.h"
#include "voice/names.h"
#include "voice/narration.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr TextView kBox =
    u"KEKK.txtがセットされているリッチテキストボックスです"
    u"なおKEKKA.TXTは原則として、追加される形で作成されていきます、もっとも最近の結果は最後の方にあります。"
    u"なお編集を加えて保存ボタンをクリックすれば、内容を変更できます";

bool mayStore(const Text& path, const Text& loadedPath) {
  if (trimmed(path).empty()) {
    tellFailure(u"ファイル名を指定してください", u"ファイル名なし");
    return false;
  }
  const bool isResult = path == resultFile(path.substr(0, path.rfind(u'/') + 1));
  if ((isOwnName(path) && !isResult) || fileExists(itemFilePath(path, {}))) {
    tellFailure(spokenName(path) + u"は、表かプログラムのﾌｧｲﾙです。別の名前にしてください", u"保存");
    return false;
  }
  if (path == loadedPath || !fileExists(path)) return true;
  return askYesNo(spokenName(path) + u"はすでにあります。上書きしますか", u"保存");
}

}  // namespace

frmKEKKA::frmKEKKA() : Form(kName, u"KEKKA表示・編集") {
  Text1.labelledBy = &Label1;
  RichTextBox1.screenName = u"KEKKA.TXT";
  for (Control* control :
       {static_cast<Control*>(&RichTextBox1), static_cast<Control*>(&Label2), static_cast<Control*>(&Command3)})
    control->place = Place::newRow;
  wire();
  narrate();
  RichTextBox1.setFocus();
}

void frmKEKKA::wire() {
  RichTextBox1.onKeyDown = [this](KeyEvent& key) {
    if (!walkTables(RichTextBox1, key)) reader_.keyDown();
  };
  RichTextBox1.onChange = [this] { frmKEKKA_RichTextBox1_Change(); };
  Text1.onChange = [this] {
    if (!filling_) talkRichChange(Text1, previousName_);
  };
  onEnter(Text1, [this] { frmKEKKA_Command9_Click(); });
  Command9.onClick = [this] { frmKEKKA_Command9_Click(); };
  Command2.onClick = [this] { frmKEKKA_Command2_Click(); };
  Command3.onClick = [this] { frmKEKKA_Command3_Click(); };
  Command1.onClick = [this] { frmKEKKA_Command1_Click(); };
  Command6.onClick = [this] { frmKEKKA_Command6_Click(); };
  Command6.isCancel = true;
  onClose = [this] { frmKEKKA_Command6_Click(); };
}

void frmKEKKA::narrate() {
  Narration voice(*this);
  voice
      .explain(
          u"。結果ﾌｧｲﾙを一行ずつ読み、編集、保存、印刷をします。上下矢印ｷｰで行が読まれます。"
          u"Altと矢印ｷｰで、表を一ますずつ、行と列の名前と共に読みます。")
      .box(Text1, u"読み込みファイル(KEKKA.txt)　テクストボックス")
      .say(RichTextBox1, kBox);
  for (Button* button : {&Command9, &Command3, &Command2, &Command1, &Command6}) voice.say(*button, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ");
  // Behind the narration, whose repeat key would read the whole text.
  RichTextBox1.onKeyUp = [this](KeyEvent& key) { frmKEKKA_RichTextBox1_KeyUp(key); };
}

bool frmKEKKA::load(const Text& path) {
  const auto text = readTextFile(path);
  if (!text) return false;
  const Silence silence;
  filling_ = true;
  Text1.setText(path);
  previousName_ = path;
  RichTextBox1.setText(*text);
  previous_ = loaded_ = *text;
  loadedPath_ = path;
  filling_ = false;
  return true;
}

void frmKEKKA::frmKEKKA_RichTextBox1_Change() {
  if (!filling_) talkRichChange(RichTextBox1, previous_);
}

void frmKEKKA::frmKEKKA_RichTextBox1_KeyUp(KeyEvent& key) {
  if (reader_.keyUp(key)) return;
  const bool wanted = talkMode != 0 && isRepeatKey(key);
  talkTextKey(key.code, key.mask, 0, wanted ? Text(kBox) : Text());
}

void frmKEKKA::frmKEKKA_Command9_Click() {
  const Text path = trimmed(Text1.content());
  if (RichTextBox1.content() != loaded_ && !askYesNo(u"編集した内容は保存されていません。読み込みますか", caption()))
    return;
  if (!load(findIgnoringCase(path).value_or(path))) {
    return tellFailure(spokenName(path) + u"が読めません", u"KEKKA.TXT");
  }
  RichTextBox1.setFocus();
}

void frmKEKKA::frmKEKKA_Command2_Click() {
  const Text path = trimmed(Text1.content());
  if (!mayStore(path, loadedPath_)) return;
  if (!writeTextFile(path, RichTextBox1.content())) return tellFailure(spokenName(path) + u"に保存できません", u"保存");
  loaded_ = RichTextBox1.content();
  loadedPath_ = path;
  talkBehindDialog(spokenName(path) + u"に保存しました");
}

void frmKEKKA::frmKEKKA_Command3_Click() {
  const Text marked = RichTextBox1.selText();
  if (printText(marked.empty() ? RichTextBox1.content() : marked)) talkBehindDialog(u"印刷しました");
}

void frmKEKKA::frmKEKKA_Command1_Click() {
  const auto folder = askResultFolder();
  if (!folder) return;
  const Text path = resultFile(*folder);
  filling_ = true;
  Text1.setText(path);
  previousName_ = path;
  filling_ = false;
  Text1.setFocus();
}

void frmKEKKA::frmKEKKA_Command6_Click() {
  if (RichTextBox1.content() != loaded_ && !askYesNo(u"編集した内容は保存されていません。終了しますか", caption()))
    return;
  screen().unload(*this);
}

void showResultViewer(const Text& path) {
  Text file = path;
  if (!fileExists(file)) {
    if (!askOK(u"ZelkoのあるフォルダにはKEKKA.TXTがありません。OKで別のフォルダを指定できます", u"KEKKA.TXTない"))
      return;
    const auto folder = askResultFolder();
    if (!folder) return;
    file = resultFile(*folder);
  }
  unload<frmKEKKA>();
  if (!form<frmKEKKA>().load(file)) {
    unload<frmKEKKA>();
    return tellFailure(spokenName(file) + u"が読めません", u"KEKKA.TXT");
  }
  form<frmKEKKA>().showModal();
}

void registerResultViewer() {
  registerForm<frmKEKKA>();
  registerForm<frmKEKF>();
  registerCommand(u"mnuKEKKA", [] { showResultViewer(resultFile(appDir)); });
}

}  // namespace zelko
