#include "editor/ranges/datamove.h"

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "store/records/records.h"
#include "store/records/walk.h"
#include "store/table/notice.h"
#include "voice/heard.h"

namespace zelko {

namespace {

constexpr int kDataFile = 1;

struct Copying {
  const RangeBlock& block;
  std::int32_t toRec;
  std::int16_t toItem;
  bool moves;
  bool unread = false;  // a record that was to be copied could not be read

  bool isSource(std::int32_t record) const { return record >= block.rec1 && record <= block.rec2; }
  std::int32_t sourceOf(std::int32_t record) const { return record - toRec + block.rec1; }
};

// True where the walk came to its end; else the user has been told why not.
bool changed(Walk walk, Copying& copying, const std::function<bool(ChangedRecord&)>& change) {
  walk.work = copying.moves ? u"ﾃﾞｰﾀ移動中" : u"ﾃﾞｰﾀｺﾋﾟｰ中";
  const WalkEnd end = changeRecords(walk, change);
  if (copying.unread) tellReadError();
  if (end == WalkEnd::stopped)
    talkBehindDialog(copying.moves ? u"ﾃﾞｰﾀ移動を中止しました。ここまでの分わ、移動しました"
                                   : u"ﾃﾞｰﾀｺﾋﾟｰを中止しました。ここまでの分わ、ｺﾋﾟｰしました");
  return end == WalkEnd::done;
}

// The file grows before anything is put: a full disk is met while nothing is lost.
bool growTo(std::int32_t last, Copying& copying) {
  return changed({.first = recCount() + 1, .last = last, .lengthens = true}, copying,
                 [](ChangedRecord&) { return true; });
}

// Cells as they are to be put; none where the record is not read.
bool readCells(const Copying& copying, const ChangedRecord& target, std::vector<Text>& cells) {
  const std::int32_t source = copying.sourceOf(target.number());
  CacheRow row;
  if (source == target.number())
    std::copy_n(target.bytes().begin(), row.size(), row.begin());
  else if (!getRec(kDataFile, source, row))
    return false;
  for (int item = copying.block.item1; item <= copying.block.item2; ++item)
    cells.push_back(trimmed(cellOfRow(row, item)));
  return true;
}

bool copyInto(Copying& copying, ChangedRecord& record) {
  std::vector<Text> cells;
  const bool isTarget = copying.isSource(copying.sourceOf(record.number()));
  copying.unread = isTarget && !readCells(copying, record, cells);
  if (copying.unread) return false;
  if (copying.moves && copying.isSource(record.number()))
    for (int item = copying.block.item1; item <= copying.block.item2; ++item) record.setCell(item, {});
  int item = copying.toItem;
  for (const Text& cell : cells)
    if (item <= record.shape().lastItem()) record.setCell(item++, cell);
  return true;
}

// Each record is read before it is changed, and no source is blanked before its copy stands: towards the end from the
// last record on, towards the head from the first.
bool copyRecords(Copying& copying, std::int32_t first, std::int32_t last) {
  const Walk walk{.first = first, .last = last, .towardsHead = copying.toRec > copying.block.rec1};
  return changed(walk, copying, [&](ChangedRecord& record) { return copyInto(copying, record); });
}

}  // namespace

bool copyBlock(const RangeBlock& block, std::int32_t toRec, std::int16_t toItem, bool moves) {
  const std::int32_t lastTo = toRec + block.rec2 - block.rec1;
  Copying copying{block, toRec, toItem, moves};
  if (!growTo(lastTo, copying)) return false;
  const bool apart = toRec > block.rec2 || lastTo < block.rec1;
  if (!apart) return copyRecords(copying, std::min(toRec, block.rec1), std::max(lastTo, block.rec2));
  return copyRecords(copying, toRec, lastTo) && (!moves || copyRecords(copying, block.rec1, block.rec2));
}

}  // namespace zelko
