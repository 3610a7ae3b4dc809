#include "voice/agent.h"

#include <algorithm>
#include <array>

#include "platform/fault.h"
#include "platform/host.h"
#include "voice/narration.h"

namespace zelko {

namespace {

constexpr std::array<TextView, 4> kCharacterFiles = {u"genie.acs", u"Robby.acs", u"peedy.acs", u"Merlin.acs"};

struct Tag {
  TextView tag, word;
};
// The second tag is not closed, and the character has always been given it so.
constexpr std::array<Tag, 4> kSpeeds = {{{u"\\Spd=0\\", u"スピード1"},
                                         {u"\\Spd=500", u"スピード2"},
                                         {u"\\Spd=1500\\", u"スピード3"},
                                         {u"\\Spd=6000\\", u"スピード4"}}};
constexpr std::array<Tag, 2> kPitches = {{{u"\\PIT=0\\", u"高さ1"}, {u"\\PIT=60000\\", u"高さ2"}}};

Character& character() { return host().character(); }

// Back to the form that this one stands beside.
void leaveTo(const Form& own) {
  const auto& shown = screen().shown();
  const auto other = std::find_if(shown.rbegin(), shown.rend(), [&](const Form* form) { return form != &own; });
  if (other != shown.rend()) (*other)->activate();
}

}  // namespace

frmAGENT::frmAGENT()
    : Form(kName, u"Agent"),
      Text1(*this, u"Text1"),
      Command1(*this, u"Command1", u"繰り返し"),
      Command2(*this, u"Command2", u"停止"),
      Frame1(*this, u"Frame1", u"ｷｬﾗｸﾀ"),
      Option1_0(*this, u"Option1", u"Genie", 0, &Frame1),
      Option1_1(*this, u"Option1", u"Robby", 1, &Frame1),
      Option1_2(*this, u"Option1", u"Peedy", 2, &Frame1),
      Option1_3(*this, u"Option1", u"Merlin", 3, &Frame1),
      Frame2(*this, u"Frame2", u"速度"),
      Option2_0(*this, u"Option2", u"1", 0, &Frame2),
      Option2_1(*this, u"Option2", u"2", 1, &Frame2),
      Option2_2(*this, u"Option2", u"3", 2, &Frame2),
      Option2_3(*this, u"Option2", u"4", 3, &Frame2),
      Frame3(*this, u"Frame3", u"高さ"),
      Option3_0(*this, u"Option3", u"1", 0, &Frame3),
      Option3_1(*this, u"Option3", u"2", 1, &Frame3) {
  Text1.tabStop = false;  // the channel, not a box to type into
  Text1.onChange = [this] { frmAGENT_Text1_Change(); };
  Command1.onClick = [this] { frmAGENT_Command1_Click(); };
  Command1.onGotFocus = [this] { sentence_ = Text1.content(); };
  wireOptions();
  onUnload = [] { character().unload(); };
  onKeyDown = [this](KeyEvent& key) {
    if (!key.is(key::Esc, shift::None)) return;
    key.swallow();
    leaveTo(*this);
  };
  loadCharacter(kCharacterFiles[0]);

  Narration narration(*this);
  narration.explain(u"話すキャラクタを　選びます。声の　速さと　高さも　ここで　えらびます。")
      .say(Command1, u"。いまの　文を　もう一度　話します。ｺﾏﾝﾄﾞﾎﾞﾀﾝ")
      .say(Command2, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ");
  appendHandler(Command1.onGotFocus, [this] { giveBackSentence(); });
  for (Control* control : controls()) {
    const auto* option = dynamic_cast<OptionButton*>(control);
    if (!option) continue;
    narration.say(*control, [option] {
      return option->frame()->caption() + option->caption() + Text(option->value() ? u"選択中" : u"") + u"ｵﾌﾟｼｮﾝﾎﾞﾀﾝ";
    });
  }
}

void frmAGENT::wireOptions() {
  for (Control* control : controls()) {
    const int index = control->index();
    if (control->name() == u"Option1") control->onClick = [this, index] { frmAGENT_Option1_Click(index); };
    if (control->name() == u"Option2") control->onClick = [this, index] { frmAGENT_Option2_Click(index); };
    if (control->name() == u"Option3") control->onClick = [this, index] { frmAGENT_Option3_Click(index); };
  }
}

void frmAGENT::giveBackSentence() {
  givingBack_ = true;
  Text1.setText(sentence_);
  givingBack_ = false;
}

void frmAGENT::frmAGENT_Text1_Change() {
  if (givingBack_) return;
  character().stop();
  if (!Text1.content().empty()) character().speak(speedTag_ + Text1.content());
}

void frmAGENT::frmAGENT_Command1_Click() {
  character().show();
  character().speak(Text1.content());
  character().hide();
}

void frmAGENT::frmAGENT_Option1_Click(int index) {
  if (index < 0 || index >= static_cast<int>(kCharacterFiles.size())) return;
  character().unload();
  loadCharacter(kCharacterFiles[static_cast<std::size_t>(index)]);
}

void frmAGENT::frmAGENT_Option2_Click(int index) {
  character().stop();
  if (index < 0 || index >= static_cast<int>(kSpeeds.size())) return;
  const Tag& speed = kSpeeds[static_cast<std::size_t>(index)];
  tryTag(speed.tag, speed.word);
}

void frmAGENT::frmAGENT_Option3_Click(int index) {
  character().stop();
  if (index < 0 || index >= static_cast<int>(kPitches.size())) return;
  const Tag& pitch = kPitches[static_cast<std::size_t>(index)];
  tryTag(pitch.tag, pitch.word);
}

void frmAGENT::loadCharacter(TextView file) {
  if (!character().load(file)) throw Fault{u"キャラクタ " + Text(file) + u" を読み込めません。"};
  character().show();
}

void frmAGENT::tryTag(TextView tag, TextView word) {
  speedTag_ = tag;
  character().speak(speedTag_ + Text(word));
}

}  // namespace zelko
