#include "editor/rangekeys.h"

#include "editor/form1.h"
#include "editor/moves.h"
#include "editor/sheet.h"
#include "editor/state.h"
#include "platform/host.h"
#include "store/cursor.h"
#include "store/records.h"
#include "voice/dialogs.h"

namespace zelko {

void startRange(int) {
  if (curRec > recCount()) {
    host().beep();
    return;
  }
  if (viewKind == 1) {
    showOK(u"個別記録表示中は範囲の指定は出来ません", u"注意");
    return;
  }
  host().beep();
}

bool finishedRangeKey(const KeyEvent&) { return false; }

void dropRangeAndShow() {
  hideRangeMask();
  dropRange();
  dispAll(curItem);
  showCell(static_cast<float>(curRec), curItem, {}, {});
  form<Form1>().txtinputbox.setFocus();
}

}  // namespace zelko
