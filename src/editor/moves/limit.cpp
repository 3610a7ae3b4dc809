#include "editor/moves/limit.h"

#include "editor/main/form1.h"
#include "editor/main/state.h"
#include "parts/ask/typed.h"
#include "platform/host.h"
#include "platform/text/number.h"
#include "platform/text/width.h"
#include "voice/dialogs.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr int kLongestLimit = 249;
constexpr Colour kYellow = 0x00FFFF;

Label& limitLabel() { return mainForm().Label8; }

void showLimit() {
  limitLabel().setCaption(u"入力字数制限:" + decimal(inputLimit));
  limitLabel().setBackColour(kYellow);
}

void clearLimit() {
  inputLimit = 0;
  limitAside = 0;
  limitLabel().setBackColour(kDesktopColour);
  limitLabel().setCaption(u"入力字数制限:項目幅");
}

void sayLimit() { talkBehindDialog(limitLabel().caption()); }

}  // namespace

Text limitCaption() { return inputLimit == 0 ? Text(u"字数制限:項目幅") : u"制限字数:" + decimal(inputLimit); }

void setLimit() {
  if (inputLimit != 0) {
    if (askYesNo(u"入力文字数を項目幅とします", u"データ入力字数制限")) {
      clearLimit();
      sayLimit();
    }
    return;
  }
  for (;;) {
    const Text answer = talkAsk(
        u"入力字数を制限します。入力字数を指定してください"
        u"\r\n なおスペースｷｰ　又はＥｎｄｷｰを叩きますと字数制限時でも制限を一時解除出来ます。"
        u"\r\n再度CTRL+bで字数制限は解除されます。",
        u"データ入力字数制限", {});
    const double wanted = typedVal(toHalfWidth(answer)).value_or(-1);
    if (answer.empty() || wanted == 0) return;
    if (wanted >= 1 && wanted <= kLongestLimit) {
      inputLimit = toInt16(wanted);
      limitAside = 0;
      showLimit();
      sayLimit();
      return;
    }
    host().beep();
  }
}

void switchLimitAside() {
  if (inputLimit != 0) {
    limitAside = inputLimit;
    inputLimit = 0;
    limitLabel().setCaption(u"入力字数制限一時解除");
    talkCtl(u"入力字数制限を一時解除します。もう一度スペースｷｰを叩くと入力字数制限が復活します");
  } else if (limitAside != 0) {
    inputLimit = limitAside;
    limitAside = 0;
    showLimit();
    talkCtl(u"入力字数制限を復活します。");
  }
}

}  // namespace zelko
