#include "stats/numbers/cells.h"

#include <algorithm>
#include <set>

#include "platform/fault.h"
#include "stats/numbers/anova.h"
#include "stats/numbers/limits.h"

namespace zelko::numbers {

namespace {

constexpr std::size_t kMostGroups = 255;

template <class Test>
std::optional<CellPlace> firstCell(const CellCounts& counts, Test test) {
  for (int a = 1; a <= counts.levels[0]; ++a) {
    for (int b = 1; b <= counts.levels[1]; ++b) {
      for (int c = 1; c <= counts.levels[2]; ++c) {
        if (test(counts.at(a, b, c))) return CellPlace{a, b, c};
      }
    }
  }
  return std::nullopt;
}

}  // namespace

CellCounts cellCounts(std::span<const int> a, std::span<const int> b, std::span<const int> c) {
  CellCounts counts;
  const std::span<const int> groups[] = {a, b, c};
  for (std::size_t factor = 0; factor < 3; ++factor) {
    for (const int group : groups[factor]) {
      if (group < 1) stop(u"分散分析", kSubscript);
      requireAtMost(static_cast<std::size_t>(group), kMostGroups, u"分散分析", u"群番号");
      counts.levels[factor] = std::max(counts.levels[factor], group);
    }
  }
  if (*std::max_element(counts.levels.begin(), counts.levels.end()) > kLevelLimit) return counts;
  counts.n.resize(static_cast<std::size_t>(counts.levels[0]) * counts.levels[1] * counts.levels[2]);
  for (std::size_t i = 0; i < a.size(); ++i) ++counts.n[counts.index(a[i], b[i], c.empty() ? 1 : c[i])];
  return counts;
}

std::optional<CellPlace> firstCellBelow(const CellCounts& counts, int least) {
  return firstCell(counts, [least](int n) { return n < least; });
}

std::optional<CellPlace> firstCellOtherThan(const CellCounts& counts, int wanted) {
  return firstCell(counts, [wanted](int n) { return n != wanted; });
}

bool sizesDiffer(const CellCounts& counts) {
  return !counts.n.empty() && firstCellOtherThan(counts, counts.n.front()).has_value();
}

bool levelsDiffer(const CellCounts& counts, int factor) {
  for (int other = 0; other < 3; ++other) {
    if (other == factor) continue;
    std::vector<std::set<int>> met(static_cast<std::size_t>(counts.levels[other]));
    CellPlace place;
    for (place[0] = 1; place[0] <= counts.levels[0]; ++place[0]) {
      for (place[1] = 1; place[1] <= counts.levels[1]; ++place[1]) {
        for (place[2] = 1; place[2] <= counts.levels[2]; ++place[2]) {
          if (counts.at(place[0], place[1], place[2]) > 0) met[place[other] - 1].insert(place[factor]);
        }
      }
    }
    const auto isOther = [&](const std::set<int>& levels) { return levels.size() != met.front().size(); };
    if (std::any_of(met.begin(), met.end(), isOther)) return true;
  }
  return false;
}

}  // namespace zelko::numbers
