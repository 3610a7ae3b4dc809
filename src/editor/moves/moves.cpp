#include "editor/moves/moves.h"

#include "editor/main/inputbox.h"
#include "editor/main/state.h"
#include "editor/moves/commit.h"
#include "editor/moves/idauto.h"
#include "editor/show/sheet.h"
#include "editor/show/showcell.h"
#include "platform/host.h"
#include "store/records/records.h"
#include "store/table/cursor.h"

namespace zelko {
namespace {

void show() { showCell(static_cast<float>(curRec), curItem, u"", u""); }

void clearInput() {
  emptyInputBox();
  focusInputBox();
}

// The row of a record, where the cache holds it.
CacheRow* rowInCache(std::int32_t record) {
  std::int64_t index = std::int64_t{record} - cacheBase + 2;
  if (index < 2 || index >= kCacheRows) return nullptr;
  return &recCache[static_cast<std::size_t>(index)];
}

// Steps to the next entry item; true when that went past the last item.
bool advanceToEntryItem() {
  bool wrapped = false;
  for (int steps = 0; steps <= itemCount; ++steps) {
    if (++curItem > itemCount) {
      curItem = 0;
      wrapped = true;
    }
    if (entryItem[static_cast<std::size_t>(curItem)] == 1) break;
  }
  return wrapped;
}

// One item on; true where the next record has shown the cell already.
bool stepItem(MoveFor what) {
  bool wrapped = allItemsOn == 1 ? ++curItem > itemCount : advanceToEntryItem();
  if (!wrapped) return false;
  if (allItemsOn == 1) curItem = 0;
  std::int32_t before = curRec;
  nextRec(curItem, what);
  // A refused step has shown nothing, and the item has changed all the same.
  return allItemsOn != 1 && curRec != before;
}

void stepBack() {
  --curRec;
  if (autoIdOn != 1) return;
  autoIdValue -= 1;
  stampId();
}

}  // namespace

void nextItem(MoveFor what) {
  if (stepItem(what) || what == MoveFor::range) return;
  show();
  dispAll(curItem);
  clearInput();
}

void prevItem(MoveFor what) {
  if (--curItem < 0) {
    if (curRec == 1) {
      host().beep();
      curItem = 0;
      return;
    }
    curItem = itemCount;
    prevRec(curItem, what);
  }
  if (what == MoveFor::range) return;
  emptyInputBox();
  dispAll(curItem);
  show();
  focusInputBox();
}

void nextRec(std::int16_t& item, MoveFor what) {
  const bool choosing = what == MoveFor::range;
  if (!choosing && !flushRec() && storeWasHeldBack()) return;
  std::int32_t count = recCount();
  if (curRec > count) return host().beep();
  if (curRec == count) {
    if (CacheRow* row = rowInCache(curRec + 1)) setRow(*row, blankRec);
  }
  ++curRec;
  if (choosing) return;
  loadCache(curRec);
  if (autoIdOn == 1) {
    autoIdValue += 1;
    stampId();
  }
  dispAll(item);
  show();
  clearInput();
}

void prevRec(std::int16_t& item, MoveFor what) {
  const bool choosing = what == MoveFor::range;
  if (!choosing && !flushRec() && storeWasHeldBack()) return;
  if (curRec == 1) return host().beep();
  CacheRow* left = rowInCache(curRec);
  if (curRec > recCount() && left && rowBytes(*left) == blankRec) setRow(*left, slashRec);
  // Off the cache there is no row to stamp or to show: the cursor stays.
  if (curRec - 1 < cacheBase) {
    host().beep();
  } else {
    stepBack();
    if (choosing) return;
    cacheScrollUp();
  }
  dispAll(item);
  show();
  if (!choosing) clearInput();
}

void reloadCur(int keepRange) {
  loadCache(curRec);
  mode.clear();
  if (keepRange != 1) {
    hideRangeMask();
    dropRange();
  }
  show();
  dispAll(curItem);
  showTitle();
}

void goTo(std::int32_t record, std::int16_t item) {
  autoIdOn = 0;
  curRec = record;
  curItem = item;
  loadCache(curRec);
  dispAll(curItem);
  show();
}

void jumpTo(std::int32_t record, std::int16_t item) {
  if (!commitBox()) return;
  goTo(record, item);
}

}  // namespace zelko
