#include "editor/main/exit.h"

#include "editor/main/form1.h"
#include "store/records/records.h"
#include "voice/dialogs.h"
#include "voice/heard.h"
#include "voice/talk.h"

namespace zelko {

void leaveProgram() {
  Form1& main = mainForm();
  main.storeNames();
  if (!docPath.empty() && !flushRec() && storeWasHeldBack()) return;
  waitPastGate();
  talkEnd();
  screen().unload(main);
}

void askToLeave() {
  if (!docPath.empty() && !flushRec() && storeWasHeldBack()) return;
  if (askYesNo(u"データ記入開始時escape入力がありました、Zelko終了しますか？", u"終了の確認")) leaveProgram();
}

}  // namespace zelko
