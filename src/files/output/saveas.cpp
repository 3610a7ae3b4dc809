#include "files/output/saveas.h"

#include "editor/main/commands.h"
#include "editor/moves/moves.h"
#include "files/output/output.h"
#include "files/output/outputending.h"
#include "files/output/outputform.h"
#include "files/picker/pickeropening.h"
#include "platform/files/files.h"
#include "platform/host.h"
#include "store/records/records.h"
#include "store/table/cursor.h"
#include "store/table/itemfile.h"
#include "store/table/notice.h"
#include "voice/dialogs.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr int kSource = 1, kOutput = 3;

enum class Copy { done, notOpened, failed };

// The count is taken before the first record is written: the output may be the open table itself.
bool appendRecords() {
  const std::int32_t count = recCount();
  auto at = static_cast<std::int32_t>(fileLength(kOutput) / recLen);
  CacheRow record;
  for (std::int32_t number = 1; number <= count; ++number) {
    if (!getRec(kSource, number, record) || putRecord(kOutput, ++at, record.data()) != FileError::none) return false;
    host().letEventsThrough();
  }
  return syncFile(kOutput) == FileError::none;
}

// The item file comes last: until then a failure can be taken back whole.
bool writeOutput(const Text& fullName) {
  Text drive, path;
  splitName(fullName, drive, path);
  const bool written = appendRecords();
  const bool closed = closeFile(kOutput) == FileError::none;
  return written && closed && writeKFile(path, drive);
}

Copy copyTable(const Text& fullName) {
  if (!mayTakeOutput(fullName)) return Copy::notOpened;
  const OutputBefore before(fullName);
  if (openRandom(kOutput, fullName, recLen) != FileError::none) return Copy::notOpened;
  if (writeOutput(fullName)) return Copy::done;
  before.putBack();
  return Copy::failed;
}

void saveAs(const Text& fullName) {
  switch (copyTable(fullName)) {
    case Copy::notOpened:
      return tellFailure(u"出力ﾌｧｲﾙが開けません。もう一度確認してください", u"出力ﾌｧｲﾙが開けない");
    case Copy::failed:
      return tellWriteError();
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
