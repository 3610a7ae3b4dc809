#include "dial/telform.h"

#include <algorithm>

#include "dial/phonenumber.h"
#include "editor/main/commands.h"
#include "parts/ask/ask.h"
#include "parts/job/editorhooks.h"
#include "parts/keys/enterkey.h"
#include "platform/text/number.h"
#include "platform/text/sjis.h"
#include "platform/text/width.h"
#include "store/records/records.h"
#include "store/table/cursor.h"
#include "store/table/table.h"
#include "voice/dialogs.h"
#include "voice/names.h"
#include "voice/narration.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr TextView kIdle = u"ダイアル", kIdleCancel = u"中止(ESC)";
constexpr TextView kHow =
    u"ダイアルコマンドﾎﾞﾀﾝをｸﾘｯｸすると、テキストﾎﾞｯｸｽに表示された電話番号をダイアルします。"
    u"プッシュ回線では、トーンダイアルをチェックしてください。";
constexpr TextView kFailed = u"ダイアル時のエラーです、電話回線や設定を確認してください";
constexpr double kSettleSeconds = 0.5, kDigitSeconds = 0.25;
constexpr std::size_t kMostHeard = 20;  // characters of a number that are waited for
constexpr int kPollMilliseconds = 500;
constexpr int kTries = 3;
constexpr std::size_t kLongestAnswer = 1000;

struct ModemAnswer {
  std::string_view word;
  TextView said;
};
constexpr ModemAnswer kAnswers[] = {
    {"BUSY", u"話し中です。ＥＳＣで電話を切ります。"},
    {"NO CARRIER", u"電話が切れました。ＥＳＣでダイアルに戻ります。"},
    {"NO DIALTONE", u"回線につながっていません。ＥＳＣでダイアルに戻ります。"},
    {"ERROR", u"モデムがダイアルを受け付けません。ＥＳＣでダイアルに戻ります。"},
};

// Of the current cell, else of the first cell of its record that holds one.
Text numberOfRecord() {
  const CacheRow row = rowOf(curRec);
  Text number = numberOfCell(trimmed(cellOfRow(row, curItem)));
  for (int item = 0; number.empty() && item <= itemCount; ++item) number = numberInText(cellOfRow(row, item));
  return number;
}

// Until the port has settled and the number has been said: what comes next would cut it off.
double secondsToHear(TextView number) {
  const auto heard = static_cast<double>(std::min(number.size(), kMostHeard));
  return talkMode == 0 ? kSettleSeconds : kSettleSeconds + heard * kDigitSeconds;
}

Text nameOfRecord() { return itemCount >= 1 ? trimmed(cellOfRow(rowOf(curRec), 1)) : Text(); }

}  // namespace

frmTEL::frmTEL() : Form(kName, u"電話をかける") {
  Text1.labelledBy = &Label1;
  Check1.place = Frame1.place = Command3.place = Check2.place = Place::newRow;
  Command3.isCancel = true;
  const TelSettings kept = readTelSettings();
  Check1.setValue(kept.tone ? 1 : 0);
  optionOf(kept.port).setValue(1);
  Timer1.setInterval(kPollMilliseconds);
  Timer1.setEnabled(false);
  wire();
  narrate();
}

void frmTEL::wire() {
  onActivate = [this] { frmTEL_Activate(); };
  onUnload = [this] { PDQComm1.CloseComm(); };
  onClose = [this] { frmTEL_Command3_Click(); };
  Text1.onChange = [this] { frmTEL_Text1_Change(); };
  onEnter(Text1, [this] { frmTEL_Command1_Click(); });
  toggleOnEnter(Check1);
  toggleOnEnter(Check2);
  Command1.onClick = [this] { frmTEL_Command1_Click(); };
  Command2.onClick = [this] { frmTEL_Command2_Click(); };
  Command3.onClick = [this] { frmTEL_Command3_Click(); };
  Command4.onClick = [this] { frmTEL_Command4_Click(); };
  Timer1.onTimer = [this] { frmTEL_Timer1_Timer(); };
}

void frmTEL::narrate() {
  Narration voice(*this);
  voice.explain(kHow);
  voice.box(Text1, u"ﾃﾞﾝﾜﾊﾞﾝｺﾞｳﾃｷｽﾄﾎﾞｯｸｽ", true);
  for (Button* button : {&Command1, &Command2, &Command3, &Command4}) voice.say(*button, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ");
  for (CheckBox* box : {&Check1, &Check2}) voice.check(*box, u"ﾁｪｯｸﾎﾞｯｸｽ");
  for (OptionButton* option : {&Option1, &Option2, &Option3})
    voice.say(*option, [option] { return option->caption() + u"ｵﾌﾟｼｮﾝﾎﾞﾀﾝ"; });
}

OptionButton& frmTEL::optionOf(int port) { return port == 1 ? Option1 : port == 2 ? Option2 : Option3; }

TelSettings frmTEL::settings() const { return {Check1.value() == 1, Option1.value() ? 1 : Option2.value() ? 2 : 3}; }

// Once: a message that closes activates the form too, and what was typed by then stays.
void frmTEL::frmTEL_Activate() {
  if (filled_) return;
  filled_ = filling_ = true;
  Text1.setText(numberOfRecord());
  Text1.moveCaretToEnd();
  filling_ = false;
}

void frmTEL::frmTEL_Text1_Change() {
  if (!filling_) return talkRichChange(Text1, previous_);
  previous_ = Text1.content();
  talkS(*this, u"電話番号");
}

void frmTEL::frmTEL_Command1_Click() {
  if (connected_) return hangUp();
  const Text number = trimmed(toHalfWidth(Text1.content()));
  if (linkOf(number).empty()) {
    host().beep();
    return Text1.setFocus();
  }
  const Text name = nameOfRecord();
  talkBehindDialog(name + (name.empty() ? Text() : markPause) + spokenNumber(number));
  if (Check2.value() == 1) return handOver(number);
  dial(number);
}

void frmTEL::phoneseting(TextView port, TextView device) {
  for (int tries = 0; PDQComm1.DeviceName() != port && tries < kTries; ++tries) PDQComm1.OpenComm(port, {}, device);
  dwDCB state = PDQComm1.GetCommState();
  state.BaudRate = 14400;
  state.fNull = state.fErrorChar = true;
  state.ErrorChar = '~';
  PDQComm1.SetCommState(state);
}

void frmTEL::dial(const Text& number) {
  const TelSettings now = settings();
  Command1.setCaption(u"接続中...");
  try {
    phoneseting(optionOf(now.port).caption(), readPortDevices()[static_cast<std::size_t>(now.port - 1)]);
    waitSec(secondsToHear(number));
    PDQComm1.CommOutput((now.tone ? u"ATDT" : u"ATDP") + number + u";\r");
  } catch (const SerialError&) {
    return fail();
  }
  connected_ = true;
  answer_.clear();
  Timer1.setEnabled(true);
  Command1.setCaption(u"ダイアル後受話器をとりＥＳＣを");
  Command3.setCaption(u"ESC");
  talkBehindDialog(u"受話器をとり､ＥＳＣを叩いてください。");
}

void frmTEL::handOver(const Text& number) {
  if (host().openLink(linkOf(number))) return talkBehindDialog(u"電話のアプリに番号を渡しました。");
  showOK(u"番号を受け取る電話のアプリがありません", u"ダイアルエラー");
}

void frmTEL::hangUp() {
  try {
    PDQComm1.CommOutput(u"ATH\r");
  } catch (const SerialError&) {
    return fail();
  }
  setIdle();
  talkGated(u"電話を切りました。");
}

void frmTEL::fail() {
  setIdle();
  showOK(kFailed, u"ダイアルエラー");
}

void frmTEL::setIdle() {
  Timer1.setEnabled(false);
  PDQComm1.CloseComm();
  connected_ = false;
  Command1.setCaption(kIdle);
  Command3.setCaption(kIdleCancel);
}

// What the modem says while the call stands.
void frmTEL::frmTEL_Timer1_Timer() {
  try {
    answer_ += PDQComm1.PollRead();
  } catch (const SerialError&) {
    return fail();
  }
  if (answer_.size() > kLongestAnswer) answer_.erase(0, answer_.size() - kLongestAnswer);
  for (const ModemAnswer& answer : kAnswers) {
    if (answer_.find(answer.word) == std::string::npos) continue;
    answer_.clear();
    return talkBehindDialog(answer.said);
  }
}

void frmTEL::frmTEL_Command2_Click() {
  if (!writeTelSettings(settings())) return showOK(u"設定を保存できません", u"書き込みエラー");
  talkGated(u"設定を保存しました。");
}

void frmTEL::frmTEL_Command3_Click() {
  if (connected_) return hangUp();
  if (!writeTelSettings(settings())) showOK(u"設定を保存できません", u"書き込みエラー");
  screen().unload(*this);
}

void frmTEL::frmTEL_Command4_Click() {
  const int port = settings().port;
  PortDevices devices = readPortDevices();
  Text& device = devices[static_cast<std::size_t>(port - 1)];
  const auto typed =
      askCode({optionOf(port).caption() +
                   u"の装置を、/dev/で始まる名前で入力してください。0を入力すると、はじめの装置に戻ります。",
               u"ポート設定", device.empty() ? Text(u"/dev/ttyUSB0") : device, u"/dev/で始まる名前か0です。"},
              [](TextView code) { return code == u"0" || code.starts_with(u"/dev/"); });
  if (!typed) return talkBehindDialog(u"ポート設定は、もとのままです。");
  device = *typed == u"0" ? Text() : *typed;
  if (!writePortDevices(devices)) return showOK(u"設定を保存できません", u"書き込みエラー");
  talkBehindDialog(u"ポート設定を保存しました。");
}

void registerDialling() {
  registerForm<frmTEL>();
  registerCommand(u"mnuTEL", [] {
    editorHooks.storeTyped(true);
    form<frmTEL>().showModal();
  });
}

}  // namespace zelko
