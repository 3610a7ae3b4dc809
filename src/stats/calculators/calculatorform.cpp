#include "stats/calculators/calculatorform.h"

#include "editor/main/commands.h"
#include "parts/keys/enterkey.h"
#include "platform/host.h"
#include "voice/dialogs.h"
#include "voice/heard.h"
#include "voice/names.h"
#include "voice/narration.h"
#include "voice/talk.h"

namespace zelko {

namespace {

struct CalculatorWords {
  TextView menu, caption, first, second, third;  // an empty name: there is no such box
};

// In the order of Calculator.
constexpr CalculatorWords kWords[] = {
    {u"mnuProb", u"正規分布偏差値より確率(素点より偏差値)", u"z入力", u"標準偏差入力", u"平均値入力"},
    {u"mnuCt", u"t値から確率(両側分布)を求める", u"t入力", u"自由度v", u""},
    {u"mnuFprob", u"F値から確率を求める", u"F入力", u"自由度m(分子)", u"自由度n(分母)"},
    {u"mnuKD", u"ｶｲ自乗値から確率を求める", u"カイ自乗入力", u"自由度v", u""},
    {u"mnuBiN", u"2項分布事象生起確率", u"出現回数(r)", u"事象出現率ｐ", u"試行回数n"},
};

constexpr TextView kHow =
    u"値を入力すると、確率が表示されます。CRを叩くと結果が読まれます。ctrl+ﾍﾟｰｼﾞﾀﾞｳﾝでも結果が読まれます。";

const CalculatorWords& wordsOf(Calculator kind) { return kWords[static_cast<std::size_t>(kind)]; }

}  // namespace

FrmCPr::FrmCPr() : Form(kName, kWords[0].caption) {
  Text1.labelledBy = &Label5;
  Text2.labelledBy = &Label6;
  Text3.labelledBy = &Label8;
  for (Control* control :
       {static_cast<Control*>(&Check1), static_cast<Control*>(&Label5), static_cast<Control*>(&Label6),
        static_cast<Control*>(&Label8), static_cast<Control*>(&Label3), static_cast<Control*>(&Command1)})
    control->place = Place::newRow;
  Label10.setCaption(kHow);
  wire();
  narrate();
  take(Calculator::normal);
}

void FrmCPr::wire() {
  std::size_t number = 0;
  for (TextBox* box : {&Text1, &Text2, &Text3}) {
    box->onChange = [this, number] { FrmCPr_Text_Change(number); };
    onEnter(*box, [this] { FrmCPr_Text_Enter(); });
    ++number;
  }
  Check1.onClick = [this] { FrmCPr_Check1_Click(); };
  toggleOnEnter(Check1);
  Command1.onClick = [this] { screen().unload(*this); };
  Command1.isCancel = true;
  onKeyDown = [this](KeyEvent& key) {
    if (!key.is(key::PageDown, shift::Ctrl)) return;
    key.swallow();
    sayResult();
  };
}

void FrmCPr::narrate() {
  Narration(*this)
      .explain([] { return markStop + Text(kHow); })
      .check(Check1, u"ﾁｪｯｸﾎﾞｯｸｽ")
      .box(Text1, [this] { return Label5.caption() + u"ﾃｷｽﾄﾎﾞｯｸｽ"; })
      .box(Text2, [this] { return Label6.caption() + u"ﾃｷｽﾄﾎﾞｯｸｽ"; })
      .box(Text3, [this] { return Label8.caption() + u"ﾃｷｽﾄﾎﾞｯｸｽ"; })
      .say(Command1, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ");
}

void FrmCPr::take(Calculator kind) {
  kind_ = kind;
  setCaption(wordsOf(kind).caption);
  Check1.setVisible(kind == Calculator::normal);
  nameBoxes();
  showResult();
  Text1.setFocus();
}

// The deviation and the mean are asked for with a raw score only.
void FrmCPr::nameBoxes() {
  const bool normal = kind_ == Calculator::normal, raw = Check1.value() == 1;
  Label5.setCaption(normal && raw ? TextView(u"素点入力") : wordsOf(kind_).first);
  Label6.setCaption(wordsOf(kind_).second);
  Label8.setCaption(wordsOf(kind_).third);
  const bool second = !normal || raw, third = second && !wordsOf(kind_).third.empty();
  for (Control* control : {static_cast<Control*>(&Label6), static_cast<Control*>(&Text2)}) control->setVisible(second);
  for (Control* control : {static_cast<Control*>(&Label8), static_cast<Control*>(&Text3)}) control->setVisible(third);
  Label3.setVisible(normal && raw);
}

Calculation FrmCPr::result() const {
  return calculate(
      kind_, {{Text1.content(), Text2.content(), Text3.content()}, kind_ == Calculator::normal && Check1.value() == 1});
}

void FrmCPr::showResult() {
  const Calculation now = result();
  Label1.setCaption(now.line);
  Label3.setCaption(now.z);
}

void FrmCPr::FrmCPr_Text_Change(std::size_t box) {
  const TextBox& changed = box == 0 ? Text1 : box == 1 ? Text2 : Text3;
  talkRichChange(changed, previous_[box]);
  showResult();
}

void FrmCPr::FrmCPr_Check1_Click() {
  nameBoxes();
  showResult();
}

// What is wrong is told now, not while it is being typed; else the result, or the box that is still blank.
void FrmCPr::FrmCPr_Text_Enter() {
  const Calculation now = result();
  if (!now.fault.empty()) {
    TextBox& box = now.faultBox == 0 ? Text1 : now.faultBox == 1 ? Text2 : Text3;
    box.setFocus();
    host().beep();
    return showOK(now.fault, now.faultTitle);
  }
  if (!now.spoken.empty()) return sayResult();
  for (TextBox* box : {&Text1, &Text2, &Text3}) {
    if (box->visible() && trimmed(box->content()).empty() && !box->hasFocus()) return box->setFocus();
  }
  host().beep();
  talkBehindDialog(u"値が足りないか、計算できない値です");
}

void FrmCPr::sayResult() {
  const Text spoken = result().spoken;
  if (spoken.empty()) host().beep();
  talkGated(spoken.empty() ? Text(u"まだ結果がありません") : spoken);
}

void registerCalculators() {
  registerForm<FrmCPr>();
  for (std::size_t i = 0; i < std::size(kWords); ++i) {
    registerCommand(kWords[i].menu, [i] {
      unload<FrmCPr>();
      form<FrmCPr>().take(static_cast<Calculator>(i));
      form<FrmCPr>().showModal();
    });
  }
}

}  // namespace zelko
