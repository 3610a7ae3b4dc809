#include "tablejobs/search/searchscan.h"

#include <algorithm>

#include "store/records/records.h"
#include "store/records/walk.h"
#include "tablejobs/search/matcher.h"

namespace zelko {

namespace {

class Scanner {
 public:
  Scanner(const Matcher& matcher, const SearchWay& way, CellAt start, TextView work,
          const std::function<bool(CellAt)>& onRecord)
      : matcher_(matcher), way_(way), start_(start), work_(work), onRecord_(onRecord) {}

  // The records from `first` to `last`, beginning with the given item of the first one; with `ends` up to the start of
  // the round. False where that is not the end of it.
  bool goOver(std::int32_t first, std::int32_t last, std::int16_t item, bool ends) {
    Walk walk;
    walk.first = std::min(first, last);
    walk.last = std::max(first, last);
    walk.towardsHead = way_.towardsHead;
    walk.work = work_;
    const WalkEnd end = walkRecords(walk, [&](const WalkedRecord& record) {
      const std::int16_t from = record.number() == first ? item : firstItem();
      return goesOn(record, from, ends && record.number() == last ? start_.item : lastItem());
    });
    if (end == WalkEnd::failed) scan_.end = ScanEnd::failed;
    if (end == WalkEnd::stopped) scan_.end = ScanEnd::stopped;
    return end == WalkEnd::done;
  }

  Scan result() const { return scan_; }
  Scan cameRound() const { return {ScanEnd::cameRound, start_}; }

  std::int16_t firstItem() const { return way_.towardsHead ? itemCount : std::int16_t{0}; }
  std::int16_t lastItem() const { return way_.towardsHead ? std::int16_t{0} : itemCount; }

 private:
  bool goesOn(const WalkedRecord& record, std::int16_t from, std::int16_t to) {
    if (!onRecord_({record.number(), way_.allItems ? to : way_.item})) {
      scan_.end = ScanEnd::stopped;
      return false;
    }
    return way_.allItems ? !anyHits(record, from, to) : !hits(record, way_.item);
  }

  bool anyHits(const WalkedRecord& record, std::int16_t from, std::int16_t to) {
    if (!matcher_.mayHit(record.bytes())) return false;
    const int step = way_.towardsHead ? -1 : 1;
    for (int item = from; item != to + step; item += step)
      if (hits(record, static_cast<std::int16_t>(item))) return true;
    return false;
  }

  bool hits(const WalkedRecord& record, std::int16_t item) {
    if (!matcher_.mayHit(record.cellBytes(item)) || !matcher_.hits(record.cell(item))) return false;
    scan_ = {ScanEnd::hit, {record.number(), item}};
    return true;
  }

  const Matcher& matcher_;
  const SearchWay& way_;
  const CellAt start_;
  const Text work_;
  const std::function<bool(CellAt)>& onRecord_;
  Scan scan_;
};

bool isPast(CellAt from, CellAt start, const SearchWay& way) {
  if (!way.allItems) from.item = start.item;
  return way.towardsHead ? from < start : from > start;
}

}  // namespace

CellAt steppedOff(CellAt from, const SearchWay& way, std::int32_t count) {
  const std::int16_t step = way.towardsHead ? -1 : 1;
  if (way.allItems) {
    from.item = static_cast<std::int16_t>(from.item + step);
    if (from.item >= 0 && from.item <= itemCount) return from;
    from.item = way.towardsHead ? itemCount : std::int16_t{0};
  }
  from.record += step;
  if (from.record > count) from.record = 1;
  if (from.record < 1) from.record = count;
  return from;
}

Scan scanCells(const Matcher& matcher, const SearchWay& way, CellAt from, CellAt start, TextView work,
               const std::function<bool(CellAt)>& onRecord) {
  const std::int32_t count = recCount();
  start.record = std::clamp(start.record, 1, std::max(count, 1));
  start.item = std::clamp<std::int16_t>(start.item, 0, itemCount);
  Scanner scanner(matcher, way, start, work, onRecord);
  if (isPast(from, start, way)) {
    if (!scanner.goOver(from.record, way.towardsHead ? 1 : count, from.item, false)) return scanner.result();
    from = {way.towardsHead ? count : 1, scanner.firstItem()};
  }
  return scanner.goOver(from.record, start.record, from.item, true) ? scanner.cameRound() : scanner.result();
}

HitCount countCells(const Matcher& matcher, const SearchWay& way, CellAt cell, TextView work) {
  HitCount count;
  const auto lookAt = [&](const WalkedRecord& record, std::int16_t item) {
    if (!matcher.hits(record.cell(item))) return;
    const CellAt at = {record.number(), item};
    ++count.all;
    count.before += at < cell ? 1 : 0;
    count.isHit = count.isHit || at == cell;
  };
  Walk walk;
  walk.last = recCount();
  walk.work = work;
  const WalkEnd end = walkRecords(walk, [&](const WalkedRecord& record) {
    if (!matcher.mayHit(record.bytes())) return true;
    if (!way.allItems) lookAt(record, way.item);
    for (std::int16_t item = 0; way.allItems && item <= itemCount; ++item) lookAt(record, item);
    return true;
  });
  count.stopped = end == WalkEnd::stopped;
  count.failed = end == WalkEnd::failed;
  return count;
}

}  // namespace zelko
