// Opening a table by its full name.
#include "store/table/opening.h"

#include <limits>

#include "platform/files/files.h"
#include "platform/text/number.h"
#include "store/records/records.h"
#include "store/rewrite/recovery.h"
#include "store/table/cursor.h"
#include "store/table/itemfile.h"
#include "store/table/notice.h"
#include "store/table/sharing.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr int kDataFile = 1;
// The new line behind the last record has a number too, of 32 bits.
constexpr std::int64_t kMostRecords = std::numeric_limits<std::int32_t>::max() - 1;

}  // namespace

void splitName(TextView fullName, Text& drive, Text& path) {
  drive.clear();
  path = fullName.starts_with(u'/') ? Text(fullName) : appDir + Text(fullName);
}

Text joinName(TextView drive, TextView path) { return drive.empty() ? Text(path) : Text(drive) + u":" + Text(path); }

void openTable(TextView fullName, Text& error) {
  Text drive, path;
  splitName(fullName, drive, path);
  error = u"error";
  if (!offerRecovery(joinName(drive, path))) return closeAll();
  TableDescription table;
  if (!readToOpen(path, drive, table)) return;
  const Text name = joinName(drive, path);
  const Sharing sharing = askToShare(name);
  closeAll();
  if (sharing == Sharing::notAtAll) return;
  if (!openDataFile(name, sharing)) {
    tellFailure(u"Zelkoﾌｧｲﾙでないか、項目設定を記述したﾌｧｲﾙが不良です", u"項目挿入不可能");
    return;
  }
  if (fileLength(kDataFile) / recLen > kMostRecords) {
    closeAll();
    tellFailure(u"記録が" + decimal(kMostRecords) + u"件を超えるﾌｧｲﾙは扱えません", u"ﾌｧｲﾙ長エラー");
    return;
  }
  adopt(table);
  docDrive = drive;
  docPath = path;
  computeItemStart();
  curRec = 1;
  curItem = 0;
  cacheBase = 1;
  forgetToldFailure();
  fillCache();
  if (recCount() > 0) takeRow(1);
  error.clear();
}

bool reopenData() {
  const Text name = joinName(docDrive, docPath);
  return fileExists(name) && openDataFile(name, openedToRead() ? Sharing::toRead : Sharing::forWriting);
}

}  // namespace zelko
