#include "files/picker/deletetable.h"

#include <filesystem>

#include "files/picker/othertables.h"
#include "parts/disk/filewords.h"
#include "platform/files/files.h"
#include "store/table/itemfile.h"
#include "store/table/notice.h"
#include "store/table/table.h"
#include "voice/dialogs.h"

namespace zelko {

namespace {

Text nameIn(TextView path) { return spokenName(path.substr(path.rfind(u'/') + 1)); }

bool isInEdit(TextView dataFile, TextView itemFile) {
  if (docPath.empty()) return false;
  return isSameFile(dataFile, joinName(docDrive, docPath)) || isSameFile(itemFile, itemFilePath(docPath, docDrive));
}

bool refused(TextView file) {
  tellFailure(nameIn(file) + u"を削除できません。書き込みが禁止されています。", u"ファイル削除");
  return false;
}

void sayDeleted(TextView file) { talkBehindDialog(nameIn(file) + u"を削除しました"); }

bool removeTold(TextView file) {
  const FileError error = deleteFile(file);
  return error == FileError::none || error == FileError::notFound || refused(file);
}

}  // namespace

bool isSameFile(TextView one, TextView other) {
  if (one == other) return true;
  std::error_code missing;
  return std::filesystem::equivalent(toUtf8(one), toUtf8(other), missing);
}

bool deleteTable(TextView dataFile, TextView itemFile) {
  if (isInEdit(dataFile, itemFile)) {
    tellFailure(u"作業中のﾌｧｲﾙは削除出来ません", u"確認");
    return false;
  }
  if (itemFileIsDataOfOther(dataFile)) {
    tellFailure(nameIn(itemFile) + u"は他の表の記録です。削除出来ません", u"確認");
    return false;
  }
  if (!askYesNo(nameIn(dataFile) + u"を削除します。記録も項目も元に戻せません。よろしいですか", u"確認")) return false;
  // Half a table is worse than a whole one: what forbids one deletion is found before the first.
  for (TextView file : {dataFile, itemFile}) {
    if (isReadOnly(file)) return refused(file);
  }
  if (!removeTold(dataFile) || !removeTold(itemFile)) return false;
  sayDeleted(dataFile);
  return true;
}

bool deleteLayout(TextView file) {
  if (!askYesNo(u"現在選択されているfileを削除します", u"ファイル削除")) return false;
  if (!removeTold(file)) return false;
  sayDeleted(file);
  return true;
}

}  // namespace zelko
