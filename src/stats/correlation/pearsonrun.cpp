#include "stats/correlation/pearsonrun.h"

#include <algorithm>
#include <cmath>

#include "editor/main/commands.h"
#include "platform/text/format.h"
#include "platform/text/number.h"
#include "stats/correlation/itemform.h"
#include "stats/correlation/paircells.h"
#include "stats/correlation/pairwords.h"
#include "stats/frame/analysis.h"
#include "stats/frame/columns.h"
#include "stats/frame/run.h"
#include "stats/numbers/limits.h"
#include "stats/numbers/pearson.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr TextView kTitle = u"ﾋﾟｱｿﾝ積率相関係数";
constexpr double kHeardGap = 0.00005;  // the last digit that is told

// A coefficient of the report, of whole numbers, beside that of the values as they stand.
struct Pair {
  std::int16_t i = 0, j = 0;
  numbers::Pearson result;
  double gap() const { return std::abs(result.r - result.exact); }
};

class PearsonReport {
 public:
  PearsonReport(AnalysisRun& run, const ItemColumns& columns, bool standardised)
      : run_(run), columns_(columns), standardised_(standardised) {}

  // False where the user stopped it.
  bool write(const ItemList& group1, const ItemList& group2);
  // The figures of few pairs; of many how many there are, and where rounding moved one most.
  Text spokenFigures() const;
  CellNames cellNames() const { return cells_.names(); }

 private:
  void writePair(std::int16_t i, std::int16_t j);
  void writeFigures(std::int16_t i, std::int16_t j, const numbers::Pearson& result);
  bool isTold(std::int16_t i, std::int16_t j) const;

  AnalysisRun& run_;
  const ItemColumns& columns_;
  bool standardised_;
  std::int64_t done_ = 0;
  std::vector<Pair> pairs_;  // each two items once
  PairCells cells_;
};

bool PearsonReport::write(const ItemList& group1, const ItemList& group2) {
  for (const std::int16_t i : group1) {
    for (const std::int16_t j : group2) {
      if (!run_.step(done_)) return false;
      const Text line = decimal(i) + u"項目:/" + decimal(j) + u"実行中";
      run_.tellStep(line, line);
      writePair(i, j);
    }
    run_.report().line(TextView());
  }
  return true;
}

void PearsonReport::writePair(std::int16_t i, std::int16_t j) {
  const numbers::Pearson result = numbers::pearson(columns_.at(i), columns_.at(j), standardised_);
  Report& report = run_.report();
  report.line(u"[Item " + format(i, u"###/") + format(j, u"###] ***** (n=") + format(result.n, u"###)"));
  if (result.refused)
    report.line(u"cannot culc. for N<=1 or SD=0");
  else
    writeFigures(i, j, result);
  if (isTold(i, j)) pairs_.push_back({i, j, result});
  ++done_;
}

void PearsonReport::writeFigures(std::int16_t i, std::int16_t j, const numbers::Pearson& result) {
  const Text line =
      PrintLine().number(i).text(u",").number(j).text(u",").number(result.n).text(u",").number(result.r).line();
  cells_.add(run_.report().written(), line, i, j, {u"", u"", u"のＮ", u"の相関"});
  run_.report().line(line);
}

bool PearsonReport::isTold(std::int16_t i, std::int16_t j) const {
  if (i == j) return false;
  return std::ranges::none_of(pairs_, [=](const Pair& pair) { return pair.i == j && pair.j == i; });
}

Text spokenPair(const Pair& pair) {
  Text said = pairWords(pair.i, pair.j) + markPause;
  if (pair.result.refused) return said + u"計算不能。";
  said += format(pair.result.r, u"0.0000") + u"。";
  if (pair.gap() >= kHeardGap) said += u"丸めない値わ" + format(pair.result.exact, u"0.0000") + u"。";
  return said;
}

Text PearsonReport::spokenFigures() const {
  Text said;
  if (pairs_.size() <= kPairsTold) {
    for (const Pair& pair : pairs_) said += spokenPair(pair);
    return said;
  }
  const auto refused = std::ranges::count_if(pairs_, [](const Pair& pair) { return pair.result.refused; });
  said = decimal(static_cast<std::int64_t>(pairs_.size())) + u"組。";
  if (refused > 0) said += u"うち" + decimal(refused) + u"組わ計算不能。";
  const Pair& widest = *std::ranges::max_element(pairs_, {}, &Pair::gap);
  if (widest.gap() >= kHeardGap) said += u"丸めない値との差が最も大きいのわ、" + spokenPair(widest);
  return said;
}

ItemList joined(const ItemList& group1, const ItemList& group2) {
  ItemList all = group1;
  all.insert(all.end(), group2.begin(), group2.end());
  return all;
}

void runPearson(frmRP& form, const ItemList& group1, const ItemList& marked2) {
  const ItemList& group2 = form.Check1.value() == 1 ? marked2 : group1;
  AnalysisRun run(kTitle);
  if (!run.begin(kTitle)) return;
  numbers::requireAtMost(static_cast<std::size_t>(lastRecord - firstRecord + 1), numbers::kPearsonLimit, Text(kTitle),
                         u"記録");
  run.compute(kTitle, static_cast<std::int64_t>(group1.size() * group2.size()));
  const auto columns = readColumns(joined(group1, group2), kTitle);
  if (!columns) return run.stop();
  PearsonReport report(run, *columns, form.Check2.value() == 0);
  if (!report.write(group1, group2)) return run.stop();
  run.report().line(u"9999");
  run.report().line(PrintLine().text(u"RECORD").number(firstRecord).text(u"-").number(lastRecord));
  run.nameCells(report.cellNames());
  run.finish(form, report.spokenFigures() + finishedSentence(kTitle));
}

}  // namespace

void registerPearson() {
  registerCommand(u"mnuRP", [] {
    openItemForm({.word = u"RP",
                  .caption = Text(kTitle),
                  .explanation =
                      u"指定項目間のﾋﾟｱｿﾝ積率相関係数を求めます。なおﾃﾞｰﾀ値０のサンプルはＮより排除され計算されます。",
                  .secondGroup = ItemFormJob::SecondGroup::whereChecked,
                  .converts = true,
                  .run = runPearson});
  });
}

}  // namespace zelko
