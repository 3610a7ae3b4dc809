#include "stats/correlation/spearmanrun.h"

#include "platform/host.h"
#include "platform/text/format.h"
#include "platform/text/number.h"
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

void writeResult(Report& report, const numbers::Spearman& result) {
  for (const int position : result.omitted)
    report.line(PrintLine().text(u"     Invalid (A) [0] Data Nr=").number(position));
  if (result.tooFew) return report.line(u"Ｎ＜２のため計算不能");
  report.line(PrintLine()
                  .text(u"   Rs=")
                  .number(result.consistency)
                  .text(u"  CONSISTENCY    ")
                  .text(u"     Rs=")
                  .number(result.correctness)
                  .text(u"  CORRECTNESS"));
  report.line(PrintLine().text(u"   n=").number(result.n).text(u"  CR=").number(result.cr));
}

struct Told {
  std::int64_t pairs = 0, refused = 0;
  Text last;  // the figures of the last pair that has any
};

Text figures(std::int16_t i, std::int16_t j, const numbers::Spearman& result) {
  return u"項目" + decimal(i) + u"と" + decimal(j) + u"、N" + decimal(result.n) + u"、Rsわ" +
         format(result.consistency, u"0.0000") + u"、CRわ" + format(result.cr, u"0.0000") + u"。";
}

// False where the user stopped it.
bool writePairs(AnalysisRun& run, const ItemColumns& columns, const Items& group1, const Items& group2, Told& told) {
  for (const std::int16_t i : group1) {
    for (const std::int16_t j : group2) {
      if (!run.step(told.pairs)) return false;
      const Text first = itemLine(i).line(), second = itemLine(j).line();
      run.tellStep(first + kLineEnd + second + u"　計算中．．．", first + markPause + second + u"　計算中．．．");
      for (const TextView line : {TextView(), TextView(first), TextView(second)}) run.report().line(line);
      const numbers::Spearman result = numbers::spearman(columns.at(i), columns.at(j));
      writeResult(run.report(), result);
      ++told.pairs;
      if (result.tooFew)
        ++told.refused;
      else
        told.last = figures(i, j, result);
    }
  }
  return true;
}

Text closing(const Told& told) {
  Text said = decimal(told.pairs) + u"組";
  if (told.refused > 0) said += u"、うち" + decimal(told.refused) + u"組わＮ＜２のため計算不能";
  said += u"。";
  if (told.pairs - told.refused == 1) said += told.last;
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
  const auto columns = readColumns(all, kTitle);
  Told told;
  if (columns) run.compute(kTitle, static_cast<std::int64_t>(group1.size() * group2.size()));
  if (columns && writePairs(run, *columns, group1, group2, told)) {
    run.finish(form, closing(told));
    return;
  }
  host().beep();
  run.stop();
}

}  // namespace zelko
