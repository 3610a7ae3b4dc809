#include "tablejobs/search/searchscan.h"

#include <algorithm>

#include "store/records/records.h"
#include "store/records/walk.h"
#include "tablejobs/search/matcher.h"

namespace zelko {

namespace {

class Scanner {
 public:
  Scanner(const Matcher& matcher, const SearchWay& way, CellAt start, const std::function<bool(CellAt)>& onRecord)
      : matcher_(matcher), way_(way), start_(start), onRecord_(onRecord) {}

  // The records in their order, beginning with the given item of the first one; with `ends` up to the start of the
  // round.
  bool goOver(std::int32_t first, std::int32_t last, std::int16_t item, bool ends) {
    Walk walk;
    walk.first = std::min(first, last);
    walk.last = std::max(first, last);
    walk.towardsHead = way_.towardsHead;
    const WalkEnd end = walkRecords(walk, [&](const WalkedRecord& record) {
      const std::int16_t from = record.number() == first ? item : firstItem();
      return look(record, from, ends && record.number() == last ? start_.item : lastItem());
    });
    if (end == WalkEnd::failed) scan_.end = ScanEnd::failed;
    return end == WalkEnd::done;
  }

  Scan result() const { return scan_; }
  void cameRound() { scan_.at = start_; }

  std::int16_t firstItem() const { return way_.towardsHead ? itemCount : std::int16_t{0}; }
  std::int16_t lastItem() const { return way_.towardsHead ? std::int16_t{0} : itemCount; }

 private:
  bool look(const WalkedRecord& record, std::int16_t from, std::int16_t to) {
    scan_.at = {record.number(), way_.allItems ? from : way_.item};
    if (!onRecord_(scan_.at)) {
      scan_.end = ScanEnd::stopped;
      return false;
    }
    const bool hit = way_.allItems ? anyHits(record, from, to) : hits(record, way_.item);
    if (hit) scan_.end = ScanEnd::hit;
    return !hit;
  }

  bool anyHits(const WalkedRecord& record, std::int16_t from, std::int16_t to) {
    scan_.at.item = to;
    if (!matcher_.mayHit(record.bytes())) return false;
    const std::int16_t step = way_.towardsHead ? -1 : 1;
    for (std::int16_t item = from;; item = static_cast<std::int16_t>(item + step)) {
      scan_.at.item = item;
      if (hits(record, item)) return true;
      if (item == to) return false;
    }
  }

  bool hits(const WalkedRecord& record, std::int16_t item) const {
    return matcher_.mayHit(record.cellBytes(item)) && matcher_.hits(record.cell(item));
  }

  const Matcher& matcher_;
  const SearchWay& way_;
  const CellAt start_;
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

Scan scanCells(const Matcher& matcher, const SearchWay& way, CellAt from, CellAt start,
               const std::function<bool(CellAt)>& onRecord) {
  const std::int32_t count = recCount();
  start.record = std::clamp(start.record, 1, std::max(count, 1));
  start.item = std::clamp<std::int16_t>(start.item, 0, itemCount);
  Scanner scanner(matcher, way, start, onRecord);
  std::int32_t first = from.record;
  std::int16_t item = from.item;
  if (isPast(from, start, way)) {
    if (!scanner.goOver(first, way.towardsHead ? 1 : count, item, false)) return scanner.result();
    first = way.towardsHead ? count : 1;
    item = scanner.firstItem();
  }
  if (scanner.goOver(first, start.record, item, true)) scanner.cameRound();
  return scanner.result();
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
