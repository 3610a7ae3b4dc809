#include "editor/main/dispatcher.h"

#include <algorithm>
#include <iterator>

#include "editor/formulas/sums.h"
#include "editor/main/commands.h"
#include "editor/main/exit.h"
#include "editor/main/form1.h"
#include "editor/main/speechmenu.h"
#include "editor/main/state.h"
#include "editor/moves/commit.h"
#include "editor/moves/jumps.h"
#include "editor/moves/limit.h"
#include "editor/moves/moves.h"
#include "editor/ranges/rangekeys.h"
#include "editor/show/sheet.h"
#include "editor/show/showcell.h"
#include "parts/cells.h"
#include "platform/host.h"
#include "store/records/records.h"
#include "store/table/cursor.h"
#include "store/table/readonly.h"
#include "voice/dialogs.h"
#include "voice/talk.h"

namespace zelko {

namespace {

TextBox& box() { return mainForm().txtinputbox; }
bool boxIsBlank() { return trimmed(box().content()).empty(); }

// --- The rows of the table of keys; each says whether it used the key. -------------------------------------

bool keyDown(int) {
  if (!commitBox()) return true;
  nextRec(curItem);
  return true;
}

bool keyUp(int) {
  if (!commitBox()) return true;
  prevRec(curItem);
  return true;
}

bool keyRight(int) {
  if (!boxIsBlank()) return false;
  nextItem();
  return true;
}

bool keyLeft(int) {
  if (!boxIsBlank()) return false;
  prevItem();
  return true;
}

bool toFirstRecord(int) {
  goToFirstRecord();
  return true;
}

bool toFirstRecordAndReport(int) {
  goToFirstRecordAndReport();
  return true;
}

bool toLastRecord(int) {
  goToLastRecord();
  return true;
}

bool toNewLine(int) {
  goToNewLine();
  return true;
}

bool toLastItem(int) {
  goToLastItem();
  return true;
}

bool toFirstItem(int) {
  goToFirstItem();
  return true;
}

bool insertOneRecord(int) {
  runCommand(u"mnuINSREC1");
  return true;
}

bool shiftDataRight(int) {
  if (!boxIsBlank()) return false;
  runCommand(u"mnuINS");
  return true;
}

// Nothing to erase there: a key that does nothing is heard as well.
bool eraseBack(int) {
  if (box().selStart() == 0 && box().selLength() == 0) host().beep();
  return false;
}

bool shiftDataLeft(int) {
  if (!boxIsBlank()) {
    if (box().selStart() == static_cast<int>(box().content().size())) host().beep();
    return false;
  }
  runCommand(u"mnuSLEFT");
  return true;
}

// Five items on or back, stopping at the end with a beep.
bool fiveItems(int direction) {
  const int wanted = curItem + 5 * direction;
  const int kept = std::clamp<int>(wanted, 0, itemCount);
  if (kept != wanted) host().beep();
  flushRec();
  if (storeWasHeldBack()) return true;
  curItem = static_cast<std::int16_t>(kept);
  loadCache(curRec);
  dispAll(curItem);
  showCell(static_cast<float>(curRec), curItem, {}, {});
  return true;
}

bool page(int direction) {
  if (!commitBox()) return true;
  const std::int32_t last = std::max(recCount(), 1);
  const std::int64_t wanted = std::int64_t{curRec} + direction * cacheSize;
  const auto kept = static_cast<std::int32_t>(std::clamp<std::int64_t>(wanted, 1, last));
  if (kept != wanted) host().beep();
  goTo(kept, curItem);
  return true;
}

bool limitKey(int) {
  if (boxIsBlank()) switchLimitAside();
  return false;  // the key is typed as well
}

bool widthKey(int direction) {
  if (viewKind == 1) {
    showOK(u"個別記録表示中は項目幅変更は出来ません", u"注意");
    return true;
  }
  if (refusedAsReadOnly()) return true;
  const int last = itemStart[itemCount] + itemWidth[itemCount] - 1;
  if (direction > 0 && last >= recLen) {
    host().beep();
    return true;
  }
  runCommand(direction > 0 ? u"widenItem" : u"narrowItem");
  return true;
}

bool speedKey(int) {
  stepSpeed();
  return true;
}

struct KeyRow {
  int code, mask;
  bool (*act)(int);
  int argument = 0;
};

constexpr KeyRow kKeyRows[] = {
    {key::Down, shift::None, keyDown},
    {key::Down, shift::Ctrl, toLastRecord},
    {key::PageDown, shift::Ctrl, toNewLine},
    {key::Up, shift::None, keyUp},
    {key::Up, shift::Ctrl, toFirstRecord},
    {key::PageUp, shift::Ctrl, toFirstRecordAndReport},
    {key::Right, shift::None, keyRight},
    {key::Right, shift::Ctrl, toLastItem},
    {key::Left, shift::None, keyLeft},
    {key::Left, shift::Ctrl, toFirstItem},
    {key::Insert, shift::ShiftCtrl, insertOneRecord},
    {key::Insert, shift::None, shiftDataRight},
    {key::Backspace, shift::None, eraseBack},
    {key::Delete, shift::None, shiftDataLeft},
    {'T', shift::Ctrl, fiveItems, 1},
    {'T', shift::ShiftCtrl, fiveItems, -1},
    {key::PageUp, shift::None, page, -1},
    {key::PageDown, shift::None, page, 1},
    {key::Space, shift::None, limitKey},
    {key::End, shift::None, limitKey},
    {key::Space, shift::Shift, widthKey, 1},
    {key::Space, shift::Ctrl, widthKey, -1},
    {key::function(12), shift::Shift, speedKey},
};

// --- The steps in their order. -------------------------------------------------------------------------------

bool isArrow(int code) { return code >= key::Left && code <= key::Down; }

// The kind of range that the key begins; 0 for none.
int rangeKindOf(const KeyEvent& key) {
  if (!isArrow(key.code)) return 0;
  const bool upDown = key.code == key::Up || key.code == key::Down;
  if (key.mask == shift::Alt) return upDown ? 2 : 3;
  if (key.mask != shift::Shift) return 0;
  return upDown || box().content().empty() ? 1 : 0;
}

void sumKeyDown(int code) {
  if (rangeKind == 0) {
    sumKey(code);
    return;
  }
  sumOnFinishedRange(code);
}

void escape(bool rangeDropped) {
  if (!box().content().empty()) {
    box().setText({});  // heard as an edit
  } else if (rangeDropped) {
    announceCell();  // the range went in silence
  } else {
    askToLeave();
  }
  dropRange();
}

bool runKeyRow(const KeyEvent& key) {
  const auto row =
      std::find_if(std::begin(kKeyRows), std::end(kKeyRows), [&](const KeyRow& r) { return key.is(r.code, r.mask); });
  if (row == std::end(kKeyRows)) return false;
  MoveScope moving;
  return row->act(row->argument);
}

// What the key does; true when it was used up.
bool actOn(const KeyEvent& key) {
  if (const int kind = rangeKindOf(key)) {
    startRange(kind);
    return true;
  }
  if (rangeKind != 0 && finishedRangeKey(key)) return true;
  if (key.is('F', shift::Ctrl)) {
    if (rangeKind != 0) flushRec();
    runCommand(u"mnuF");
    return true;
  }
  if (const int sum = sumKeyOf(key)) {
    sumKeyDown(sum);
    return true;
  }
  bool rangeDropped = false;
  if (rangeKind != 0 && key.code != key::Alt && key.code != key::Ctrl) {
    dropRangeAndShow();
    rangeDropped = true;
  }
  if (key.is(key::Esc, shift::None)) {
    escape(rangeDropped);
    return true;
  }
  return runKeyRow(key);
}

}  // namespace

void inputKeyDown(KeyEvent& key) {
  if (caretGuard) return;
  if (actOn(key)) key.swallow();
}

}  // namespace zelko
