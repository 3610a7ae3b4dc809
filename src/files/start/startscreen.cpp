#include "files/start/startscreen.h"

#include <utility>

#include "editor/main/commands.h"
#include "editor/main/form1.h"
#include "editor/main/speechmenu.h"
#include "editor/main/state.h"
#include "editor/show/view.h"
#include "files/picker/picker.h"
#include "files/start/help.h"
#include "files/start/modeltables.h"
#include "platform/files/files.h"
#include "platform/host.h"
#include "store/rewrite/recovery.h"
#include "store/table/cursor.h"
#include "store/table/itemfile.h"
#include "store/table/table.h"
#include "voice/agent.h"
#include "voice/dialogs.h"
#include "voice/narration.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr Colour kWhite = 0xFFFFFF;
// Milliseconds. Off the whole second: keys that come once a second would all meet the gate shut by a tick.
constexpr int kTick = 700;
constexpr int kTileTwips = 2640;  // room for 22 characters, so that the tiles stand in columns
constexpr TextView kMeasuredText = u"012345678901234567890";  // its width gives that of a cell's character

constexpr const char16_t* kOpeningText =
    u"Zelkoは､1行254文字を任意項目に区切り､項目単位にﾃｷｽﾄﾃﾞｰﾀを管理､編集します｡"
    u"ｽﾀｰﾄ画面が表示されています｡"
    u"ﾀﾌﾞｷｰでﾒﾆｭｰ項目が移動します "
    u"Enterで選択です｡新規作成､既存ﾌｧｲﾙ読み込みﾒﾆｭｰとともに､項目区切りを予め設定したﾌｧｲﾙの選択ﾒﾆｭｰもあります｡これらを選"
    u"択すると､すぐに編集､閲覧画面が現れます."
    u"編集画面では､矢印ｷｰで書き込みセルが移動｡項目ﾃﾞｰﾀとｺｳﾓｸﾒｲ､ｷﾞｮｳﾊﾞﾝｺﾞｳが音声案内されます｡ﾃｷｽﾄを入力しﾘﾀｰﾝｷｰを押すと､"
    u"入力ﾃﾞｰﾀが上書きされ､次項目に移動します｡終了はｴｽｹｰﾌﾟｷｰ｡保存操作は必要ありません｡ctrl+shift+"
    u"SやAで､案内が繰り返されます｡";

// Quotes around the whole and leading separators of a relative name are no part of it.
Text tableNameOf(TextView commandLine) {
  Text name = trimmed(commandLine);
  if (name.size() >= 2 && name.front() == u'"' && name.back() == u'"') name = name.substr(1, name.size() - 2);
  return name;
}

}  // namespace

void copy000() { copyFile(appDir + u"サンプル試験結果.0__", appDir + u"サンプル試験結果.000"); }

FrmLunch::FrmLunch() : Form(kName, u"Zelko") {
  resetTable();
  resetCursor();
  resetEditor();
  resetTalk();
  appDir = currentFolder();
  readSpeechSettings();
  if (agentOn == 1) form<frmAGENT>().showWithoutFocus();
  copy000();
  host().clipboardText(userClip);
  charTwips = host().textTwips(kMeasuredText) / static_cast<int>(kMeasuredText.size());
  buildMenu();
  buildTiles();
  writeHints();
  Check2.setValue(talkMode != 0 ? 1 : 0);
  Command1.onClick = [this] { FrmLunch_Command1_Click(); };
  Command2.onClick = [this] { FrmLunch_Command2_Click(); };
  Command3.onClick = [this] { FrmLunch_Command3_Click(); };
  Command3.isCancel = true;
  Check2.onClick = [this] { FrmLunch_Check2_Click(); };
  Check2.onLostFocus = [this] { FrmLunch_Check2_LostFocus(); };
  Timer1.onTimer = [this] { FrmLunch_Timer1_Timer(); };
  onActivate = [this] { FrmLunch_Activate(); };
  onKeyDown = [this](KeyEvent& key) { FrmLunch_KeyDown(key); };
  onKeyPress = [this](CharEvent& event) { FrmLunch_KeyPress(event); };
  onClose = [] { throw ProgramEnd{}; };
  narrate();
}

void FrmLunch::buildMenu() {
  const auto add = [this](MenuEntry* parent, TextView name, TextView caption,
                          std::function<void()> command) -> MenuEntry& {
    MenuEntry& entry = menu().add(parent, name, caption);
    entry.command = std::move(command);
    return entry;
  };
  const auto opens = [this](int index) { return [this, index] { open(index); }; };
  MenuEntry& file = add(nullptr, u"mnuF", u"ファイル", {});
  add(&file, u"mnuSINKI", u"新規作成", [this] { FrmLunch_Command1_Click(); });
  add(&file, u"mnuKiSON", u"既存ファイル", [this] { FrmLunch_Command2_Click(); });
  add(&file, u"mnuSYURYOU", u"終了", [this] { FrmLunch_Command3_Click(); });
  MenuEntry& models = add(nullptr, u"mnuKISEI", u"モデルファイル", {});
  add(&models, u"mnuKAKEI", u"家計簿", opens(1));
  add(&models, u"mnuad", u"アドレス帖", opens(2));
  add(&models, u"mnuS10", u"20バイト10項目集計表", opens(3));
  add(&models, u"mnuS50", u"4バイト50項目集計表", opens(4));
  add(&models, u"mnuS100", u"2バイト100項目集計表", opens(5));
  add(&models, u"mnuG1", u"1行40バイト原稿用紙", opens(6));
  MenuEntry& samples = add(nullptr, u"mnuK", u"記入済みファイル例", {});
  add(&samples, u"mnuE1", u"サンプル住所録", opens(100));
  add(&samples, u"mnuE2", u"サンプル試験結果", opens(101));
  add(nullptr, u"mnuH", u"ヘルプ", [] { showHelpFile(u"Zelkoについて.txt"); });
}

void FrmLunch::buildTiles() {
  tile(Picture1, Label3, 1);
  tile(Picture2, Label6, 2);
  tile(Picture3, Label7, 3);
  tile(Picture4, Label8, 4);
  tile(Picture5, Label9, 5);
  tile(Picture6, Label10, 6);
}

void FrmLunch::tile(PictureBox& picture, Label& label, int index) {
  picture.tabStop = true;
  picture.labelledBy = &label;
  picture.place = index % 2 == 1 ? Place::newRow : Place::sameRow;
  label.setWidth(kTileTwips);
  picture.draw({PictureBox::Stroke::box, 60, 60, 540, 420, 0, {}});
  for (int line = 1; line <= index; ++line)
    picture.draw({PictureBox::Stroke::line,
                  60.0 + 480.0 * line / (index + 1),
                  60,
                  60.0 + 480.0 * line / (index + 1),
                  420,
                  0,
                  {}});
  picture.draw({PictureBox::Stroke::line, 60, 180, 540, 180, 0, {}});
  picture.onClick = [this, index] { open(index); };
  picture.onGotFocus = [&label] { label.setBackColour(kWhite); };
  picture.onLostFocus = [&label] { label.setBackColour(kDesktopColour); };
  label.onClick = [this, index, &picture, &label] {
    if (label.backColour() == kWhite)
      open(index);
    else
      picture.setFocus();
  };
}

void FrmLunch::writeHints() {
  Text1.setText(u"新規作成です！！リターンキーを叩いてください");
  Text2.setText(
      u"リターンキーを叩くと既存ファイルを閲覧編集できます。サンプルファイルを試してください。\r\nタブキーでメニューが"
      u"移動します");
  Text3.setText(u"終了します！！");
  Text4.setText(
      u"Vで音声案内が行われます。書き込みセルが移動したときやCTRL+ALT+AやCTRL+ALT+Sなどで音声案内が行われます。"
      u"\r\n*音声案内のためにはクリップボードを読むソフトが必要です。\r\n*"
      u"ただし、ノーチェックの場合の方が動作は速いです。");
  for (RichTextBox* hint : {&Text1, &Text2, &Text3, &Text4}) {
    hint->readOnly = true;
    hint->tabStop = false;
  }
  Text2.place = Text3.place = Place::sameRow;
}

void FrmLunch::narrate() {
  Narration voice(*this);
  voice.explain([this] { return markStop + Text(kOpeningText); });
  for (Button* button : {&Command1, &Command2, &Command3}) voice.say(*button, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ");
  voice.say(Check2, u"ﾁｪｯｸﾎﾞｯｸｽ");
  for (PictureBox* picture : {&Picture1, &Picture2, &Picture3, &Picture4, &Picture5, &Picture6})
    voice.say(*picture, [picture] { return picture->labelledBy->caption() + u" リターンまたはクリックで実行します"; });
}

void FrmLunch::open(int index) {
  Text error;
  fopen(index, error);
}

void FrmLunch::fopen(int index, Text& error) {
  const ModelTable* model = modelTable(index);
  error = u"error";
  if (!model) return;
  if (healModelTable(*model)) openTable(appDir + Text(model->data), error);
  if (error.empty()) {
    screen().unload(*this);
    enterEditor();
    return;
  }
  showOK(model->sample() ? u"サンプルファイルが削除されたなどの理由で、サンプルファイルが開けません"
                         : u"モデルファイルがインストールされてないなどの理由で、モデルファイルが開けません",
         u"ファイル読み込みエラー");
}

bool FrmLunch::openFromCommandLine(TextView commandLine) {
  Text error;
  openTable(tableNameOf(commandLine), error);
  if (error.empty()) return true;
  showOK(u"コマンドラインが異常です", u"ファイル読み込みエラー");
  return false;
}

// The opening text is the first thing to be heard, not the control that has the focus.
void FrmLunch::FrmLunch_Activate() {
  if (ticks_ > 1) return;  // back from another form: the control says where the user is
  Silence silence;
  if (Control* control = activeControl()) control->setFocus();
  Timer1.setInterval(kTick);
}

void FrmLunch::FrmLunch_Timer1_Timer() {
  if (screen().activeForm() != this) return;  // a help text or a message has come in between
  if (++ticks_ > 1) Timer1.setInterval(0);
  if (ticks_ > 2 || talkMode == 0) return;
  talkS(*this, caption() + markStop + Text(kOpeningText));
}

void FrmLunch::FrmLunch_KeyDown(KeyEvent& key) {
  constexpr int kF11 = key::function(11), kF12 = key::function(12);
  if (key.is(kF11, shift::None) || key.is(kF11, shift::Ctrl)) {
    switchOn(key.mask == shift::None ? std::int16_t{1} : std::int16_t{2});
  } else if (key.is(kF12, shift::Ctrl)) {
    talkS(*this, u"ﾖﾐｱｹﾞｵﾌ。");
    waitSec(1);
    Check2.setValue(0);
  } else {
    return;
  }
  key.swallow();
}

void FrmLunch::switchOn(std::int16_t level) {
  switching_ = true;
  Check2.setValue(1);
  switching_ = false;
  talkMode = level;
  showSpeechState();
  talkS(*this, level == 1 ? u"データのみ読み上げ" : u"行、項目番号付き読み上げ");
}

void FrmLunch::FrmLunch_KeyPress(CharEvent& event) {
  if (event.ch == u'Y' || event.ch == u'y')
    FrmLunch_Command1_Click();
  else if (event.ch == u'N' || event.ch == u'n')
    FrmLunch_Command2_Click();
  else
    return;
  event.ch = 0;
}

void FrmLunch::FrmLunch_Command1_Click() {
  if (!commandOf(u"mnuNEW")) {
    host().beep();
    return;
  }
  screen().unload(*this);
  {
    const Silence silence;  // there is no cell yet that could be told
    form<Form1>().show();
  }
  runCommand(u"mnuNEW");
}

void FrmLunch::FrmLunch_Command2_Click() {
  screen().unload(*this);
  showFilePicker(PickFor::table);
}

void FrmLunch::FrmLunch_Command3_Click() {
  if (talkMode != 0) waitSec(talkGap);
  talkEnd();
  throw ProgramEnd{};
}

void FrmLunch::FrmLunch_Check2_Click() {
  if (switching_) return;
  talkMode = Check2.value() == 1 ? 2 : 0;
  clipOwed_ = talkMode == 0;
  showSpeechState();
  talkGated(u"チェック" + markPause + Check2.caption() + u"ﾁｪｯｸﾎﾞｯｸｽ");
}

void FrmLunch::FrmLunch_Check2_LostFocus() {
  if (talkMode != 0) return;
  Text4.setVisible(false);
  // A program that has been silent all along owes nothing: what stands there may be newer than what it set aside.
  if (!std::exchange(clipOwed_, false)) return;
  if (agentOn == 1)
    form<frmAGENT>().Text1.setText(userClip);
  else if (host().clearClipboard())
    host().setClipboard(userClip);
}

void startFromLunch(TextView commandLine) {
  FrmLunch& lunch = form<FrmLunch>();
  const bool named = !trimmed(commandLine).empty();
  const bool opened = named && lunch.openFromCommandLine(commandLine);
  showSpeechState();
  if (!opened) {
    if (!named) offerRecovery(appDir);  // the folder of a named table has been looked at
    lunch.show();
    return;
  }
  screen().unload(lunch);
  enterEditor();
}

void registerLunch() { registerForm<FrmLunch>(); }

}  // namespace zelko
