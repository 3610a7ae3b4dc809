// A rewrite of the open table: the work files, and their swap for the old ones.
#include "platform/files/blockfiles.h"
#include "platform/files/ownedfile.h"
#include "platform/files/workfiles.h"
#include "store/records/records.h"
#include "store/rewrite/recovery.h"
#include "store/rewrite/rewrite.h"
#include "store/table/itemfile.h"
#include "store/table/notice.h"

namespace zelko {
namespace {

constexpr int kDataFile = 1, kWork = 2;

// The new shape goes through the second description.
bool makeWorkItems(const std::vector<ItemLine>& items) {
  otherItemCount = static_cast<std::int16_t>(items.size() - 1);
  otherItemStart[0] = 1;
  for (std::size_t i = 0; i < items.size(); ++i) {
    otherItemName[i] = items[i].name;
    otherItemLR[i] = items[i].alignment;
    otherItemWidth[i] = items[i].width;
    otherItemStart[i + 1] = static_cast<std::int16_t>(otherItemStart[i] + otherItemWidth[i]);
  }
  return writeKFileWork(otherItemCount);
}

bool readOld(std::int64_t first, std::size_t count, char* out) {
  const std::size_t size = count * std::size_t{recLen};
  std::size_t got = 0;
  return readBlock(kDataFile, first * recLen, out, size, got) == FileError::none && got == size;
}

// Of the file that the name leads to; empty where it leads to none.
std::string identityOf(const Text& name) {
  OwnedFile file;
  return file.openToRead(name, recLen) == FileError::none ? fileIdentity(file.number()) : std::string();
}

// The new files of a rewrite, and whose place they take.
struct Work {
  Text table = joinName(docDrive, docPath);  // as it was opened
  Text data = behindLinks(table);
  Text file = data.substr(0, data.rfind(u'/') + 1) + Text(kWorkFile);  // on the file system of the data
  Text items = itemFilePath(docPath, docDrive);
  Text itemFile = besideTable(kWorkItemFile);
  FileMark mark;                           // of `file`
  std::string stands = identityOf(table);  // the file that the name led to before a record was read
};

// Another program put another file there while the records were made: it is not discarded unseen.
bool wasReplaced(const Work& work) {
  const std::string now = identityOf(work.table);
  if (now.empty() || now == work.stands) return false;
  tellFailure(u"書き換えている間に、他のﾌﾟﾛｸﾞﾗﾑがﾌｧｲﾙを別のﾌｧｲﾙに置き換えました。書き換えわ、していません",
              u"他のﾌﾟﾛｸﾞﾗﾑによる変更");
  return true;
}

RewriteEnd makeWork(const RewritePlan& plan, const ReadRecords& read, const KeepGoing& keepGoing, Work& work) {
  if (openNewRandom(kWork, work.file, recLen) != FileError::none) return RewriteEnd::failed;
  takePermissions(kWork, work.data);  // before a byte of the table is in it
  Marking marking;
  std::int64_t written = 0;
  const auto write = [&](std::string_view records) {
    const bool reached = writeBlock(kWork, written, records) == FileError::none;
    written += static_cast<std::int64_t>(records.size());
    marking.add(records);
    return reached;
  };
  RewriteEnd end = rewriteRecords(plan, read, write, keepGoing);
  if (end == RewriteEnd::done && syncFile(kWork) != FileError::none) end = RewriteEnd::failed;
  if (closeFile(kWork) != FileError::none && end == RewriteEnd::done) end = RewriteEnd::failed;
  work.mark = marking.mark();
  return end;
}

// The records have their new shape already and only the item file could not follow: what is edited goes by the new
// shape.
void adoptWorkItems() {
  itemCount = otherItemCount;
  itemName = otherItemName;
  itemLR = otherItemLR;
  itemWidth = itemWidthLoaded = otherItemWidth;
}

TextView bareName(TextView path) { return path.substr(path.rfind(u'/') + 1); }

std::optional<Swap> swapOf(const Work& work, bool itemsToo) {
  Swap swap{besideTable(u""), Text(bareName(work.table)), {}, work.mark};
  if (!itemsToo) return swap;
  swap.items = bareName(work.items);
  const auto mark = markOfFile(work.itemFile);
  if (!mark) return std::nullopt;
  swap.itemsMark = *mark;
  return swap;
}

// An item file behind a link on another file system: the new one takes the place of the link. It has its name also
// where only the folder could not be synced.
bool swapItems(const Work& work) {
  if (replaceFile(work.itemFile, work.items) != FileError::none) renameOver(work.itemFile, work.items);
  return lengthOf(work.itemFile) < 0;
}

// What could go wrong up to the new data file's name leaves the table alone.
bool swapWork(const Work& work, bool itemsToo) {
  const auto swap = swapOf(work, itemsToo);
  if (!swap || isReadOnly(work.data) || !noteSwap(*swap)) return false;
  closeFile(kDataFile);
  if (renameOver(work.file, work.data) != FileError::none && lengthOf(work.file) >= 0) {
    forgetSwap(swap->folder);
    return false;
  }
  if (itemsToo && !swapItems(work)) {
    adoptWorkItems();
    return false;
  }
  forgetSwap(swap->folder);
  return true;
}

RewriteEnd makeAndSwap(const RewritePlan& plan, const ReadRecords& read, const std::vector<ItemLine>* items,
                       const KeepGoing& keepGoing) {
  if (!roomForRewrite(besideTable(u""))) return RewriteEnd::refused;
  Work work;
  RewriteEnd end = RewriteEnd::failed;
  if (items == nullptr || (!isReadOnly(work.items) && makeWorkItems(*items)))
    end = makeWork(plan, read, keepGoing, work);
  if (end == RewriteEnd::done && wasReplaced(work)) end = RewriteEnd::refused;
  if (end == RewriteEnd::done && !swapWork(work, items != nullptr)) end = RewriteEnd::failed;
  if (end != RewriteEnd::done && !interruptedSwap(besideTable(u""))) {
    removeOwnName(work.file);
    removeOwnName(work.itemFile);
  }
  return end;
}

}  // namespace

std::vector<ItemLine> itemsOnDisk() {
  std::vector<ItemLine> items;
  for (std::size_t i = 0; i <= static_cast<std::size_t>(itemCount); ++i)
    items.push_back({itemName[i], itemLR[i], itemWidthLoaded[i]});
  return items;
}

RewriteEnd rewriteTable(const RewritePlan& plan, const std::vector<ItemLine>* items, const KeepGoing& keepGoing) {
  const RewriteEnd end = makeAndSwap(plan, readOld, items, keepGoing);
  if (end == RewriteEnd::done && items != nullptr) {
    Text error;
    readKFile(docPath, docDrive, error);
    if (!error.empty()) adoptWorkItems();
  }
  computeItemStart();
  if (!isOpen(kDataFile)) reopenData();
  return end;
}

RewriteEnd rewriteTable(std::int32_t records, const ReadRecords& read, const KeepGoing& keepGoing) {
  const RewriteEnd end = makeAndSwap({{{1, records}}, {}}, read, nullptr, keepGoing);
  if (!isOpen(kDataFile)) reopenData();
  return end;
}

}  // namespace zelko
