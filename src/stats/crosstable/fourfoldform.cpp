#include "stats/crosstable/fourfoldform.h"

#include "editor/main/commands.h"
#include "parts/ask/typed.h"
#include "parts/grid/cellfault.h"
#include "parts/keys/enterkey.h"
#include "platform/host.h"
#include "platform/text/format.h"
#include "platform/text/number.h"
#include "stats/crosstable/simulation.h"
#include "voice/dialogs.h"
#include "voice/heard.h"
#include "voice/names.h"
#include "voice/narration.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr TextView kHowToHear =
    u"ctrl+pageDownで　現在のセルﾃﾞｰﾀ　を　もとに　した　かいじじょうち、連関値、自由度、確率が　"
    u"読み上げられます。";
constexpr TextView kNoResult = u"4つのセルに頻度を記入してください。";
constexpr TextView kOutOfRange = u"頻度わ0から32767までの数です";
constexpr TextView kEmptyCell = u"頻度0のセルがあるため、結果わ0です。";
constexpr double kMostInCell = 32767, kOftenByChance = 0.05;

// A box that is read as a number, in whatever width it was typed; nullopt beyond 16 bits or below 0.
std::optional<int> countIn(const TextBox& box) {
  const auto value = typedVal(typedCode(box.content()));
  if (!value || *value < 0 || *value > kMostInCell) return std::nullopt;
  return toInt16(*value);
}

}  // namespace

frmKAI::frmKAI() : Form(kName, u"２×２カイ自乗検定") {
  Text1.labelledBy = &Label15;
  Text2.labelledBy = &Label16;
  Text3.labelledBy = &Label17;
  Text4.labelledBy = &Label18;
  Text5.labelledBy = &Label13;
  for (Control* control :
       {static_cast<Control*>(&Label17), static_cast<Control*>(&Label5), static_cast<Control*>(&Label6),
        static_cast<Control*>(&Label8), static_cast<Control*>(&Label10), static_cast<Control*>(&Label12),
        static_cast<Control*>(&Label13), static_cast<Control*>(&Label14), static_cast<Control*>(&Command2)})
    control->place = Place::newRow;
  Text5.setText(u"1000");
  wire();
  narrate();
}

void frmKAI::wire() {
  TextBox* const boxes[] = {&Text1, &Text2, &Text3, &Text4};
  for (int i = 0; i < 4; ++i) {
    TextBox& box = *boxes[i];
    TextBox* const next = i < 3 ? boxes[i + 1] : nullptr;
    box.onChange = [this, &box, previous = Text()]() mutable {
      talkRichChange(box, previous);
      readkai();
    };
    onEnter(box, [this, next] { frmKAI_box_Enter(next); });
    box.onGotFocus = [&box] { markWhole(box); };
  }
  Text5.onChange = [this, previous = Text5.content()]() mutable { talkRichChange(Text5, previous); };
  Text5.onGotFocus = [this] { markWhole(Text5); };
  onEnter(Text5, [this] { frmKAI_Command2_Click(); });
  Command2.onClick = [this] { frmKAI_Command2_Click(); };
  Command1.onClick = [this] { screen().unload(*this); };
  Command1.isCancel = true;
  onKeyDown = [this](KeyEvent& key) { frmKAI_KeyDown(key); };
}

void frmKAI::narrate() {
  Narration voice(*this);
  voice.explain([] { return markStop + Text(kHowToHear); });
  // How to hear the result is told once, when the form opens.
  for (TextBox* box : {&Text1, &Text2, &Text3, &Text4}) {
    voice.box(*box, [this, box] {
      const Text how = std::exchange(isNew_, false) ? markStop + Text(kHowToHear) : Text();
      return box->labelledBy->caption() + u"ﾃｷｽﾄﾎﾞｯｸｽ" + how;
    });
  }
  voice.box(Text5, u"試行回数ﾃｷｽﾄﾎﾞｯｸｽ");
  for (Button* button : {&Command2, &Command1}) voice.say(*button, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ");
}

frmKAI::Cells frmKAI::cells() {
  Cells read;
  int* const places[] = {&read.table.a, &read.table.b, &read.table.c, &read.table.d};
  int i = 0;
  for (TextBox* box : {&Text1, &Text2, &Text3, &Text4}) {
    const auto count = countIn(*box);
    if (!count && !read.wrong) read.wrong = box;
    if (trimmed(box->content()).empty()) read.isWhole = false;
    *places[i++] = count.value_or(0);
  }
  if (read.wrong) read.isWhole = false;
  return read;
}

void frmKAI::readkai() {
  const Cells read = cells();
  const auto& [a, b, c, d] = read.table;
  const auto sum = [&](int first, int second) { return read.wrong ? Text() : decimal(first + second); };
  Label1.setCaption(sum(a, c));
  Label2.setCaption(sum(b, d));
  Label3.setCaption(sum(a, b));
  Label4.setCaption(sum(c, d));
  Label14.setCaption({});
  simulated_.clear();
  hasResult_ = read.isWhole;
  test_ = hasResult_ ? fourfoldTest(read.table, numbers::Yates::whereFew) : numbers::FourfoldTest();
  Label7.setCaption(hasResult_ ? format(test_.chi, u"######.0000000000") : Text());
  Label9.setCaption(hasResult_ ? format(test_.phi, u"#.000000000") : Text());
  Label11.setCaption(hasResult_ ? format(test_.p, u"#.000000000") : Text());
  Label12.setCaption(!hasResult_ ? TextView() : test_.empty ? kEmptyCell : test_.few ? u"Yete's修正済" : TextView());
}

// A wrong box is told and stays; behind the last one the result is heard.
void frmKAI::frmKAI_box_Enter(TextBox* next) {
  if (cells().wrong) return tellWrong();
  if (next) return next->setFocus();
  talkGated(resultSentence());
}

void frmKAI::tellWrong() {
  TextBox& box = *cells().wrong;
  host().beep();
  tellCellFault({{}, Text(kOutOfRange), u"注意"}, box);
}

Text frmKAI::resultSentence() {
  if (cells().wrong) return Text(kOutOfRange);
  if (!hasResult_) return Text(kNoResult);
  Text said = u"ｶｲ､ｼﾞｼﾞｮｳﾁﾊ｡" + format(test_.chi, u"0.0000") + u"｡連関値は｡" + format(test_.phi, u"0.0000") +
              u"｡自由度は｡" + u"1" + u"｡確率は" + spokenP(test_.p) + u"。";
  if (test_.chi > kChiPRightUpTo) said += exactSentence(test_.exactP);
  return said + Label12.caption() + simulated_;
}

void frmKAI::frmKAI_KeyDown(KeyEvent& key) {
  if (!key.is(key::PageDown, shift::Ctrl)) return;
  key.swallow();
  talkGated(resultSentence());
}

void frmKAI::frmKAI_Command2_Click() {
  const Cells read = cells();
  if (read.wrong) return tellWrong();
  if (!hasResult_ || test_.empty) {
    host().beep();
    return talkGated(hasResult_ ? kEmptyCell : kNoResult);
  }
  const auto trials = trialsFrom(Text5);
  if (!trials) return;
  numbers::FourfoldTrials chance(read.table, test_.chi);
  const SimulationEnd end = simulate(*trials, [&](const numbers::RandomBits& bits) { return chance.once(bits); });
  Label14.setCaption(u"X2値が" + Label7.caption() + u"以上の出現率 " + format(chance.done(), u"0000 :") +
                     format(chance.hits(), u"000 /") + format(100 * chance.rate(), u"##0.0") + u"%" +
                     (chance.rate() < kOftenByChance ? u"*" : u""));
  simulated_ = u"X2値が" + format(test_.chi, u"0.0000") + u"以上の出現率わ、" +
               trialsSentence(end, chance.done(), chance.hits());
  talkBehindDialog(simulated_);
}

void registerFourfoldForm() {
  registerForm<frmKAI>();
  registerCommand(u"mnuKAI", [] {
    unload<frmKAI>();
    form<frmKAI>().showModal();
  });
}

}  // namespace zelko
