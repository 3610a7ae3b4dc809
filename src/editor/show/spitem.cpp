#include "editor/show/spitem.h"

#include "editor/main/commands.h"
#include "editor/main/form1.h"
#include "editor/show/showcell.h"
#include "parts/ask/typed.h"
#include "platform/host.h"
#include "platform/text/number.h"
#include "platform/text/width.h"
#include "store/records/records.h"
#include "store/table/cursor.h"
#include "voice/dialogs.h"
#include "voice/narration.h"
#include "voice/talk.h"

namespace zelko {

frmSPITEM::frmSPITEM() : Form(kName, u"特定項目の表示") {
  onUnload = [] { spItem = kNoItem; };
  onKeyDown = [](KeyEvent& key) {
    if (!key.is(key::Esc, shift::None)) return;
    key.swallow();
    mainForm().activate();
  };
  Narration(*this).explain([this] { return markStop + Label1.caption(); });
}

Text spItemCaption() {
  if (spItem == kNoItem) return {};
  return decimal(spItem) + u":" + trimmed(itemName[spItem]);
}

Text spItemCell() { return spItem == kNoItem ? Text() : trimmed(cellOfRow(rowOf(curRec), spItem)); }

void refreshSpItem() {
  if (spItem == kNoItem) return;
  frmSPITEM& view = form<frmSPITEM>();
  view.setCaption(spItemCaption());
  view.Label1.setCaption(spItemCell());
}

void switchSpItem() {
  const bool wasSet = spItem != kNoItem;
  if (wasSet) {
    spItem = kNoItem;
    unload<frmSPITEM>();
  } else {
    const Text answer = talkAsk(
        u"指定項目ﾃﾞｰﾀを｡常時表示します｡ﾃﾞｰﾀ入力時参照のため"
        u"\r\n項目番号を入力してください｡もう一度このﾒﾆｭｰを選ぶと解除されます｡",
        u"常時ﾃﾞｰﾀ表示項目の設定", decimal(curItem));
    if (trimmed(answer).empty()) return;
    const double wanted = typedVal(toHalfWidth(answer)).value_or(-1);
    if (wanted < 0 || wanted > itemCount) {
      host().beep();
      return;
    }
    spItem = static_cast<std::uint16_t>(toInt32(wanted));
    refreshSpItem();
    form<frmSPITEM>().showWithoutFocus();
  }
  showCell(static_cast<float>(curRec), curItem, {}, {});
  dispAll(curItem);
  if (wasSet)
    talkGated(u"常時表示項目はありません" + markStop);
  else
    talkBehindDialog(spItemCaption() + markStop + spItemCell());
}

void registerSpItem() {
  registerForm<frmSPITEM>();
  registerCommand(u"mnuSPITEM", switchSpItem);
}

}  // namespace zelko
