#include "editor/moves/jumps.h"

#include <algorithm>
#include <cmath>

#include "editor/main/commands.h"
#include "editor/main/state.h"
#include "editor/moves/commit.h"
#include "editor/moves/moves.h"
#include "editor/show/showcell.h"
#include "parts/ask/typed.h"
#include "parts/cells.h"
#include "platform/host.h"
#include "platform/text/number.h"
#include "platform/text/width.h"
#include "store/records/records.h"
#include "store/table/cursor.h"
#include "voice/dialogs.h"

namespace zelko {

namespace {

std::int16_t firstDataItem() { return itemCount == 0 ? std::int16_t{0} : std::int16_t{1}; }

void goToItem(std::int16_t item) {
  curItem = item;
  dispAll(curItem);
  showCell(static_cast<float>(curRec), curItem, {}, {});
}

// A jump to where the cursor is already changes no number, and is heard all the same.
void jump(std::int32_t record, std::int16_t item) {
  const bool stays = record == curRec && item == curItem;
  goTo(record, item);
  if (stays) announceCell();
}

void jumpToItem(std::int16_t item) {
  const bool stays = item == curItem;
  goToItem(item);
  if (stays) announceCell();
}

}  // namespace

void goToFirstRecord() {
  MoveScope moving;
  if (!commitBox()) return;
  cacheBase = 1;
  jump(1, curItem);
}

void goToFirstRecordAndReport() {
  MoveScope moving;
  if (!commitBox()) return;
  cacheBase = 1;
  goTo(1, curItem);
}

void goToLastRecord() {
  MoveScope moving;
  if (!commitBox()) return;
  jump(std::max(recCount(), 1), curItem);
}

void goToNewLine() {
  MoveScope moving;
  if (!commitBox()) return;
  jump(recCount() + 1, curItem);
}

void goToLastItem() {
  MoveScope moving;
  if (!commitBox()) return;
  jumpToItem(itemCount);
}

void goToFirstItem() {
  MoveScope moving;
  if (!commitBox()) return;
  jumpToItem(firstDataItem());
}

void goHome() {
  MoveScope moving;
  if (!commitBox()) return;
  cacheBase = 1;
  jump(1, firstDataItem());
}

void goToNextRecordStart() {
  MoveScope moving;
  if (!commitBox()) return;
  if (curRec <= recCount()) curItem = firstDataItem();
  nextRec(curItem);
}

int targetOf(TextView answer, int from, int lowest, int highest) {
  const Text text = trimmed(toHalfWidth(answer));
  const bool relative = text.starts_with(u'+') || text.starts_with(u'-');
  const double wanted =
      std::nearbyint(typedVal(text).value_or(text.starts_with(u'-') ? -HUGE_VAL : HUGE_VAL)) + (relative ? from : 0);
  return static_cast<int>(std::clamp<double>(wanted, lowest, std::max(lowest, highest)));
}

void askRecord() {
  const Text answer =
      talkAsk(u"第何記録に飛びますか？（なお、＋－付きで数値を指定すると、今の記録からの相対指定になります",
              u"指定記録へ移動", {});
  if (trimmed(answer).empty()) return;
  waitPastGate();
  MoveScope moving;
  if (!commitBox()) return;
  goTo(targetOf(answer, curRec, 1, recCount()), curItem);
}

void askItem() {
  const Text answer =
      talkAsk(u"第何項目に飛びますか？（なお、＋－付きで数値を指定すると、今の項目からの相対指定になります",
              u"指定項目へ移動", {});
  if (trimmed(answer).empty()) return;
  waitPastGate();
  MoveScope moving;
  if (!commitBox()) return;
  goToItem(static_cast<std::int16_t>(targetOf(answer, curItem, 0, itemCount)));
}

void registerJumps() {
  registerCommand(u"mnuJUMP", askRecord);
  registerCommand(u"mnuHJ", askItem);
  registerCommand(u"mnuEXTD", goToLastRecord);
  registerCommand(u"mnuNr", goToNewLine);
  registerCommand(u"mnuEXTTOP", goToFirstRecord);
  registerCommand(u"mnuEXTR", goToLastItem);
  registerCommand(u"mnuEXTL", goToFirstItem);
  registerCommand(u"mnuHOME", goHome);
  registerCommand(u"mnuCTRLP", goToNextRecordStart);
}

}  // namespace zelko
