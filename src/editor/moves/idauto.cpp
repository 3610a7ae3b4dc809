#include "editor/moves/idauto.h"

#include <cmath>
#include <limits>

#include "editor/main/form1.h"
#include "editor/main/state.h"
#include "editor/show/showcell.h"
#include "parts/ask/typed.h"
#include "platform/host.h"
#include "platform/text/number.h"
#include "platform/text/width.h"
#include "store/records/records.h"
#include "store/table/cursor.h"
#include "store/table/table.h"
#include "voice/dialogs.h"
#include "voice/talk.h"

namespace zelko {

void stampId() {
  Text number = trimmed(str(autoIdValue));
  setCell(currentRow(), 0, number);
  if (curItem == 0) idText = number;
}

void idAuto() {
  if (itemCount == 0) {
    showOK(u"項目区切り数０の場合は、この機能は使えません", u"注意");
    return;
  }
  if (autoIdOn == 0) {
    autoIdOn = 1;
    const Text answer = talkAsk(u"ＩＤ項目は自動更新されます。初期値を入れて下さい。", u"ID番号の初期値", u"1");
    const double first = answer.empty() ? 0 : typedVal(toHalfWidth(answer)).value_or(HUGE_VAL);
    const bool holdable = std::fabs(first) <= std::numeric_limits<float>::max();
    if (answer.empty() || !holdable) {
      autoIdOn = 0;
      if (!holdable) host().beep();
      return;
    }
    autoIdValue = static_cast<float>(first);
    stampId();
  } else {
    autoIdOn = 0;
  }
  showCell(static_cast<float>(curRec), curItem, {}, {});
  dispAll(curItem);
  const Form1& main = mainForm();
  if (autoIdOn == 1)
    talkBehindDialog(main.Label4.caption() + main.Label13.caption());
  else
    talkGated(u"ＩＤ項目の自動更新を解除しました。");
}

}  // namespace zelko
