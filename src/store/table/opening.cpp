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
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr int kDataFile = 1;
// The new line behind the last record has a number too, of 32 bits.
constexpr std::int64_t kMostRecords = std::numeric_limits<std::int32_t>::max() - 1;

// Unlike a reload, the rows outside the file are slashed, so that the sheet shows them as such.
void fillFirstRows() {
  const std::int32_t count = recCount();
  if (count > 0) getRec(kDataFile, 1, recCache[1]);
  for (int i = 0; i < cacheSize; ++i) {
    CacheRow& row = recCache[static_cast<std::size_t>(i + 2)];
    const std::int32_t number = cacheBase + i;
    if (number > count)
      setRow(row, slashRec);
    else
      getRec(kDataFile, number, row);
  }
  if (count == 0) setRow(recCache[2], blankRec);
}

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
  closeAll();
  if (openRandom(kDataFile, joinName(drive, path), recLen) != FileError::none) {
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
  fillFirstRows();
  error.clear();
}

bool reopenData() {
  const Text name = joinName(docDrive, docPath);
  return fileExists(name) && openRandom(kDataFile, name, recLen) == FileError::none;
}

}  // namespace zelko
