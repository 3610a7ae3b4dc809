#include "voice/askforms.h"

#include "voice/cellhooks.h"
#include "voice/dialogs.h"
#include "voice/heard.h"
#include "voice/names.h"
#include "voice/narration.h"
#include "voice/talk.h"

namespace zelko {

frmCMSG::frmCMSG()
    : Form(kName, u"はい／いいえ／ｷｬﾝｾﾙ"),
      lblMSG(*this, u"lblMSG", u""),
      cmdYES(*this, u"cmdYES", u"はい(Y)"),
      cmdNO(*this, u"cmdNO", u"いいえ(N)"),
      Command1(*this, u"Command1", u"ｷｬﾝｾﾙ(ESC)") {
  Command1.isCancel = true;
  wire(cmdYES, kYes, u"[はい](Y)");
  wire(cmdNO, kNo, u"[いいえ](N)");
  wire(Command1, kCancel, u"[ｷｬﾝｾﾙ](esc)");
  onActivate = [this] { cmdYES.setFocus(); };
  Narration(*this).explain(
      [this] { return lblMSG.caption() + markStop + u"。はい､わＹ、いいえ、わＮ、ｷｬﾝｾﾙ　わ　esc　を　叩きます"; });
}

void frmCMSG::wire(Button& button, std::int16_t answer, TextView spokenName) {
  button.onClick = [this, answer] { close(answer); };
  button.onGotFocus = [this, spokenName] { frmCMSG_button_GotFocus(spokenName); };
  button.onKeyDown = [this, &button](KeyEvent& key) { frmCMSG_button_KeyDown(button, key); };
  button.onKeyPress = [this](CharEvent& event) { frmCMSG_button_KeyPress(event); };
  button.onKeyUp = [this, &button](KeyEvent& key) {
    if (talkMode != 0 && isRepeatKey(key)) talkS(*this, lblMSG.caption() + button.caption() + u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ");
  };
}

void frmCMSG::frmCMSG_button_GotFocus(TextView spokenName) {
  if (talkMode == 0) return;
  waitPastGate();
  talkS(*this, markStop + lblMSG.caption() + u"?" + Text(spokenName) + markPause + u"ｺﾏﾝﾄﾞぼたん");
}

void frmCMSG::frmCMSG_button_KeyDown(const Button& button, KeyEvent& key) {
  if (key.mask != shift::None) return;
  const bool back = key.code == key::Left || key.code == key::Up;
  if (!back && key.code != key::Right && key.code != key::Down) return;
  key.swallow();
  if (Control* next = nextControl(&button, back ? -1 : 1)) next->setFocus();
}

void frmCMSG::frmCMSG_button_KeyPress(CharEvent& event) {
  const Text ch = upperCase(Text(1, event.ch));
  if (ch != u"Y" && ch != u"N") return;
  event.ch = 0;
  close(ch == u"Y" ? kYes : kNo);
}

void frmCMSG::close(std::int16_t answer) {
  msgAnswer = answer;
  screen().unload(*this);
}

frmTin::frmTin()
    : Form(kName, u""),
      Label1(*this, u"Label1", u""),
      Text1(*this, u"Text1"),
      Command1(*this, u"Command1", u"OK(CR)"),
      Command2(*this, u"Command2", u"ｷｬﾝｾﾙ(ESC)") {
  Text1.labelledBy = &Label1;
  Command1.isDefault = true;
  Command2.isCancel = true;
  Text1.onGotFocus = [this] { frmTin_Text1_GotFocus(); };
  Text1.onChange = [this] { talkRichChange(Text1, previous_); };
  Text1.onKeyUp = [this](KeyEvent& key) {
    const bool wanted = talkMode != 0 && isRepeatKey(key);
    talkTextKey(key.code, key.mask, 0, wanted ? markStop + Label1.caption() : Text());
  };
  Command1.onClick = [this] { close(Text1.content()); };
  Command2.onClick = [this] { close(u""); };
  onKeyDown = [this](KeyEvent& key) { frmTin_KeyDown(key); };
  Narration(*this)
      .explain(
          [this] { return Label1.caption() + u"。入力して　CRを叩いてください。やめるときわ　ESCを叩いてください。"; })
      .say(Command1, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ")
      .say(Command2, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ");
}

void frmTin::preset(TextView text) {
  const Silence silence;
  Text1.setText(text);
  Text1.setSelection(0, static_cast<int>(text.size()));
}

void frmTin::frmTin_Text1_GotFocus() {
  if (talkMode == 0) return;
  waitPastGate();
  ++composedSentences;
  talkNow(Text1.content() + markStop + Label1.caption());
}

void frmTin::frmTin_KeyDown(KeyEvent& key) {
  if (!key.is(key::letter('L'), shift::Ctrl)) return;
  key.swallow();
  cellHooks.showItemList();
}

void frmTin::close(TextView answer) {
  tinAnswer = answer;
  screen().unload(*this);
}

}  // namespace zelko
