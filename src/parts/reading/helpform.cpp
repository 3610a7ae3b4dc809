#include "parts/reading/helpform.h"

#include "parts/reading/printtext.h"
#include "platform/host.h"
#include "voice/names.h"
#include "voice/narration.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr TextView kHowToHelp =
    u"が表示されています。矢印ｷｰで、一行ずつ読まれます。ｼﾌﾄｷｰで全文が読まれます。escで戻ります。";
constexpr TextView kHowToReport =
    u"が表示されています。矢印ｷｰで、一行ずつ読まれます。ｼﾌﾄ矢印ｷｰで範囲部が読まれます。"
    u"ﾀﾌﾞｷｰで、印刷、保存、KEKKA表示のボタンに移動します。escで終了します。";

constexpr const char16_t* kHowToWalk = u"Altと矢印ｷｰで、表を一ますずつ、行と列の名前と共に読みます。";

}  // namespace

frmHelp::frmHelp() : Form(kName, u"ﾍﾙﾌﾟ") {
  RichTextBox1.readOnly = true;
  Command1.place = Place::newRow;
  Command4.isCancel = true;
  Command1.onClick = [this] { frmHelp_Command1_Click(); };
  Command2.onClick = [this] { reading_.save ? reading_.save(RichTextBox1.content()) : host().beep(); };
  Command3.onClick = [this] { reading_.showResults ? reading_.showResults() : host().beep(); };
  Command4.onClick = [this] { screen().unload(*this); };
  RichTextBox1.onKeyDown = [this](KeyEvent& key) {
    if (!walkTables(RichTextBox1, key, reading_.names)) reader_.keyDown();
  };
  onKeyDown = [this](KeyEvent& key) {
    if (result_.empty() || !key.is(key::PageDown, shift::Ctrl)) return;
    key.swallow();
    talkGated(result_);
  };
  narrate();
  // While work goes on its questions come and go in front of this window: it is seen, and says nothing.
  RichTextBox1.onGotFocus = [this, spoken = RichTextBox1.onGotFocus] {
    if (!busy_) spoken();
  };
  // Behind the narration, whose repeat key would read the whole text.
  RichTextBox1.onKeyUp = [this](KeyEvent& key) { frmHelp_RichTextBox1_KeyUp(key); };
}

void frmHelp::narrate() {
  Narration voice(*this);
  voice.explain([this] { return reading_.report ? Text(kHowToReport) + kHowToWalk : Text(kHowToHelp); });
  voice.say(RichTextBox1, [this] { return focusSentence(); });
  for (Button* button : {&Command1, &Command2, &Command3, &Command4}) voice.say(*button, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ");
}

// The box word is spelled so that the sentence does not bring the whole text with it.
Text frmHelp::focusSentence() {
  if (!reading_.opening.empty()) return std::exchange(reading_.opening, {});
  return caption() + Text(reading_.report ? kHowToReport : kHowToHelp) + u"ﾃｷｽﾄぼっくす";
}

void frmHelp::take(const Reading& reading) {
  reading_ = reading;
  setCaption(reading.caption);
  reader_.setWords(reading.report ? ReadingWords{} : ReadingWords{u"ブランク", false});
  for (Button* button : {&Command1, &Command2, &Command3}) button->setVisible(reading.report);
  Command4.setCaption(reading.report ? u"終了(esc)" : u"戻る(esc)");
  RichTextBox1.setText(reading.text);
}

void frmHelp::addLine(TextView line) { RichTextBox1.setText(RichTextBox1.content() + Text(line) + kLineEnd); }

void frmHelp::setBusy(bool busy) {
  busy_ = busy;
  for (Button* button : {&Command1, &Command2, &Command3, &Command4}) button->setEnabled(!busy);
}

void frmHelp::frmHelp_RichTextBox1_KeyUp(KeyEvent& key) {
  if (reader_.keyUp(key)) return;
  const bool wanted = talkMode != 0 && isRepeatKey(key);
  talkTextKey(key.code, key.mask, 0, wanted ? caption() + u"ﾃｷｽﾄﾎﾞｯｸｽ" : Text());
}

// What is marked, else everything.
void frmHelp::frmHelp_Command1_Click() {
  const Text marked = RichTextBox1.selText();
  printText(marked.empty() ? RichTextBox1.content() : marked);
}

frmHelp& openReading(const Reading& reading) {
  unload<frmHelp>();
  frmHelp& window = form<frmHelp>();
  window.take(reading);
  return window;
}

void showReading(const Reading& reading) { openReading(reading).showModal(); }

}  // namespace zelko
