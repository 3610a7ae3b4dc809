#include "files/design/designapply.h"

#include <optional>
#include <utility>

#include "files/picker/pickeropening.h"
#include "platform/files/files.h"
#include "store/records/records.h"
#include "store/rewrite/rewrite.h"
#include "store/table/itemfile.h"
#include "store/table/notice.h"
#include "store/table/readonly.h"
#include "voice/progress.h"

namespace zelko {

namespace {

constexpr TextView kExtension = u".txt";

// An item file that may be replaced and put back.
class KeptItemFile {
 public:
  KeptItemFile(TextView path, TextView drive) : path_(path), drive_(drive) {
    existed_ = fileExists(itemFilePath(path, drive));
    readable_ = existed_ && readDescription(itemFilePath(path, drive), before_) == ReadResult::ok;
  }
  void putBack() const {
    if (readable_)
      writeKFileOf(path_, drive_, before_);
    else if (!existed_)
      deleteFile(itemFilePath(path_, drive_));
  }

 private:
  Text path_, drive_;
  bool existed_ = false, readable_ = false;
  TableDescription before_;
};

bool tellFailedWrite() {
  keepEditedTableOpen();
  tellWriteError();
  return false;
}

// The open table under its new description.
bool openAgain(TextView dataFile) {
  Text error;
  openTable(dataFile, error);
  if (!error.empty()) keepEditedTableOpen();
  if (error.empty()) forgetOldTable();
  return error.empty();
}

bool rewriteRecordsToo(TextView memo, const std::vector<DesignRow>& rows) {
  if (refusedAsReadOnly()) return false;
  const std::vector<ItemLine> items = itemsOf(rows);
  const RewritePlan plan{{{1, recCount()}}, redesignedCells(itemsOnDisk(), rows), false};
  const Text oldMemo = std::exchange(tableMemo, Text(memo));
  RewriteEnd end;
  {
    Progress progress(u"データ書き換え中", recCount());
    end = rewriteTable(plan, &items, [&progress](std::int64_t done) { return progress.step(done); });
  }
  if (end == RewriteEnd::done) return true;
  tableMemo = oldMemo;
  return end == RewriteEnd::failed ? tellFailedWrite() : false;
}

}  // namespace

Text tableNameTyped(TextView typed) {
  Text name = trimmed(typed);
  if (lowerCase(right(name, kExtension.size())) != kExtension) name += kExtension;
  const std::size_t slash = name.rfind(u'/');
  const Text stem = name.substr(slash == Text::npos ? 0 : slash + 1);
  if (stem.substr(0, stem.size() - kExtension.size()).find_first_not_of(u" 　") == Text::npos) return {};
  Text drive, path;
  splitName(name, drive, path);
  return joinName(drive, path);
}

bool makeTable(TextView dataFile, TextView memo, const std::vector<ItemLine>& items) {
  Text drive, path;
  splitName(dataFile, drive, path);
  const KeptItemFile before(path, drive);
  if (folderExists(dataFile) || !writeKFileOf(path, drive, {items, Text(memo)})) return tellFailedWrite();
  if (openAgain(dataFile)) return true;
  before.putBack();
  return false;
}

bool redesignTable(TextView memo, const std::vector<DesignRow>& rows, bool withRecords) {
  if (withRecords) {
    if (!rewriteRecordsToo(memo, rows)) return false;
  } else if (!writeKFileOf(docPath, docDrive, {itemsOf(rows), Text(memo)})) {
    return tellFailedWrite();
  }
  return openAgain(joinName(docDrive, docPath));
}

}  // namespace zelko
