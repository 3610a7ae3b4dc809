// The cursor while a range is being chosen.
#include <algorithm>
#include <iterator>
#include <utility>

#include "editor/main/state.h"
#include "editor/moves/moves.h"
#include "editor/ranges/rangedialog.h"
#include "platform/host.h"
#include "store/records/records.h"
#include "store/table/cursor.h"

namespace zelko {

namespace {

void down() {
  nextRec(curItem, MoveFor::range);
  curRec = std::min(curRec, recCount());
}

void toLastRecord() { curRec = recCount(); }

void up() { prevRec(curItem, MoveFor::range); }

void toFirstRecord() {
  autoIdOn = 0;
  curRec = 1;
  loadCache(curRec);
}

// The last cell of the table has no next one: there the far corner stays.
void right() {
  const std::int16_t item = curItem;
  nextItem(MoveFor::range);
  if (curRec <= recCount()) return;
  curRec = recCount();
  curItem = item;
  host().beep();
}

void toLastItem() { curItem = itemCount; }

void left() { prevItem(MoveFor::range); }

void toFirstItem() { curItem = std::min<std::int16_t>(1, itemCount); }

void fiveItemsBack() {
  if (curItem < 5) host().beep();
  curItem = static_cast<std::int16_t>(std::max(curItem - 5, 0));
}

void pageUp() {
  const std::int32_t wanted = curRec - cacheSize / 2;
  if (wanted < 1) host().beep();
  curRec = std::max(wanted, 1);
}

// Moving records needs two of them behind the block.
void pageDown() {
  const std::int32_t last = rangeKind == 2 ? recCount() - 2 : recCount();
  const std::int64_t wanted = std::min<std::int64_t>(std::int64_t{curRec} + cacheSize / 2, last);
  if (wanted <= curRec) return host().beep();
  curRec = static_cast<std::int32_t>(wanted);
}

struct MoveRow {
  int code, mask;
  void (*move)();
};

constexpr MoveRow kMoveRows[] = {
    {key::Down, shift::Ctrl, toLastRecord}, {key::Down, shift::None, down},
    {key::Up, shift::Ctrl, toFirstRecord},  {key::Up, shift::None, up},
    {key::Right, shift::Ctrl, toLastItem},  {key::Right, shift::None, right},
    {key::Left, shift::Ctrl, toFirstItem},  {key::Left, shift::None, left},
    {'T', shift::ShiftCtrl, fiveItemsBack}, {key::PageUp, shift::None, pageUp},
    {key::PageDown, shift::None, pageDown},
};

}  // namespace

bool moveWhileChoosing(const KeyEvent& key) {
  const auto row = std::find_if(std::begin(kMoveRows), std::end(kMoveRows),
                                [&](const MoveRow& r) { return key.is(r.code, r.mask); });
  if (row == std::end(kMoveRows)) return false;
  // No number is stamped on the way, and like any jump the way to another record ends the numbering.
  const std::int32_t before = curRec;
  const std::int16_t numbering = std::exchange(autoIdOn, std::int16_t{0});
  row->move();
  if (curRec == before) autoIdOn = row->move == toFirstRecord ? std::int16_t{0} : numbering;
  return true;
}

}  // namespace zelko
