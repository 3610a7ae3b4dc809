#include "editor/moves/commit.h"

#include "editor/main/inputbox.h"
#include "editor/show/showcell.h"
#include "store/records/records.h"
#include "store/table/cursor.h"

namespace zelko {

void commitCell() {
  setCell(currentRow(), curItem, inputText());
  dispAll(curItem);
}

void commitBox() {
  const MoveScope move;
  const bool holdsText = !trimmed(inputText()).empty();
  if (holdsText) commitCell();
  flushRec();
  if (holdsText) emptyInputBox();
}

}  // namespace zelko
