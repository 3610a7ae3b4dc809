#include "voice/okforms.h"

#include "voice/dialogs.h"
#include "voice/heard.h"
#include "voice/narration.h"
#include "voice/talk.h"

namespace zelko {

namespace {

// The wait lets the sentence through behind that of the event that opened the form.
void sayOnOpening(const Text& message, TextView whatToDo) {
  waitPastGate();
  if (!gateOpens()) return;
  ++composedSentences;
  talkNow(message + Text(whatToDo));
}

// What a button repeats: its caption comes in front by itself.
Sentence messageAgain(const Label& message) {
  return [&message] { return markPause + message.caption() + markStop + u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ"; };
}

Sentence explanation(const Label& message) {
  return [&message] { return message.caption() + u"。okならCRを叩いてください。"; };
}

}  // namespace

FrmOK::FrmOK() : Form(kName, u""), Label1(*this, u"Label1", u""), Command1(*this, u"Command1", u"OK(CR)") {
  Command1.isDefault = true;
  Command1.isCancel = true;
  Command1.onClick = [this] { FrmOK_Command1_Click(); };
  onActivate = [this] { FrmOK_Activate(); };
  Narration(*this).explain(explanation(Label1)).say(Command1, messageAgain(Label1));
}

void FrmOK::FrmOK_Activate() { sayOnOpening(Label1.caption(), u"。OKならCRを叩いてください。"); }

void FrmOK::FrmOK_Command1_Click() { screen().unload(*this); }

frmOKCAN::frmOKCAN()
    : Form(kName, u""),
      Label1(*this, u"Label1", u""),
      Command1(*this, u"Command1", u"OK(CR)"),
      Command2(*this, u"Command2", u"ｷｬﾝｾﾙ(ESC)") {
  Command1.isDefault = true;
  Command2.isCancel = true;
  Command1.onClick = [this] { close(true); };
  Command2.onClick = [this] { close(false); };
  onActivate = [this] { frmOKCAN_Activate(); };
  Narration(*this).explain(explanation(Label1)).say(Command1, messageAgain(Label1)).say(Command2, messageAgain(Label1));
}

void frmOKCAN::frmOKCAN_Activate() {
  sayOnOpening(Label1.caption(), u"。OKならCRを､キャンセルならESCを叩いてください。");
}

void frmOKCAN::close(bool answer) {
  okAnswer = answer;
  screen().unload(*this);
}

FrmRepeat::FrmRepeat()
    : Form(kName, u"結果読み上げ"),
      Label1(*this, u"Label1",
             u"計算が終了しています。読み上げボタン(CR)で読み上げが繰り返します。終了ボタンでKEKKA.TXTが表示されます"),
      Command1(*this, u"Command1", u"再読み上げ(CR)"),
      Command2(*this, u"Command2", u"終了(esc)") {
  Command1.isDefault = true;
  Command2.isCancel = true;
  Command1.onClick = [this] { FrmRepeat_Command1_Click(); };
  Command2.onClick = [this] { FrmRepeat_Command2_Click(); };
  onActivate = [this] { FrmRepeat_Activate(); };
  Narration(*this).explain([this] { return Label1.caption(); }).say(Command1, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ").say(Command2, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ");
}

void FrmRepeat::FrmRepeat_Activate() { sayOnOpening(result + markStop, Label1.caption()); }

void FrmRepeat::FrmRepeat_Command1_Click() { talkGated(result); }

void FrmRepeat::FrmRepeat_Command2_Click() {
  result.clear();
  screen().unload(*this);
}

}  // namespace zelko
