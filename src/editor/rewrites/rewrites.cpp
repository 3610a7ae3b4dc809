// Rewrites that change which records there are, and the clearing of a rectangle.
#include "editor/rewrites/rewrites.h"

#include <algorithm>
#include <limits>

#include "editor/clip/clip.h"
#include "editor/moves/moves.h"
#include "editor/rewrites/rewriterun.h"
#include "editor/show/showcell.h"
#include "platform/host.h"
#include "platform/text/number.h"
#include "store/records/records.h"
#include "store/records/walk.h"
#include "store/table/cursor.h"
#include "store/table/readonly.h"
#include "voice/progress.h"
#include "voice/talk.h"

namespace zelko {
namespace {

bool refuse() {
  host().beep();
  reloadCur();
  return false;
}

// The range as the clip file takes it; false, and the command over, where the copy was stopped.
bool copiedToClip(std::int16_t kind, std::int32_t rec1, std::int32_t rec2, std::int16_t item1, std::int16_t item2) {
  rangeKind = kind;
  rangeRec1 = rec1;
  rangeRec2 = rec2;
  rangeItem1 = item1;
  rangeItem2 = item2;
  if (clipCopy()) return true;
  reloadCur();
  return false;
}

// Bytes behind the last item stay as they are.
void blankCells(ChangedRecord& record, std::int16_t item1, std::int16_t item2) {
  std::string data(record.data());
  for (int item = item1; item <= item2; ++item) {
    const CellPlace& cell = record.shape().at(item);
    std::fill_n(data.begin() + std::min<int>(cell.start, kDataBytes),
                std::min<int>(cell.length, kDataBytes - cell.start), ' ');
  }
  record.setData(data);
}

bool clearRecords(std::int32_t rec1, std::int32_t rec2, std::int16_t item1, std::int16_t item2) {
  Progress progress(u"消去中", rec2 - rec1 + 1);
  const WalkEnd end = changeRecords({.first = rec1, .last = rec2, .progress = &progress}, [&](ChangedRecord& record) {
    blankCells(record, item1, item2);
    return true;
  });
  if (end == WalkEnd::done) loadCache(curRec);
  return end == WalkEnd::done;
}

}  // namespace

bool insertRecords(std::int32_t count, TextView, TextView) {
  const std::int32_t records = recCount();
  if (count < 1 || count > std::numeric_limits<std::int32_t>::max() - 1 - records) return refuse();
  const std::int32_t before = std::clamp(curRec, 1, records + 1);
  const bool done = runRewrite({u"行挿入中", {stretchesWithInserted(records, before, count), {}}});
  if (done) talkNow(decimal(count) + u"業挿入されました。");
  return done;
}

bool deleteRecords(std::int32_t first, std::int32_t last) {
  if (refusedAsReadOnly()) {
    reloadCur();
    return false;
  }
  const std::int32_t records = recCount();
  if (first > last) std::swap(first, last);
  first = std::max(first, 1);
  last = std::min(last, records);
  if (first > last) return refuse();
  if (!copiedToClip(2, first, last, 0, itemCount)) return false;
  const auto followRecord = [=] {
    if (curRec > last)
      curRec -= last - first + 1;
    else
      curRec = std::min(curRec, first);
  };
  return runRewrite({u"記録削除中", {stretchesWithDeleted(records, first, last), {}}, nullptr, followRecord});
}

bool moveRecords(std::int32_t first, std::int32_t last, std::int32_t destination, TextView, TextView) {
  const std::int32_t records = recCount();
  if (first > last) std::swap(first, last);
  const bool inside = first >= 1 && last <= records && destination >= 1 && destination <= records + 1;
  if (!inside || (destination >= first && destination <= last)) return refuse();
  mode = u"moverecord";
  return runRewrite({u"記録移動中", {stretchesWithMoved(records, first, last, destination), {}}});
}

bool rangeClear(std::int32_t rec1, std::int32_t rec2, std::int16_t item1, std::int16_t item2) {
  if (refusedAsReadOnly()) {
    reloadCur();
    return false;
  }
  if (rec1 > rec2) std::swap(rec1, rec2);
  if (item1 > item2) std::swap(item1, item2);
  rec1 = std::max(rec1, 1);
  rec2 = std::min(rec2, recCount());
  item1 = std::max<std::int16_t>(item1, 0);
  item2 = std::min(item2, itemCount);
  if (rec1 > rec2 || item1 > item2) return refuse();
  if (!copiedToClip(1, rec1, rec2, item1, item2)) return false;
  const bool done = clearRecords(rec1, rec2, item1, item2);
  showTitle();
  reloadCur();
  return done;
}

}  // namespace zelko
