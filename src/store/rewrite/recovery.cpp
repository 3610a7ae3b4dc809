#include "store/rewrite/recovery.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <set>

#include "platform/files/blockfiles.h"
#include "platform/files/workfiles.h"
#include "store/table/description.h"
#include "store/table/notice.h"
#include "voice/dialogs.h"

namespace zelko {
namespace {

constexpr int kNote = 2;  // its number while it is written
constexpr TextView kHead = u"zelko swap 1";
constexpr TextView kTitle = u"途中で終わった書き換え";

Text folderOf(TextView fullName) { return Text(fullName.substr(0, fullName.rfind(u'/') + 1)); }

bool isBareName(TextView name) {
  const auto isForbidden = [](char16_t ch) { return ch == u'/' || ch < u' '; };
  return !name.empty() && name != u"." && name != u".." && std::none_of(name.begin(), name.end(), isForbidden);
}

// The item file of a table has its name with a letter in front.
bool belongTogether(TextView data, TextView items) {
  return items.empty() || (isBareName(items) && lowerCase(items) == u"k" + lowerCase(data));
}

// Head, the two names, the marks of the two work files.
Text noteText(const Swap& swap) {
  Text text(kHead);
  for (const Text& line : {swap.data, swap.items, markText(swap.dataMark), markText(swap.itemsMark)})
    text += u"\n" + line;
  return text + u"\n";
}

// A note that was not written whole counts as none, for then nothing was swapped yet; so does one by other hands.
std::optional<Swap> readNote(TextView folder) {
  constexpr std::size_t kLongest = 4096;
  const auto bytes = readOwnFile(Text(folder) + Text(kSwapNote), kLongest);
  if (!bytes) return std::nullopt;
  std::array<Text, 5> lines;
  std::size_t at = 0;
  for (Text& line : lines) {
    const std::size_t end = bytes->find('\n', at);
    if (end == std::string::npos) return std::nullopt;
    line = fromUtf8(std::string_view(*bytes).substr(at, end - at));
    at = end + 1;
  }
  const auto data = markFromText(lines[3]);
  const auto items = lines[2].empty() ? FileMark{} : markFromText(lines[4]);
  const bool sound = lines[0] == kHead && isBareName(lines[1]) && belongTogether(lines[1], lines[2]);
  if (!sound || !data || !items) return std::nullopt;
  return Swap{Text(folder), lines[1], lines[2], *data, *items};
}

bool isThat(TextView path, const FileMark& mark) { return lengthOf(path) == mark.length && markOfFile(path) == mark; }

// A link in the place of a data file leads to it, which is only looked at.
bool dataIsNew(const Swap& swap) { return isThat(behindLinks(swap.folder + swap.data), swap.dataMark); }

bool itemsWait(const Swap& swap) {
  TableDescription table;
  const Text work = swap.folder + Text(kWorkItemFile);
  return !swap.items.empty() && isThat(work, swap.itemsMark) && readDescription(work, table) == ReadResult::ok;
}

bool itemsAreNew(const Swap& swap) {
  return swap.items.empty() || isThat(behindLinks(swap.folder + swap.items), swap.itemsMark);
}

bool nothingStands(TextView path) { return !isLink(path) && lengthOf(path) < 0; }

bool isThere(const Swap& swap, TextView fullName) {
  const Text data = swap.folder + swap.data;
  std::error_code missing;
  return fullName == data || std::filesystem::equivalent(toUtf8(fullName), toUtf8(data), missing);
}

std::vector<Text> leftOvers(TextView folder) {
  constexpr TextView kNames[] = {kWorkFile,   kWorkItemFile,  kSwapNote,      u"KSAVE.QQQ", u"HENKAN.QQQ",
                                 u"CLIP.QQQ", u"CLIPBAK.QQQ", u"CLIPFOR.QQQ", u"CSV.QQQ"};
  std::vector<Text> found;
  for (const TextView name : kNames)
    if (isLeftOver(Text(folder) + Text(name))) found.emplace_back(name);
  return found;
}

// Who says no is not asked again for that folder in this run.
std::set<Text> refused;

void offerLeftOvers(const Text& folder) {
  const std::vector<Text> names = leftOvers(folder);
  if (names.empty() || refused.contains(folder)) return;
  Text list;
  for (const Text& name : names) list += (list.empty() ? Text() : Text(u"、")) + name;
  if (!askYesNo(u"途中で終わった作業のファイル" + list + u"が残っています。削除しますか？", u"残った作業ファイル")) {
    refused.insert(folder);
    return;
  }
  for (const Text& name : names)
    if (removeOwnName(folder + name) != FileError::none) return tellWriteError();
}

// True where it was brought to its end.
bool offerSwap(const Swap& swap) {
  const Text names = swap.items.empty() ? swap.data : swap.data + u"と" + swap.items;
  const Text question =
      names + u"の書き換えが途中で終わっています。書き換えたデータは残っています。元の名前に戻しますか？";
  if (!askYesNo(question, kTitle)) return false;
  if (finishSwap(swap)) return true;
  tellWriteError();
  return false;
}

}  // namespace

bool noteSwap(const Swap& swap) {
  const Text name = swap.folder + Text(kSwapNote);
  FileError error = openNewRandom(kNote, name, 1);
  if (error == FileError::none) error = writeBlock(kNote, 0, toUtf8(noteText(swap)));
  if (error == FileError::none) error = syncFile(kNote);
  const FileError closing = closeFile(kNote);
  if (error == FileError::none && closing == FileError::none && syncFolderOf(name) == FileError::none) return true;
  removeOwnName(name);
  return false;
}

void forgetSwap(TextView folder) { removeOwnName(Text(folder) + Text(kSwapNote)); }

bool finishSwap(const Swap& swap) {
  const Text data = swap.folder + swap.data;
  if (nothingStands(data)) {
    if (renameFile(swap.folder + Text(kWorkFile), data) != FileError::none) return false;
    if (syncFolderOf(data) != FileError::none) return false;
  }
  const Text workItems = swap.folder + Text(kWorkItemFile);
  if (itemsWait(swap) && renameOver(workItems, swap.folder + swap.items) != FileError::none) return false;
  forgetSwap(swap.folder);
  return true;
}

std::optional<Swap> interruptedSwap(TextView folder) {
  const std::optional<Swap> swap = readNote(folder);
  if (!swap) return std::nullopt;
  const bool gone = nothingStands(swap->folder + swap->data);
  const bool workWaits = gone && isThat(swap->folder + Text(kWorkFile), swap->dataMark);
  if (workWaits && (itemsWait(*swap) || itemsAreNew(*swap))) return swap;
  if (gone || !dataIsNew(*swap)) return std::nullopt;
  if (itemsAreNew(*swap))
    forgetSwap(folder);
  else if (itemsWait(*swap))
    return swap;
  return std::nullopt;
}

bool offerRecovery(TextView fullName) {
  const Text folder = folderOf(fullName);
  if (const std::optional<Swap> swap = interruptedSwap(folder)) {
    const bool isOther = fileExists(fullName) && !isThere(*swap, fullName);
    return offerSwap(*swap) || isOther;
  }
  offerLeftOvers(folder);
  return true;
}

void resetRecovery() { refused.clear(); }

bool roomForRewrite(TextView folder) {
  const std::optional<Swap> swap = interruptedSwap(folder);
  if (!swap || offerSwap(*swap)) return true;
  tellFailure(u"前の書き換えが途中で終わったままなので、この書き換えは出来ません。", kTitle);
  return false;
}

}  // namespace zelko
