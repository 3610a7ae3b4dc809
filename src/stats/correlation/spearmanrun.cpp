#include "stats/correlation/spearmanrun.h"

#include "platform/host.h"
#include "platform/text/format.h"
#include "platform/text/number.h"
#include "stats/correlation/paircells.h"
#include "stats/correlation/pairwords.h"
#include "stats/frame/analysis.h"
#include "stats/frame/columns.h"
#include "stats/frame/run.h"
#include "stats/numbers/limits.h"
#include "stats/numbers/spearman.h"
#include "store/table/table.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr TextView kTitle = u"ｽﾍﾟｱﾏﾝ順位関係数";
// The box that would keep zeros has no effect: they are omitted always.
constexpr bool kOmitsZeros = true;

using Items = std::vector<std::int16_t>;

Items itemsOf(ItemRun run) {
  Items items;
  for (std::int16_t item = run.first; item <= run.last; ++item) items.push_back(item);
  return items;
}

PrintLine itemLine(std::int16_t item) {
  PrintLine line;
  line.text(u"/ITEM ").number(item).text(u":" + trimmed(itemName[static_cast<std::size_t>(item)]));
  return line;
}

PrintLine accessLine(TextView head, const Items& items) {
  PrintLine line;
  line.text(head);
  for (const std::int16_t item : items) line.text(u"/").number(item);
  return line;
}

void writeHead(Report& report, const Items& group1, const Items& group2) {
  report.line(recordsOfAccess(firstRecord, lastRecord));
  report.line(accessLine(u"/Access Item ", group1));
  report.line(TextView());
  report.line(accessLine(u"/Access another Item ", group2));
  report.line(TextView());
  report.line(kOmitsZeros ? TextView(u"/Omission 0 ") : TextView(u"/Not Omissio 0"));
}

struct Pair {
  std::int16_t i = 0, j = 0;
  numbers::Spearman result;
};

void writeResult(Report& report, const Pair& pair, PairCells& cells) {
  const numbers::Spearman& result = pair.result;
  for (const int position : result.omitted)
    report.line(PrintLine().text(u"     Invalid (A) [0] Data Nr=").number(position));
  if (result.tooFew) return report.line(u"Ｎ＜２のため計算不能");
  const Text rs = PrintLine()
                      .text(u"   Rs=")
                      .number(result.consistency)
                      .text(u"  CONSISTENCY    ")
                      .text(u"     Rs=")
                      .number(result.correctness)
                      .text(u"  CORRECTNESS")
                      .line();
  cells.add(report.written(), rs, pair.i, pair.j, {u"", u"のRs、CONSISTENCY", u"", u"", u"のRs、CORRECTNESS", u""});
  report.line(rs);
  const Text cr = PrintLine().text(u"   n=").number(result.n).text(u"  CR=").number(result.cr).line();
  cells.add(report.written(), cr, pair.i, pair.j, {u"", u"のＮ", u"", u"のCR"});
  report.line(cr);
}

Text spokenPair(const Pair& pair) {
  Text said = pairWords(pair.i, pair.j) + markPause;
  if (pair.result.tooFew) return said + u"Ｎ＜２のため計算不能。";
  return said + u"Rsわ" + format(pair.result.consistency, u"0.0000") + u"、CRわ" + format(pair.result.cr, u"0.0000") +
         u"。";
}

// Fewer pairs than there should be where the user stopped it.
std::vector<Pair> writePairs(AnalysisRun& run, const ItemColumns& columns, const Items& group1, const Items& group2) {
  PairCells cells;
  std::vector<Pair> pairs;
  for (const std::int16_t i : group1) {
    for (const std::int16_t j : group2) {
      if (!run.step(static_cast<std::int64_t>(pairs.size()))) return pairs;
      const Text first = itemLine(i).line(), second = itemLine(j).line();
      run.tellStep(first + kLineEnd + second + u"　計算中．．．", first + markPause + second + u"　計算中．．．");
      for (const TextView line : {TextView(), TextView(first), TextView(second)}) run.report().line(line);
      pairs.push_back({i, j, numbers::spearman(columns.at(i), columns.at(j))});
      writeResult(run.report(), pairs.back(), cells);
      pairs.back().result.omitted.clear();
    }
  }
  run.nameCells(cells.names());
  return pairs;
}

Text closing(const std::vector<Pair>& pairs) {
  Text said;
  if (pairs.size() <= kPairsTold)
    for (const Pair& pair : pairs) said += spokenPair(pair);
  else
    said = decimal(static_cast<std::int64_t>(pairs.size())) + u"組。";
  return said + finishedSentence(kTitle);
}

}  // namespace

void runSpearman(Form& form, ItemRun run1, ItemRun run2, TextView folder, bool anew) {
  const Items group1 = itemsOf(run1), group2 = itemsOf(run2);
  AnalysisRun run(kTitle);
  if (!run.begin(folder, anew, kTitle)) return;
  writeHead(run.report(), group1, group2);
  numbers::requireAtMost(static_cast<std::size_t>(lastRecord - firstRecord + 1), numbers::kSpearmanLimit, Text(kTitle),
                         u"記録");
  Items all = group1;
  all.insert(all.end(), group2.begin(), group2.end());
  const std::size_t count = group1.size() * group2.size();
  run.compute(kTitle, static_cast<std::int64_t>(count));
  std::vector<Pair> pairs;
  if (const auto columns = readColumns(all, kTitle)) pairs = writePairs(run, *columns, group1, group2);
  if (pairs.size() == count) {
    run.finish(form, closing(pairs));
    return;
  }
  host().beep();
  run.stop();
}

}  // namespace zelko
