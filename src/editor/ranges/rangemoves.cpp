#include "editor/ranges/rangemoves.h"

#include "editor/main/commands.h"
#include "editor/main/state.h"
#include "editor/moves/commit.h"
#include "editor/ranges/range.h"
#include "editor/ranges/rangekeys.h"
#include "editor/ranges/targetdialog.h"
#include "platform/host.h"
#include "store/records/records.h"
#include "store/table/cursor.h"
#include "store/table/readonly.h"
#include "voice/dialogs.h"

namespace zelko {

namespace {

constexpr TextView kMoveItems =
    u"一連の項目（マスク範囲の項目）を移動します。左右矢印キーで、移動点項目を指定して下さい。"
    u"今の移動点項目にある項目は、移動された項目の後に、連なり、移動後の空白になった部分は、詰められます。"
    u"CRキーで項目の移動が実行。中止の場合はESCを。";
constexpr TextView kMoveRecords =
    u"一連の記録を移動します。上下矢印キーで、記録移動点を指定して下さい。"
    u"今の移動点にある記録は、移動された記録の後に、連なり、移動後の空白になった部分は、詰められます。"
    u"CRキーで記録の移動が実行。中止の場合はESCを。";
constexpr TextView kCopyData =
    u"（マスク範囲）の項目ﾃﾞｰﾀをｺﾋﾟｰします。←→ｷｰで緑のマスクを動かし移動点を指定して下さい｡"
    u"ｺﾋﾟｰ先範囲がﾜｰｸｼｰﾄからあふれた場合､あふれ部分は無くなります。又､各ﾃﾞｰﾀはｺﾋﾟｰ先の項目幅に従います";
constexpr TextView kMoveData =
    u"（マスク範囲）の項目ﾃﾞｰﾀを移動します。←→ｷｰで緑のマスクを動かし移動点を指定して下さい｡"
    u"移動先範囲がﾜｰｸｼｰﾄからあふれた場合､あふれ部分は無くなります。又､各ﾃﾞｰﾀは移動先の項目幅に従います";

void refuseAndDrop() {
  host().beep();
  dropRangeAndShow();
}

// Where an item move begins to point; -1 where there is nothing to move past on that side.
int firstItemTarget(const RangeBlock& block, int direction) {
  if (direction > 0) return block.item2 + 2 <= itemCount ? block.item2 + 2 : -1;
  if (block.item1 == 0) return -1;
  return block.item1 < 3 ? 1 : block.item1 - 1;
}

std::int32_t firstRecordTarget(const RangeBlock& block, std::int32_t count, int direction) {
  if (direction > 0) return block.rec2 > count - 2 ? -1 : block.rec2 + 2;
  if (block.rec1 < 2) return -1;
  return block.rec1 < 3 ? 1 : block.rec1 - 1;
}

void startCopyByMenu() {
  if (refusedAsReadOnly()) return;
  if (rangeKind == 1) return startDataMove(false);
  showOK(
      u"shift+矢印ｷｰでｺﾋﾟｰ元の範囲を指定した上で本メニューを選択するか、矢印ｷｰを叩いて下さい。"
      u"ｺﾋﾟｰ先指定画面が表示されます。",
      u"ｺﾋﾟｰ範囲の先指定要");
}

void startMoveByMenu() {
  if (refusedAsReadOnly()) return;
  if (rangeKind == 1) return startDataMove(true);
  showOK(
      u"shift+矢印ｷｰで移動部分の範囲を指定した上で本メニューを選択するか、ctrl+矢印ｷｰを叩いて下さい。"
      u"移動先指定画面が表示されます。",
      u"ｺﾋﾟｰ範囲の先指定要");
}

// A menu entry has no direction: on where there is room, else back.
void startRecordMoveByMenu() {
  if (refusedAsReadOnly()) return;
  if (rangeKind == 2) return startRecordMove(firstRecordTarget(heldBlock(), recCount(), 1) > 0 ? 1 : -1);
  showOK(
      u"alt+上下矢印ｷｰで移動する記録の範囲を指定した上で本メニューを選択するか、上下矢印ｷｰを叩いて下さい。"
      u"移動先指定画面が表示されます",
      u"移動範囲の先指定要");
}

void startItemMoveByMenu() {
  if (refusedAsReadOnly()) return;
  if (rangeKind == 3) return startItemMove(firstItemTarget(heldBlock(), 1) >= 0 ? 1 : -1);
  showOK(
      u"alt+左右矢印ｷｰで移動する項目の範囲を指定した上で本メニューを選択するか、左右矢印ｷｰを叩いて下さい。"
      u"移動先指定画面が表示されます",
      u"移動範囲の先指定要");
}

}  // namespace

void startItemMove(int direction) {
  if (refusedAsReadOnly()) return;
  const RangeBlock block = heldBlock();
  if (block.item2 >= itemCount - 2 && block.item1 == 0) return refuseAndDrop();
  const int target = firstItemTarget(block, direction);
  if (target < 0) return host().beep();
  if (!commitBox()) return;
  moveTo = target;
  curItem = static_cast<std::int16_t>(target);
  pointAtTarget(Pointing::items, {u"moveitem", u"項目の移動", u"項目移動実行(CR)", kMoveItems});
}

void startRecordMove(int direction) {
  if (refusedAsReadOnly()) return;
  const RangeBlock block = heldBlock();
  const std::int32_t count = recCount();
  if (block.rec2 >= count - 2 && block.rec1 == 1) return refuseAndDrop();
  const std::int32_t target = firstRecordTarget(block, count, direction);
  if (target < 0) return host().beep();
  if (!commitBox()) return;
  moveTo = curRec = target;
  pointAtTarget(Pointing::records, {u"moverecord", u"記録の移動", u"記録移動実行(CR)", kMoveRecords});
}

void startDataMove(bool moves) {
  if (refusedAsReadOnly()) return;
  const RangeBlock block = heldBlock();
  if (!commitBox()) return;
  moveTo = curRec = block.rec1;
  curItem = block.item1;
  if (!moves) return pointAtTarget(Pointing::cellsToCopy, {u"copy", u"ﾃﾞｰﾀｺﾋﾟ-", u"ﾃﾞｰﾀｺﾋﾟ-(CR)", kCopyData});
  pointAtTarget(Pointing::cellsToMove, {u"move", u"ﾃﾞｰﾀ移動", u"ﾃﾞｰﾀ移動(CR)", kMoveData});
}

void registerRangeMoves() {
  registerCommand(u"mnuCOPY", startCopyByMenu);
  registerCommand(u"mnuMOVE", startMoveByMenu);
  registerCommand(u"mnuMREC", startRecordMoveByMenu);
  registerCommand(u"mnuMITEM", startItemMoveByMenu);
}

}  // namespace zelko
