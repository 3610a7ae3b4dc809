#include "editor/moves/commit.h"

#include "editor/main/inputbox.h"
#include "editor/show/showcell.h"
#include "parts/cells.h"
#include "store/records/records.h"
#include "store/table/cursor.h"

namespace zelko {

namespace {

struct CopiedCell {
  std::int32_t record = 0;
  std::int16_t item = 0;
  Text text;
};
CopiedCell copied;

bool holdsCopyOfCell() {
  const bool isThere = copied.record == curRec && copied.item == curItem;
  return isThere && inputText() == copied.text && currentCell() == copied.text;
}

}  // namespace

void fillBoxWithCell() {
  copied = {curRec, curItem, currentCell()};
  fillInputBox(copied.text);
}

void commitCell() {
  if (!holdsCopyOfCell()) setCell(currentRow(), curItem, inputText());
  dispAll(curItem);
}

bool commitBox() {
  const MoveScope move;
  const bool holdsText = !trimmed(inputText()).empty();
  if (holdsText) commitCell();
  flushRec();
  if (holdsText) emptyInputBox();
  return !storeWasHeldBack();
}

}  // namespace zelko
