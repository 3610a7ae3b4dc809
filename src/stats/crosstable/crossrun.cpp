#include "stats/crosstable/crossrun.h"

#include "editor/main/commands.h"
#include "platform/fault.h"
#include "platform/text/format.h"
#include "platform/text/number.h"
#include "stats/correlation/itemform.h"
#include "stats/correlation/pairwords.h"
#include "stats/crosstable/crosslines.h"
#include "stats/crosstable/crossnames.h"
#include "stats/crosstable/simulation.h"
#include "stats/frame/analysis.h"
#include "stats/frame/columns.h"
#include "stats/frame/run.h"
#include "stats/numbers/limits.h"
#include "store/table/table.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr TextView kTitle = u"クロス集計";
// More records than the four kinds of cells (in the square, without one or the other category) can count.
constexpr std::int32_t kMostRecords = 4 * 32767;

TextView nameOf(std::int16_t item) { return itemName[static_cast<std::size_t>(item)]; }

struct PairDone {
  std::int16_t i = 0, j = 0;
  numbers::CrossTest test;
  bool hasResult() const { return test.refusal == numbers::CrossTest::Refusal::none && test.df > 0; }
};

class CrossReport {
 public:
  CrossReport(AnalysisRun& run, const ItemColumns& columns) : run_(run), columns_(columns) {}

  // False where the user stopped it.
  bool write(const ItemList& group1, const ItemList& group2);
  Text closing() const;
  CellNames cellNames() const { return names_.names(); }

 private:
  void writePair(std::int16_t i, std::int16_t j);

  AnalysisRun& run_;
  const ItemColumns& columns_;
  std::vector<PairDone> pairs_;
  CrossNames names_;
};

bool CrossReport::write(const ItemList& group1, const ItemList& group2) {
  for (const std::int16_t i : group1) {
    for (const std::int16_t j : group2) {
      if (!run_.step(static_cast<std::int64_t>(pairs_.size()))) return false;
      writePair(i, j);
    }
  }
  return true;
}

void CrossReport::writePair(std::int16_t i, std::int16_t j) {
  const Text heading = crossHeading(i, trimmed(nameOf(i)), j, trimmed(nameOf(j)));
  run_.tellStep(heading, decimal(i) + u"ｺｳﾓｸ" + u"と" + decimal(j) + u"のｸﾛｽ実行中");
  const numbers::CrossTable table = numbers::crossTable(columns_.at(i), columns_.at(j));
  const numbers::CrossTest test = crossTest(table);
  run_.report().line(heading);
  const std::vector<Text> lines = crossLines(table, test);
  names_.add(run_.report().written(), lines, itemWord(i), itemWord(j));
  for (const Text& line : lines) run_.report().line(line);
  run_.report().line(TextView());
  pairs_.push_back({i, j, test});
}

// Why there is no test of these tables.
TextView refusalWords(numbers::CrossTest::Refusal refusal) {
  using enum numbers::CrossTest::Refusal;
  switch (refusal) {
    case tooLarge:
      return u"カテゴリーが多すぎるため";
    case noTotal:
      return u"数えられる記録がないため";
    case emptyCell:
      return u"度数が0のセルがあるため";
    case none:
      break;
  }
  return u"カテゴリーが一つしかないため";
}

Text spokenResult(const PairDone& pair) {
  const numbers::CrossTest& test = pair.test;
  Text said = pairWords(pair.i, pair.j) + markPause;
  if (!pair.hasResult()) return said + Text(refusalWords(test.refusal)) + u"、ｶｲ検定不能。";
  said += u"ｶｲ自乗値" + format(test.chi, u"0.00") + u"、自由度" + decimal(test.df) + u"、連関値" +
          format(test.phi, u"0.000") + u"、確率" + spokenP(test.p) + u"。";
  if (test.chi > kChiPRightUpTo) said += exactSentence(test.exactP);
  return said;
}

Text CrossReport::closing() const {
  const PairDone& last = pairs_.back();
  Text said = decimal(last.i) + u"ｺｳﾓｸ" + u"と" + decimal(last.j) + u"のｸﾛｽ終了。";
  if (pairs_.size() <= kPairsTold) {
    for (const PairDone& pair : pairs_) said += spokenResult(pair);
  } else {
    said += decimal(static_cast<std::int64_t>(pairs_.size())) + u"組。";
  }
  return said + finishedSentence(kTitle);
}

void runCross(frmRP& form, const ItemList& group1, const ItemList& group2) {
  AnalysisRun run(kTitle);
  if (!run.begin(kTitle)) return;
  run.report().line(recordsOfGroups(firstRecord, lastRecord));
  if (lastRecord - firstRecord >= kMostRecords) numbers::stop(kTitle, kOverflow);
  ItemList all = group1;
  all.insert(all.end(), group2.begin(), group2.end());
  run.compute(kTitle, static_cast<std::int64_t>(group1.size() * group2.size()));
  const auto columns = readColumns(all, kTitle);
  if (!columns) return run.stop();
  CrossReport report(run, *columns);
  if (!report.write(group1, group2)) return run.stop();
  run.nameCells(report.cellNames());
  run.finish(form, report.closing(), true);
}

}  // namespace

void registerCrossReport() {
  registerCommand(u"mnuCROS", [] {
    openItemForm({.word = u"CROS",
                  .caption = Text(kTitle),
                  .explanation = u"群1の項目と群2の項目のすべての組のｸﾛｽ集計をし、連関値とｶｲ自乗検定を求めます。"
                                 u"ﾃﾞｰﾀ値わ1から30で、31以上わ30とします。値0とブランクわ検定から除かれます。",
                  .secondGroup = ItemFormJob::SecondGroup::always,
                  .run = runCross});
  });
}

}  // namespace zelko
