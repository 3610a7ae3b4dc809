// A rewrite of the open table: the work files, and their swap for the old ones.
#include "platform/files/blockfiles.h"
#include "store/records/records.h"
#include "store/rewrite/recovery.h"
#include "store/rewrite/rewrite.h"
#include "store/table/itemfile.h"

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

RewriteEnd makeWork(const RewritePlan& plan, const ReadRecords& read, const KeepGoing& keepGoing) {
  const Text name = besideTable(kWorkFile);
  if (lengthOf(name) >= 0 && deleteFile(name) != FileError::none) return RewriteEnd::failed;
  if (openRandom(kWork, name, recLen) != FileError::none) return RewriteEnd::failed;
  copyPermissions(joinName(docDrive, docPath), name);  // before a byte of the table is in it
  std::int64_t written = 0;
  const auto write = [&written](std::string_view records) {
    const bool reached = writeBlock(kWork, written, records) == FileError::none;
    written += static_cast<std::int64_t>(records.size());
    return reached;
  };
  RewriteEnd end = rewriteRecords(plan, read, write, keepGoing);
  if (end == RewriteEnd::done && syncFile(kWork) != FileError::none) end = RewriteEnd::failed;
  if (closeFile(kWork) != FileError::none && end == RewriteEnd::done) end = RewriteEnd::failed;
  return end;
}

void deleteWork() {
  for (const TextView name : {kWorkFile, kWorkItemFile}) {
    setReadOnly(besideTable(name), false);
    deleteFile(besideTable(name));
  }
}

// The records have their new shape already and only the item file could not follow: what is edited goes by the new
// shape.
void adoptWorkItems() {
  itemCount = otherItemCount;
  itemName = otherItemName;
  itemLR = otherItemLR;
  itemWidth = itemWidthLoaded = otherItemWidth;
}

// The old data file is gone before the new one gets its name; what could go wrong up to there leaves the table alone.
bool swapWork(bool itemsToo) {
  Swap swap{besideTable(u""), behindLinks(joinName(docDrive, docPath)), {}};
  if (itemsToo) swap.items = behindLinks(itemFilePath(docPath, docDrive));
  if (itemsToo) copyPermissions(swap.items, swap.folder + Text(kWorkItemFile));
  if (!noteSwap(swap)) return false;
  closeFile(kDataFile);
  if (deleteFile(swap.data) != FileError::none) {
    forgetSwap(swap.folder);
    return false;
  }
  if (finishSwap(swap)) return true;
  if (itemsToo && fileExists(swap.data)) adoptWorkItems();
  return false;
}

// What an earlier end of the program left half done must not be overwritten.
bool folderIsFree() {
  const auto left = interruptedSwap(besideTable(u""));
  return !left || finishSwap(*left);
}

RewriteEnd makeAndSwap(const RewritePlan& plan, const ReadRecords& read, const std::vector<ItemLine>* items,
                       const KeepGoing& keepGoing) {
  if (!folderIsFree()) return RewriteEnd::failed;
  RewriteEnd end = RewriteEnd::failed;
  if (items == nullptr || (!isReadOnly(itemFilePath(docPath, docDrive)) && makeWorkItems(*items)))
    end = makeWork(plan, read, keepGoing);
  if (end == RewriteEnd::done && !swapWork(items != nullptr)) end = RewriteEnd::failed;
  if (end != RewriteEnd::done && !interruptedSwap(besideTable(u""))) deleteWork();
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
