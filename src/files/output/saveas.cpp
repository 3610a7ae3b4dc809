#include "files/output/saveas.h"

#include "editor/main/commands.h"
#include "files/output/output.h"
#include "files/output/outputending.h"
#include "files/output/outputform.h"
#include "files/picker/pickeropening.h"
#include "platform/host.h"
#include "store/records/appender.h"
#include "store/records/records.h"
#include "store/records/walk.h"
#include "store/table/itemfile.h"
#include "store/table/notice.h"
#include "voice/dialogs.h"

namespace zelko {

namespace {

enum class Copy { done, notOpened, stopped, failed };

// The count is taken before the first record is written: the output may be the open table itself.
WalkEnd appendRecords(RecordAppender& output) {
  Walk walk;
  walk.last = recCount();
  walk.work = u"新ﾌｧｲﾙ作成中";
  return walkRecords(walk, [&](const WalkedRecord& record) { return output.append(record.bytes()); });
}

// The item file comes last: until then all of it can be taken back, which the appender does.
Copy copyTable(const Text& fullName) {
  RecordAppender output;
  if (!mayTakeOutput(fullName) || output.open(fullName) != FileError::none) return Copy::notOpened;
  const WalkEnd end = appendRecords(output);
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
      return talkBehindDialog(u"中止しました。新しい記録は書き込まれていません。");
    case Copy::done:
      break;
  }
  endInOutput(fullName, form<formHOZON>(),
              u"元のﾌｧｲﾙで作業しますか、元のﾌｧｲﾙの場合　はい　、新ﾌｧｲﾙの場合 いいえ を押して下さい。",
              u"作業終了しました!");
}

void openSaveAs() {
  if (docPath.empty()) return host().beep();
  storeTypedCell();
  showOutputDialog(u"saveas", besideTable({}));
}

}  // namespace

void registerSaveAs() {
  registerOutputJob(u"saveas", {saveAs, {}, OutputManner::copies});
  registerCommand(u"mnuRESAS", openSaveAs);
}

}  // namespace zelko
