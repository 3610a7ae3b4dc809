#include "stats/numbers/frequencies.h"

#include <algorithm>
#include <cmath>

#include "stats/numbers/limits.h"

namespace zelko::numbers {

Frequencies frequencies(std::span<const std::u16string> cells) {
  requireAtMost(cells.size(), kFrequencyLimit, u"ﾃﾞｰﾀ頻度集計", u"記録");
  std::vector<std::u16string> sorted(cells.begin(), cells.end());
  std::sort(sorted.begin(), sorted.end());

  Frequencies result;
  result.n = static_cast<int>(cells.size());
  const std::u16string first = u"\u001f", last = kCountedMark;
  for (auto run = sorted.begin(); run != sorted.end();) {
    const auto end = std::upper_bound(run, sorted.end(), *run);
    if (*run != last) {
      const bool isListed = first < *run && *run < last;
      (isListed ? result.listed : result.hidden).push_back({*run, static_cast<int>(end - run)});
    }
    run = end;
  }
  return result;
}

int barLength(int count, int n) {
  return n > 0 ? static_cast<int>(std::nearbyint(static_cast<double>(count) / n * 100 / 2.5)) : 0;
}

}  // namespace zelko::numbers
