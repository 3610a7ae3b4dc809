#include "store/table/notice.h"

#include "platform/host.h"
#include "voice/dialogs.h"
#include "voice/heard.h"

namespace zelko {

void tellFailure(TextView text, TextView title) {
  waitPastGate();
  host().beep();
  showOK(text, title);
  // The box below has said where it stood before the key; what the key leads to is heard too.
  nextIsHeard();
}

void tellReadOnly() {
  tellFailure(
      u"書き込み禁止ﾌｧｲﾙです。解除は｢ﾌｧｲﾙ(F)｣-｢書き込み禁止設定/解除｣を選ぶか、ReadOnly表示ラベルをｸﾘｯｸしてください。",
      u"書き込み禁止の注意");
}

void tellWriteError() { tellFailure(u"書き込み時にエラーが出ました。", u"書き込みエラー"); }

void tellReadError() { tellFailure(u"読み込み時にエラーが出ました。", u"読み込みエラー"); }

}  // namespace zelko
