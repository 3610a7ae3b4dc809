#include "files/output/outputtable.h"

#include <algorithm>

#include "files/output/outputending.h"
#include "files/picker/deletetable.h"
#include "parts/disk/filewords.h"
#include "platform/files/blockfiles.h"
#include "platform/files/workfiles.h"
#include "store/rewrite/rewrite.h"
#include "store/table/itemfile.h"
#include "store/table/notice.h"
#include "voice/dialogs.h"

namespace zelko {

namespace {

constexpr TextView kConfirm = u"確認";
constexpr TextView kUnfinished = u"HENKAN.QQQ";

bool hasShapeOfOpenTable(const Text& fullName) {
  TableDescription there;
  if (readDescription(itemFilePath(fullName, {}), there) != ReadResult::ok) return false;
  const auto sameCell = [](const ItemLine& a, const ItemLine& b) {
    return a.width == b.width && (a.alignment == u"R") == (b.alignment == u"R");
  };
  return std::ranges::equal(there.items, itemsOnDisk(), sameCell);
}

bool mayAppend(const Text& fullName) {
  if (lengthOf(fullName) <= 0 || hasShapeOfOpenTable(fullName)) return true;
  return askYesNo(spokenName(fullName) +
                      u"は、項目区切りの違うﾌｧｲﾙです。記録を追加すると、項目区切りは編集中の表のものに"
                      u"なります。追加しますか。",
                  kConfirm);
}

}  // namespace

bool refusedAsOpenTable(const Text& fullName) {
  if (docPath.empty() || !isSameFile(fullName, joinName(docDrive, docPath))) return false;
  tellFailure(u"編集中のﾌｧｲﾙと同じです｡", kConfirm);
  return true;
}

bool OutputTable::opened(FileError error) const {
  if (error == FileError::none) return true;
  tellFailure(u"出力ﾌｧｲﾙが開けません,再度ﾌｧｲﾙ設定をチェｯｸして下さい", u"出力ﾌｧｲﾙ異常");
  return false;
}

bool OutputTable::mayUse(const Text& fullName) const {
  return !refusedAsOpenTable(fullName) && opened(mayTakeOutput(fullName) ? FileError::none : FileError::pathAccess);
}

bool OutputTable::open(const Text& fullName) {
  fullName_ = fullName;
  unfinished_.clear();
  return mayUse(fullName) && mayAppend(fullName) && opened(records_.open(fullName));
}

bool OutputTable::replace(const Text& fullName) {
  fullName_ = fullName;
  unfinished_ = fullName.substr(0, fullName.rfind(u'/') + 1) + Text(kUnfinished);
  if (!mayUse(fullName)) return false;
  if (fileExists(fullName) && !askYesNo(spokenName(fullName) + u"は既にあります。上書きしますか。", kConfirm))
    return false;
  const FileError free = removeOwnName(unfinished_);
  return opened(free == FileError::none ? records_.create(unfinished_) : free);
}

bool OutputTable::finish() { return finish({itemsOnDisk(), tableMemo}); }

bool OutputTable::finish(const TableDescription& table) {
  Text drive, path;
  splitName(fullName_, drive, path);
  bool written = records_.finish() && writeKFileOf(path, drive, table);
  if (written && !unfinished_.empty()) written = replaceFile(unfinished_, fullName_) == FileError::none;
  written ? records_.keep() : records_.takeBack();
  return written;
}

}  // namespace zelko
