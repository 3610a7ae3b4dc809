#include "store/table/sharing.h"

#include <algorithm>

#include "platform/files/blockfiles.h"
#include "platform/files/ownedfile.h"
#include "platform/text/number.h"
#include "store/records/records.h"
#include "store/table/cursor.h"
#include "store/table/itemfile.h"
#include "store/table/mainform.h"
#include "voice/dialogs.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr int kDataFile = 1;
constexpr TextView kChanged = u"他のﾌﾟﾛｸﾞﾗﾑによる変更";

bool toRead = false;

Text openName() { return joinName(docDrive, docPath); }

Choice askWhose(const Text& question) {
  if (talkMode != 0) waitSec(talkGap);
  askYesNo(question, kChanged);
  talkLast = 0;  // what the key leads to is heard too
  return msgAnswer == kYes ? Choice::ours : msgAnswer == kNo ? Choice::theirs : Choice::neither;
}

}  // namespace

Sharing askToShare(const Text& fullName) {
  if (leadsTo(fullName, kDataFile)) return Sharing::forWriting;  // our own
  OwnedFile probe;
  if (isReadOnly(fullName) || probe.openToRead(fullName, recLen) != FileError::none || lockFile(probe.number()))
    return Sharing::forWriting;
  askYesNo(
      u"このﾌｧｲﾙは他のﾌﾟﾛｸﾞﾗﾑで開かれています。書き込みできるように開きますか？いいえを選ぶと読み取り専用で開きます",
      u"他のﾌﾟﾛｸﾞﾗﾑで使用中");
  return msgAnswer == kYes ? Sharing::forWriting : msgAnswer == kNo ? Sharing::toRead : Sharing::notAtAll;
}

bool openDataFile(const Text& fullName, Sharing sharing) {
  const bool reads = sharing == Sharing::toRead;
  const FileError error =
      reads ? openRandomToRead(kDataFile, fullName, recLen) : openRandom(kDataFile, fullName, recLen);
  if (error != FileError::none) return false;
  toRead = reads;
  if (!toRead && mayWriteRecords(kDataFile) == FileError::none) lockFile(kDataFile);
  return true;
}

bool openedToRead() { return toRead; }
void openForWritingAgain() { toRead = false; }

bool openFileWasReplaced() {
  const Text name = openName();
  return isOpen(kDataFile) && fileExists(name) && !leadsTo(name, kDataFile);
}

Choice askWhoseRecord(std::int32_t record, bool replaced) {
  const Text what = replaced ? u"編集中のﾌｧｲﾙは、他のﾌﾟﾛｸﾞﾗﾑが別のﾌｧｲﾙに置き換えました。"
                             : u"記録" + decimal(record) + u"は、他のﾌﾟﾛｸﾞﾗﾑが書き換えました。";
  return askWhose(what + u"自分の記録を書き込みますか？いいえを選ぶと他のﾌﾟﾛｸﾞﾗﾑの記録になります");
}

bool openAgain() {
  const std::int32_t record = curRec;
  const std::int16_t item = curItem;
  Text error;
  openTable(openName(), error);
  if (!error.empty()) {
    reopenData();
    return false;
  }
  curRec = std::min(record, recCount() + 1);
  curItem = std::min(item, itemCount);
  loadCache(curRec);
  return true;
}

bool refusedForAnother() {
  if (docPath.empty() || !openFileWasReplaced()) return false;
  const Choice choice = askWhose(
      u"編集中のﾌｧｲﾙは、他のﾌﾟﾛｸﾞﾗﾑが別のﾌｧｲﾙに置き換えました。自分のﾃﾞｰﾀで書き換えますか？"
      u"いいえを選ぶと他のﾌﾟﾛｸﾞﾗﾑのﾌｧｲﾙを読み込みます");
  if (choice == Choice::ours) return false;
  if (choice == Choice::theirs && openAgain()) mainFormHooks.showTable();
  return true;
}

}  // namespace zelko
