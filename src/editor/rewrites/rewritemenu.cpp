// The menu entries of the rewrites: with a finished range as its key would, else on the record or item of the cursor.
#include "editor/main/commands.h"
#include "editor/main/state.h"
#include "editor/moves/commit.h"
#include "editor/ranges/rangekeys.h"
#include "editor/rewrites/rewrites.h"
#include "editor/rewrites/widthform.h"
#include "parts/ask/typed.h"
#include "platform/host.h"
#include "platform/text/number.h"
#include "platform/text/width.h"
#include "store/records/records.h"
#include "store/table/cursor.h"
#include "store/table/readonly.h"
#include "voice/dialogs.h"

namespace zelko {
namespace {

constexpr std::int16_t kRecords = 2, kItems = 3;

bool hasTable() {
  if (!docPath.empty()) return true;
  host().beep();
  return false;
}

// The record or item of the cursor as a finished range, so that its key asks what it would ask for a range.
void takeCursorAsRange(std::int16_t kind) {
  rangeKind = kind;
  rangeRec1 = kind == kRecords ? curRec : 1;
  rangeRec2 = kind == kRecords ? curRec : recCount();
  rangeItem1 = kind == kRecords ? std::int16_t{0} : curItem;
  rangeItem2 = kind == kRecords ? itemCount : curItem;
}

void runRangeKey(std::int16_t kind, int code) {
  if (!hasTable()) return;
  const bool held = rangeKind == kind;
  if (!held) {
    if (rangeKind != 0) dropRangeAndShow();
    if (!commitBox()) return;
    if (kind == kRecords && curRec > recCount()) return host().beep();
    takeCursorAsRange(kind);
  }
  KeyEvent key{code, shift::None};
  finishedRangeKey(key);
  // A question answered with no leaves a range that the user never chose.
  if (!held && rangeKind != 0) dropRangeAndShow();
}

void insertAtCursor(std::int32_t count) {
  if (rangeKind != 0) dropRangeAndShow();
  if (!commitBox()) return;
  mode = u"insertrecord";
  insertRecords(count, docPath, docDrive);
}

void insertOne() {
  if (!hasTable()) return;
  rangeKind == kRecords ? runRangeKey(kRecords, key::Insert) : insertAtCursor(1);
}

void insertMany() {
  if (!hasTable()) return;
  if (rangeKind == kRecords) return runRangeKey(kRecords, key::Insert);
  const Text answer = talkAsk(u"今の記録の前に、何記録挿入しますか？なおﾌｧｲﾙの長さに応じて時間がかかる場合があります。",
                              u"複数記録挿入", u"1");
  if (trimmed(answer).empty()) return;
  const double count = typedVal(toHalfWidth(answer)).value_or(0);
  if (count < 1 || count > 999999 || count != static_cast<double>(static_cast<std::int32_t>(count)))
    return host().beep();
  insertAtCursor(static_cast<std::int32_t>(count));
}

void openWidth(int step) {
  if (!hasTable()) return;
  if (viewKind == 1) return showOK(u"個別記録表示中は項目幅変更は出来ません", u"注意");
  if (refusedAsReadOnly()) return;
  if (rangeKind != 0) dropRangeAndShow();
  if (!commitBox()) return;
  changeWidth(step);
}

}  // namespace

void registerRewrites() {
  registerForm<frmFLN>();
  registerCommand(u"mnuINSREC1", insertOne);
  registerCommand(u"mnuINSRECM", insertMany);
  registerCommand(u"mnuKILLREC1", [] { runRangeKey(kRecords, key::Delete); });
  registerCommand(u"menuRKILL", [] { runRangeKey(kRecords, key::Delete); });
  registerCommand(u"mnuINSITEM", [] { runRangeKey(kItems, key::Insert); });
  registerCommand(u"mnuKILLITEM", [] { runRangeKey(kItems, key::Delete); });
  registerCommand(u"mnuFLN", [] { openWidth(0); });
  registerCommand(u"widenItem", [] { openWidth(1); });
  registerCommand(u"narrowItem", [] { openWidth(-1); });
}

}  // namespace zelko
