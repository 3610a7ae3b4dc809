#include "editor/ranges/rangekeys.h"

#include "editor/formulas/sums.h"
#include "editor/main/inputbox.h"
#include "editor/main/state.h"
#include "editor/moves/commit.h"
#include "editor/ranges/range.h"
#include "editor/ranges/rangecommands.h"
#include "editor/ranges/rangedialog.h"
#include "editor/ranges/rangemoves.h"
#include "editor/ranges/rangeread.h"
#include "editor/show/sheet.h"
#include "editor/show/showcell.h"
#include "platform/host.h"
#include "store/records/records.h"
#include "store/table/cursor.h"
#include "voice/dialogs.h"

namespace zelko {

namespace {

bool isUpDown(int code) { return code == key::Up || code == key::Down; }
bool isLeftRight(int code) { return code == key::Left || code == key::Right; }
int directionOf(int code) { return code == key::Right || code == key::Down ? 1 : -1; }

// An arrow on the range: a rectangle is copied, with Ctrl moved; items go sideways, records up and down.
bool arrowKey(const KeyEvent& key) {
  if (!isUpDown(key.code) && !isLeftRight(key.code)) return false;
  if (rangeKind == 1 && (key.mask == shift::None || key.mask == shift::Ctrl)) {
    startDataMove(key.mask == shift::Ctrl);
    return true;
  }
  if (key.mask != shift::None) return false;
  if (rangeKind == 2 && isUpDown(key.code)) {
    startRecordMove(directionOf(key.code));
    return true;
  }
  if (rangeKind == 3 && isLeftRight(key.code)) {
    startItemMove(directionOf(key.code));
    return true;
  }
  return false;
}

}  // namespace

void startRange(int kind) {
  const std::int32_t count = recCount();
  if (curRec > count) return host().beep();
  if (viewKind == 1) return showOK(u"個別記録表示中は範囲の指定は出来ません", u"注意");
  if (!commitBox()) return;  // the box will be emptied on the way: what was typed belongs to this cell
  rangeKind = static_cast<std::int16_t>(kind);
  rangeRec1 = kind == 3 ? 1 : curRec;
  rangeRec2 = kind == 3 ? count : curRec;
  rangeItem1 = kind == 2 ? std::int16_t{0} : curItem;
  rangeItem2 = kind == 2 ? itemCount : curItem;
  form<frmHANI>().Label6.setCaption(u"どこまで？(ｶ-ｿﾙ移動+CR)");
  beginRange(rangeRec1, rangeRec2, rangeItem1, rangeItem2);
}

bool finishedRangeKey(const KeyEvent& key) {
  if (key.code == key::Shift && (key.mask & ~shift::Shift) == 0) {
    rangeReadAloud();
    return true;
  }
  if (key.is(key::Delete, shift::None)) {
    rangeDelete();
    return true;
  }
  if (key.is(key::Insert, shift::None) && rangeKind != 1) {
    rangeInsert();
    return true;
  }
  return arrowKey(key);
}

void dropRangeAndShow() {
  hideRangeMask();
  dropRange();
  dispAll(curItem);
  showCell(static_cast<float>(curRec), curItem, {}, {});
  focusInputBox();
}

bool isPlainSum(int code) { return code <= key::Num0 + 1; }

bool sumFitsRange(int code) {
  const bool oneRecord = rangeRec1 == rangeRec2, oneItem = rangeItem1 == rangeItem2;
  if (code == key::Num0) return oneRecord && !oneItem;
  if (code == key::Num0 + 1) return oneItem && !oneRecord;
  return true;
}

void sumOnFinishedRange(int code) {
  if (!sumFitsRange(code)) return host().beep();
  if (isPlainSum(code)) sumKeyOnRange(code);
  dropRangeAndShow();
  if (!isPlainSum(code)) sumKey(code);
}

}  // namespace zelko
