#include "stats/crosstable/contingencyform.h"

#include <limits>

#include "editor/main/commands.h"
#include "parts/ask/typed.h"
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

constexpr int kMostInCell = 32767;
constexpr TextView kCaution = u"注意", kTotal = u"合計";
constexpr TextView kExplanation =
    u"。行と列のカテゴリ数を決め、セルの頻度を1行ずつ記入します。リターンキーで次のセルに移動します。"
    u"ctrl+pageDownで　カイ自乗値、自由度、確率、連関値が読み上げられます。";

std::optional<int> countIn(TextView text) { return typedWhole(text, 0, kMostInCell); }

std::optional<int> categoriesIn(const TextBox& box) { return typedWhole(box.content(), 2, numbers::kMostCategories); }

Text faultOfCategories(const TextBox& box) {
  const bool isMore = typedWhole(box.content(), 2, std::numeric_limits<std::int32_t>::max()).has_value();
  return isMore ? u"カテゴリ数は97以下にしてください" : u"カテゴリ数は2以上にしてください";
}

std::optional<CellFault> faultOf(const Text& typed) {
  if (trimmed(typed).empty() || countIn(typed)) return std::nullopt;
  return CellFault{{}, u"頻度わ0から32767までの数です", Text(kCaution)};
}

}  // namespace

frmRCkai::frmRCkai() : Form(kName, u"n×ｍカイ自乗検定") {
  Text1.labelledBy = &Label1;
  Text2.labelledBy = &Label2;
  Text3.labelledBy = &Label10;
  Text4.labelledBy = &Label3;
  Grid1.screenName = u"頻度の表";
  for (Control* control :
       {static_cast<Control*>(&Label3), static_cast<Control*>(&Grid1), static_cast<Control*>(&Label4),
        static_cast<Control*>(&Label7), static_cast<Control*>(&Label8), static_cast<Control*>(&Label9),
        static_cast<Control*>(&Label10), static_cast<Control*>(&Label11), static_cast<Control*>(&Command1)})
    control->place = Place::newRow;
  for (TextBox* box : {&Text1, &Text2}) box->setText(u"2");
  Text3.setText(u"1000");
  resize();
  wire();
  narrate();
}

void frmRCkai::wire() {
  wireCount(Text1, rows_);
  wireCount(Text2, columns_);
  Text3.onChange = [this, previous = Text3.content()]() mutable { talkRichChange(Text3, previous); };
  Text3.onGotFocus = [this] { markWhole(Text3); };
  onEnter(Text3, [this] { frmRCkai_Command1_Click(); });
  cells_.on.sentence = [this](int row, int col) { return cellSentence(row, col); };
  cells_.on.fault = [](int, int, const Text& typed) { return faultOf(typed); };
  cells_.on.stored = [](int, int, const Text& typed) {
    const auto count = countIn(typed);
    return count ? decimal(*count) : Text();
  };
  cells_.on.refusal = [this](int row, int col) {
    return row > rows_ || col > columns_ ? Text(u"合計わ変更できません") : Text();
  };
  cells_.on.onStored = [this](int, int) { compute(); };
  Command1.onClick = [this] { frmRCkai_Command1_Click(); };
  Command2.onClick = [this] { screen().unload(*this); };
  Command2.isCancel = true;
  onKeyDown = [this](KeyEvent& key) { frmRCkai_KeyDown(key); };
}

// Enter judges a count and goes on; a wrong one that is left otherwise goes back to what it was.
void frmRCkai::wireCount(TextBox& box, int& count) {
  box.onChange = [&box, previous = box.content()]() mutable { talkRichChange(box, previous); };
  box.onGotFocus = [&box] { markWhole(box); };
  onEnter(box, [this, &box, &count] {
    const auto typed = categoriesIn(box);
    if (!typed) {
      host().beep();
      return tellCellFault({{}, faultOfCategories(box), Text(kCaution)}, box);
    }
    takeCount(*typed, count);
    if (Control* next = nextControl(&box, 1)) next->setFocus();
  });
  box.onLostFocus = [this, &box, &count] {
    if (screen().activeForm() != this) return;
    if (const auto typed = categoriesIn(box)) return takeCount(*typed, count);
    const Text fault = faultOfCategories(box);
    {
      const Silence silence;
      box.setText(decimal(count));
    }
    host().beep();
    showOK(fault, kCaution);
  };
}

void frmRCkai::narrate() {
  Narration voice(*this);
  voice.explain(kExplanation)
      .box(Text1, u"行のカテゴリ数ﾃｷｽﾄﾎﾞｯｸｽ")
      .box(Text2, u"列のカテゴリ数ﾃｷｽﾄﾎﾞｯｸｽ")
      .box(Text4, [this] { return cellSentence(cells_.row(), cells_.col()); })
      .say(Grid1, [this] { return cellSentence(cells_.row(), cells_.col()); })
      .box(Text3, u"試行回数ﾃｷｽﾄﾎﾞｯｸｽ");
  for (Button* button : {&Command1, &Command2}) voice.say(*button, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ");
}

// --- The table -----------------------------------------------------------------------------------------------

void frmRCkai::xTitle() {
  for (int col = 1; col <= columns_; ++col) Grid1.setCellText(0, col, decimal(col));
  Grid1.setCellText(0, columns_ + 1, kTotal);
}

void frmRCkai::yTitle() {
  for (int row = 1; row <= rows_; ++row) Grid1.setCellText(row, 0, decimal(row));
  Grid1.setCellText(rows_ + 1, 0, kTotal);
}

// What stands in cells that stay is kept; the sums of before go.
void frmRCkai::resize() {
  const int oldRows = Grid1.rows() - 2, oldColumns = Grid1.cols() - 2;
  cells_.reshape([&] {
    for (int row = 0; row <= oldRows + 1; ++row) Grid1.setCellText(row, oldColumns + 1, {});
    for (int col = 0; col <= oldColumns + 1; ++col) Grid1.setCellText(oldRows + 1, col, {});
    Grid1.setRows(rows_ + 2);
    Grid1.setCols(columns_ + 2);
    cells_.setColumns(columns_ + 1, {columns_ + 1});
    xTitle();
    yTitle();
    Grid1.setCell(1, 1);
  });
  compute();
}

void frmRCkai::takeCount(int count, int& kept) {
  if (count == kept) return;
  kept = count;
  resize();
}

std::optional<numbers::Counts> frmRCkai::counts() const {
  numbers::Counts counts{rows_, columns_, {}};
  for (int row = 1; row <= rows_; ++row) {
    for (int col = 1; col <= columns_; ++col) {
      const auto count = countIn(Grid1.cell(row, col));
      if (!count) return std::nullopt;
      counts.cells.push_back(*count);
    }
  }
  return counts;
}

void frmRCkai::compute() {
  const auto table = counts();
  isWhole_ = table.has_value();
  test_ = table ? nmchiphi(*table) : numbers::ContingencyTest();
  isNews_ = isWhole_;
  simulated_.clear();
  Label11.setCaption({});
  Label13.setCaption({});
  showSums();
  showResult();
}

// Blank cells count nothing here: the sums grow while the table is filled.
void frmRCkai::showSums() {
  numbers::Counts table{rows_, columns_, {}};
  for (int row = 1; row <= rows_; ++row) {
    for (int col = 1; col <= columns_; ++col) table.cells.push_back(countIn(Grid1.cell(row, col)).value_or(0));
  }
  const numbers::CountSums sums = cellSum(table);
  const auto whole = [](double sum) { return decimal(static_cast<std::int64_t>(sum)); };
  for (int row = 1; row <= rows_; ++row)
    Grid1.setCellText(row, columns_ + 1, whole(sums.rows[static_cast<std::size_t>(row) - 1]));
  for (int col = 1; col <= columns_; ++col)
    Grid1.setCellText(rows_ + 1, col, whole(sums.columns[static_cast<std::size_t>(col) - 1]));
  Grid1.setCellText(rows_ + 1, columns_ + 1, whole(sums.total));
}

void frmRCkai::showResult() {
  const auto figure = [this](double value) { return test_.valid ? format(value, u"0.####################") : Text(); };
  Label4.setCaption(u"カイ自乗値=" + figure(test_.chi));
  Label5.setCaption(u"df=" + (test_.valid ? decimal(test_.df) : Text()));
  Label6.setCaption(u"P=" + (test_.p ? figure(*test_.p) : Text()));
  Label7.setCaption(u"連関値(C1)=" + figure(test_.c1));
  Label8.setCaption(u"連関値(C2)=" + figure(test_.c2));
  Label9.setCaption(u"連関値(C3)=" + figure(test_.c3));
}

// --- What is heard -------------------------------------------------------------------------------------------

// The result comes in front of the first cell that is entered behind it among the sums.
Text frmRCkai::cellSentence(int row, int col) {
  const auto place = [](int index, int last) { return index > last ? Text(kTotal) : decimal(index); };
  Text said = row > rows_ && std::exchange(isNews_, false) ? resultSentence() : Text();
  said += place(row, rows_) + u"ｷﾞｮｳ" + place(col, columns_) + u"ﾚﾂ" + markPause;
  const Text cell = cells_.textAt(row, col);
  return said + (cell.empty() ? Text(u"ブランク") : cell);
}

Text frmRCkai::resultSentence() const {
  if (!isWhole_) return u"記入されていないセルがあります。";
  if (!test_.valid) return u"合計が0の行か列があるため計算できません。";
  Text said = u"ｶｲ自乗値わ" + format(test_.chi, u"0.0000") + u"、自由度わ" + decimal(test_.df) + u"、";
  if (test_.p) said += u"確率わ" + spokenP(*test_.p) + u"。";
  if (!test_.p || test_.chi > kChiPRightUpTo) said += exactSentence(test_.exactP);
  said += u"連関値C1わ" + format(test_.c1, u"0.0000") + u"、C2わ" + format(test_.c2, u"0.0000") + u"、C3わ" +
          format(test_.c3, u"0.0000") + u"。";
  return said + simulated_;
}

void frmRCkai::frmRCkai_KeyDown(KeyEvent& key) {
  if (!key.is(key::PageDown, shift::Ctrl)) return;
  key.swallow();
  if (!cells_.store()) return;
  isNews_ = false;
  talkGated(resultSentence());
}

void frmRCkai::frmRCkai_Command1_Click() {
  if (!cells_.store()) return;
  const auto table = counts();
  if (!table || !test_.valid) {
    host().beep();
    return talkGated(resultSentence());
  }
  const auto trials = trialsFrom(Text3);
  if (!trials) return;
  numbers::ContingencyTrials chance(*table, test_.chi);
  const SimulationEnd end = simulate(*trials, [&](const numbers::RandomBits& bits) { return chance.once(bits); });
  Label11.setCaption(decimal(chance.hits()));
  Label13.setCaption(format(chance.rate(), u"##0.####%"));
  simulated_ = trialsSentence(end, chance.done(), chance.hits());
  isNews_ = false;
  talkBehindDialog(simulated_);
}

void registerContingencyForm() {
  registerForm<frmRCkai>();
  registerCommand(u"mnunm", [] {
    unload<frmRCkai>();
    form<frmRCkai>().showModal();
  });
}

}  // namespace zelko
