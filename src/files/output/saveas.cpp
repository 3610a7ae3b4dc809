#include "files/output/saveas.h"

#include "editor/main/commands.h"
#include "editor/moves/moves.h"
#include "files/output/output.h"
#include "files/output/outputending.h"
#include "files/output/outputform.h"
#include "files/picker/pickeropening.h"
#include "platform/host.h"
#include "store/records/appender.h"
#include "store/records/records.h"
#include "store/records/walk.h"
#include "store/table/cursor.h"
#include "store/table/itemfile.h"
#include "store/table/notice.h"
#include "voice/dialogs.h"
#include "voice/talk.h"

namespace zelko {

namespace {

enum class Copy { done, notOpened, failed, stopped };

// The item file comes last: until then everything is taken back where something fails or the user stops it. The
// output may be the open table itself: the records that were there at the start are copied.
Copy copyTable(const Text& fullName) {
  if (!mayTakeOutput(fullName)) return Copy::notOpened;
  RecordAppender output;
  if (output.open(fullName) != FileError::none) return Copy::notOpened;
  const Walk walk{.last = recCount(), .work = u"ﾌｧｲﾙ保存中"};
  const auto append = [&output](const WalkedRecord& record) { return output.append(record.bytes()); };
  const WalkEnd end = walkRecords(walk, append);
  if (end == WalkEnd::stopped) return Copy::stopped;
  Text drive, path;
  splitName(fullName, drive, path);
  if (end != WalkEnd::done || !output.finish() || !writeKFile(path, drive)) return Copy::failed;
  output.keep();
  return Copy::done;
}

void saveAs(const Text& fullName) {
  switch (copyTable(fullName)) {
    case Copy::notOpened:
      return tellFailure(u"出力ﾌｧｲﾙが開けません。もう一度確認してください", u"出力ﾌｧｲﾙが開けない");
    case Copy::failed:
      return tellWriteError();
    case Copy::stopped:
      return talkBehindDialog(u"保存を中止しました。新しいﾌｧｲﾙには何も書き込まれていません");
    case Copy::done:
      break;
  }
  askWhereToWork(u"元のﾌｧｲﾙで作業しますか、元のﾌｧｲﾙの場合　はい　、新ﾌｧｲﾙの場合 いいえ を押して下さい。",
                 u"作業終了しました!");
  const bool toOutput = msgAnswer == kNo;
  mode.clear();
  if (toOutput) {
    workInOutput(fullName, form<formHOZON>());
    return;
  }
  // Where the user is now is news, whatever the dialog said a moment ago.
  talkLast = 0;
  closeOutputDialog();
  reloadCur();
}

void openSaveAs() {
  if (docPath.empty()) return host().beep();
  storeTypedCell();
  mode = u"saveas";
  showOutputDialog(besideTable({}));
  if (mode == u"saveas") mode.clear();
}

}  // namespace

void registerSaveAs() {
  registerOutputJob(u"saveas", {saveAs, {}});
  registerCommand(u"mnuRESAS", openSaveAs);
}

}  // namespace zelko
