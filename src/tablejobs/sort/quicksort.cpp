// The order by one key and by several, on records in memory.
#include "platform/host.h"
#include "store/records/records.h"
#include "tablejobs/sort/sortrange.h"

namespace zelko {

namespace {

constexpr int kSwapsBetweenLooks = 1024;

class Sorting {
 public:
  Sorting(SortRange& range, bool ascending, const SortGoesOn& goesOn)
      : range_(range), sign_(ascending ? 1 : -1), goesOn_(goesOn) {}

  // The smaller part by recursion, the larger one in the loop, so that the stack stays small.
  bool sort(std::int32_t first, std::int32_t last) {
    while (first < last) {
      if (!goesOn_()) return false;
      if (last == first + 1) {
        if (order(first, last) > 0) range_.swapRecords(first, last);
        return true;
      }
      range_.swapRecords(pickPivot(first, last), last);
      std::int32_t below = 0, above = 0;
      if (!partition(first, last, below, above)) return false;
      const bool firstIsSmaller = below - first < last - above;
      if (!(firstIsSmaller ? sort(first, below) : sort(above, last))) return false;
      firstIsSmaller ? first = above : last = below;
    }
    return true;
  }

 private:
  int order(std::int32_t a, std::int32_t b) const { return sign_ * range_.compareKeys(a, b); }

  // The pivot stands last. Afterwards what comes before it stands up to `below`, what comes behind it from `above` on,
  // and between them all that is equal.
  bool partition(std::int32_t first, std::int32_t last, std::int32_t& below, std::int32_t& above) {
    std::int32_t i = first, j = last;
    for (int swaps = 1; i < j; ++swaps) {
      if (swaps % kSwapsBetweenLooks == 0 && !goesOn_()) return false;
      while (i < j && order(i, last) <= 0) ++i;
      while (j > i && order(j, last) >= 0) --j;
      if (i < j) range_.swapRecords(i, j);
    }
    range_.swapRecords(i, last);
    below = above = i;
    for (std::int32_t at = i - 1; at >= first; --at)
      if (order(at, i) == 0) moveEqual(at, --below);
    for (std::int32_t at = i + 1; at <= last; ++at)
      if (order(at, i) == 0) moveEqual(at, ++above);
    --below;
    ++above;
    return true;
  }

  void moveEqual(std::int32_t from, std::int32_t to) {
    if (from != to) range_.swapRecords(from, to);
  }

  SortRange& range_;
  int sign_;
  const SortGoesOn& goesOn_;
};

Text trimmedCell(const SortRange& range, std::int32_t place, int item) {
  CacheRow row;
  const std::string_view record = range.record(place);
  std::copy_n(record.begin(), row.size(), row.begin());
  return trimmed(cellOfRow(row, item));
}

bool sameCellBytes(const SortRange& range, std::int32_t a, std::int32_t b, int item) {
  const auto start = static_cast<std::size_t>(itemStart[static_cast<std::size_t>(item)] - 1);
  const auto width = static_cast<std::size_t>(itemWidth[static_cast<std::size_t>(item)]);
  return range.record(a).substr(start, width) == range.record(b).substr(start, width);
}

}  // namespace

std::int32_t pickPivot(std::int32_t first, std::int32_t last) {
  const auto records = static_cast<std::uint64_t>(last - first + 1);
  return first + static_cast<std::int32_t>(host().randomBits() * records >> 32);
}

bool quickSortFile(SortRange& range, std::int32_t first, std::int32_t last, int item, bool ascending,
                   const SortGoesOn& goesOn) {
  checkSortable(first, last);
  range.cutKeys(item);
  return Sorting(range, ascending, goesOn).sort(first, last);
}

void nextKeyRun(const SortRange& range, std::int32_t& start, std::int32_t& end, int item) {
  start = end == range.last() ? range.first() : end + 1;
  const Text cell = trimmedCell(range, start, item);
  end = start;
  while (end < range.last() &&
         (sameCellBytes(range, start, end + 1, item) || trimmedCell(range, end + 1, item) == cell))
    ++end;
}

bool sortByKeys(SortRange& range, const std::vector<SortKey>& keys, const SortGoesOn& goesOn) {
  std::int32_t start = range.first(), end = range.last();
  if (start >= end) return true;
  for (std::size_t row = 0; row < keys.size(); ++row) {
    const SortKey& key = keys[row];
    if (row == 0) {
      if (!quickSortFile(range, start, end, key.item, key.ascending, goesOn)) return false;
      continue;
    }
    range.cutKeys(key.item);
    Sorting sorting(range, key.ascending, goesOn);
    do {
      nextKeyRun(range, start, end, keys[row - 1].item);
      if (!goesOn() || !sorting.sort(start, end)) return false;
    } while (end < range.last());
  }
  return true;
}

}  // namespace zelko
