#include "stats/twogroups/tform.h"

#include <algorithm>

#include "editor/main/commands.h"
#include "parts/ask/typed.h"
#include "parts/keys/enterkey.h"
#include "platform/host.h"
#include "platform/text/format.h"
#include "platform/text/number.h"
#include "stats/numbers/probability.h"
#include "voice/names.h"
#include "voice/narration.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr TextView kHow =
    u"ctrl+ ページダウン "
    u"キーで、ｔ値、F値と自由度が読まれます。六つの欄に、群ごとの平均値、標準偏差、ﾃﾞｰﾀｽｳを入力してください。";
constexpr double kMostCases = 1e9;

struct Shown {
  Text t, df, p, F, dfF;
};

Text bareNumber(const Text& formatted) { return formatted.empty() || formatted == u"." ? Text(u"0") : formatted; }

Shown shownOf(const numbers::TTest& test) {
  if (!test.computed) return {u"0", u"**", {}, u"0", u"**"};
  Shown shown;
  shown.t = test.hasT ? bareNumber(format(test.t, u"###.###")) : Text(u"*");
  shown.df = decimal(test.df);
  shown.p = test.hasT ? format(test.p, u"0.#######") : Text();
  shown.F = bareNumber(format(test.F, u"#####.###"));
  shown.dfF = decimal(test.numeratorDf) + u" / " + decimal(test.denominatorDf);
  return shown;
}

// What the two told figures leave open, in one sentence: the probability where the series is off, and F as the ratio of
// the variances.
Text exactSentence(const numbers::TTest& test) {
  Text said;
  if (!test.computed) return said;
  if (test.hasT && !numbers::sameToFourDigits(test.p, test.exactP))
    said += u"｡正確な確率わ｡" + format(test.exactP, u"0.0000");
  if (test.hasExactF)
    said += u"｡不偏分散の比わ｡" + format(test.exactF, u"#####0.0000") + u"｡自由度｡" + decimal(test.exactNumeratorDf) +
            u" / " + decimal(test.exactDenominatorDf) + u"｡上側確率｡" + format(test.exactFP, u"0.0000");
  return said;
}

double valueOf(const TextBox& box) { return typedVal(typedCode(box.content())).value_or(0); }

int countOf(const TextBox& box) { return toInt32(std::clamp(valueOf(box), 0.0, kMostCases)); }

}  // namespace

frmT::frmT()
    : Form(kName, u"t,F検定"),
      rows_{{{&Text1, &Label1},
             {&Text2, &Label2},
             {&Text3, &Label3},
             {&Text4, &Label4},
             {&Text5, &Label5},
             {&Text6, &Label6}}} {
  for (const Row& row : rows_) {
    row.box->labelledBy = row.name;
    row.name->place = Place::newRow;
  }
  Label7.place = Label8.place = Command1.place = Place::newRow;
  wire();
  narrate();
  frmT_Text_Change(0);
}

void frmT::wire() {
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    rows_[i].box->onChange = [this, i] { frmT_Text_Change(i); };
    onEnter(*rows_[i].box, [this, i] { frmT_Text_Enter(i); });
  }
  Command1.onClick = [this] { screen().unload(*this); };
  Command1.isCancel = true;
  onKeyDown = [this](KeyEvent& key) {
    if (!key.is(key::PageDown, shift::Ctrl)) return;
    key.swallow();
    readT();
  };
}

void frmT::narrate() {
  Narration voice(*this);
  voice.explain([] { return markStop + Text(kHow); });
  for (const Row& row : rows_) {
    Label* name = row.name;
    voice.box(*row.box, [name] { return name->caption() + u"ﾃｷｽﾄﾎﾞｯｸｽ"; });
  }
  voice.say(Command1, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ");
}

numbers::TTest frmT::result() const {
  return numbers::tTest({valueOf(Text1), valueOf(Text2), countOf(Text3)},
                        {valueOf(Text4), valueOf(Text5), countOf(Text6)});
}

void frmT::frmT_Text_Change(std::size_t box) {
  talkRichChange(*rows_[box].box, previous_[box]);
  const Shown shown = shownOf(result());
  Label7.setCaption(u"t=" + shown.t + u"  df=" + shown.df + u"  p=" + shown.p);
  Label8.setCaption(u"F=" + shown.F + u"  df=" + shown.dfF);
}

// On to the next box; behind the last one the result.
void frmT::frmT_Text_Enter(std::size_t box) {
  if (box + 1 < rows_.size()) return rows_[box + 1].box->setFocus();
  readT();
}

void frmT::readT() {
  const numbers::TTest test = result();
  const Shown shown = shownOf(test);
  Text said = u"ｔ値は｡" + shown.t + u"｡自由度｡" + shown.df;
  if (!shown.p.empty()) said += u"｡確率｡" + shown.p;
  talkGated(said + u"｡F値は｡" + shown.F + u"｡自由度｡" + shown.dfF + exactSentence(test));
}

void registerTForm() {
  registerForm<frmT>();
  registerCommand(u"mnuT", [] { form<frmT>().showModal(); });
}

}  // namespace zelko
