#include "stats/distribution/itemdistribution.h"

#include <limits>

#include "parts/ask/ask.h"
#include "stats/distribution/plainnumber.h"
#include "stats/frame/analysis.h"

namespace zelko {

namespace {

constexpr TextView kTitle = u"図表描記のためのﾃﾞｰﾀ最小値の入力";

std::optional<double> askLimit(const Text& prompt) {
  // The edges are singles.
  constexpr double kMost = std::numeric_limits<float>::max();
  return askNumber({.prompt = prompt, .title = Text(kTitle), .wrong = u"数字を入力して下さい"}, -kMost, kMost);
}

}  // namespace

void ValueDistribution::measure() {
  spread = numbers::spreadOf(values);
  minV = spread.min;
  maxV = spread.max;
}

void ValueDistribution::count() {
  edges = numbers::classEdges(minV, maxV, classes);
  freq = numbers::classCounts(values, edges);
}

bool readValues(int item, std::vector<double>& values) {
  values.clear();
  return readAnalysisRecords(u"項目ﾃﾞｰﾀ度数分布", [&](const WalkedRecord& record) {
    const AnalysedCell cell = checkedCell(record, item);
    if (!cell.isNumber()) return true;
    values.push_back(cell.value);
    numbers::requireDistribution(values.size());
    return true;
  });
}

void askLimits(double& minV, double& maxV) {
  const Text equal = plainNumber(maxV) + u"でﾃﾞｰﾀがみな同じです" + u"図表作成のため任意の最大値を入力して下さい。";
  while (minV == maxV) {
    const auto upper = askLimit(equal);
    if (upper) maxV = *upper;
    const auto lower = upper ? askLimit(u"同じく、任意の最小値を入力して下さい。") : std::nullopt;
    minV = lower.value_or(maxV - 1);
    if (!lower) break;
  }
  if (minV > maxV) std::swap(minV, maxV);
}

}  // namespace zelko
