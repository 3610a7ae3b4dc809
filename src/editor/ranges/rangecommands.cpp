#include "editor/ranges/rangecommands.h"

#include "editor/main/commands.h"
#include "editor/main/form1.h"
#include "editor/main/state.h"
#include "editor/moves/commit.h"
#include "editor/ranges/range.h"
#include "editor/ranges/rangekeys.h"
#include "editor/rewrites/rewrites.h"
#include "parts/cells.h"
#include "platform/host.h"
#include "platform/text/number.h"
#include "store/records/records.h"
#include "store/table/cursor.h"
#include "store/table/readonly.h"
#include "voice/dialogs.h"
#include "voice/heard.h"
#include "voice/talk.h"

namespace zelko {

namespace {

// After the command: a rewrite that was stopped or that failed has left the range.
void rangeUsed() {
  mode.clear();
  if (rangeKind != 0) dropRangeAndShow();
}

// The same where the command has no closing sentence of its own: the cell that is there now says that it is over,
// although the dialogs have just spoken.
void rangeUsedAndTold() {
  rangeUsed();
  const Form1& main = mainForm();
  nextIsHeard();
  talkReturn(u"", main.txtREC.content(), main.txtItemnum.content());
}

void deleteRecordRange(const RangeBlock& block) {
  const Text question = recordsWords(block) +
                        u"を　削除し、以後のﾃﾞｰﾀを前に詰めます。削除部はクリップファイルになります｡"
                        u"なお記録数の多い場合は時間がかかります。";
  if (!askYesNo(question, u"指定範囲の記録の排除")) return;
  mode = u"killrecord";
  if (!commitBox()) return;
  autoIdOn = 0;
  deleteRecords(block.rec1, block.rec2);
  rangeUsedAndTold();
}

void deleteItemRange(const RangeBlock& block) {
  if (itemCount == 0 || block.item1 == 0) return host().beep();
  if (!askYesNo(itemsWords(block) + u"　を　削除します。復活はできません。", u"項目の削除")) return;
  if (!commitBox()) return;
  deleteItems(block.item1, block.item2);
  rangeUsedAndTold();
}

void insertAtRecords(const RangeBlock& block) {
  mode = u"insertrecord";
  if (!commitBox()) return;
  autoIdOn = 0;
  curRec = block.rec1;
  loadCache(curRec);
  insertRecords(block.rec2 - block.rec1 + 1, docPath, docDrive);
  rangeUsed();
}

void insertAtItems(const RangeBlock& block) {
  const Text question = u"項目" + decimal(block.item1) + u"の前に" + decimal(block.item2 - block.item1 + 1) +
                        u" 項目、挿入します。挿入項目の項目幅は１、左詰め、項目名は適当な名前が付けられます。"
                        u"操作終了後ﾒﾆｭｰのﾋｮｳﾃﾞｻﾞｲﾝ項目幅の変更等の機能で必要に応じて変更して下さい。";
  if (!askYesNo(question, u"項目の挿入")) return;
  if (!commitBox()) return;
  insertItems(block.item1, block.item2);
  rangeUsedAndTold();
}

void clearBlock(const RangeBlock& block) {
  const Text question =
      rectangleWords(block) + u" のデータを消去し、ブランクに置き換えます。消去部はクリップファイルになります";
  if (!askYesNo(question, u"指定範囲データ消去")) return;
  if (!commitBox()) return;
  rangeClear(block.rec1, block.rec2, block.item1, block.item2);
  rangeUsedAndTold();
}

}  // namespace

void rangeDelete() {
  if (refusedAsReadOnly()) return;
  if (rangeKind == 1) return clearBlock(heldBlock());
  if (rangeKind == 2) return deleteRecordRange(heldBlock());
  deleteItemRange(heldBlock());
}

void rangeInsert() {
  if (refusedAsReadOnly()) return;
  if (rangeKind == 2) return insertAtRecords(heldBlock());
  insertAtItems(heldBlock());
}

void clearRangeData() {
  if (refusedAsReadOnly()) return;
  if (rangeKind != 0) return clearBlock(heldBlock());
  showOK(u"shift+矢印ｷｰで消去部分の範囲を指定した上で本メニューを選択して下さい", u"消去範囲の先指定要");
}

void registerRangeCommands() { registerCommand(u"mnuZDEL", clearRangeData); }

}  // namespace zelko
