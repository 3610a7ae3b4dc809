#include "store/rewrite/recovery.h"

#include <array>

#include "platform/files/blockfiles.h"
#include "platform/text/number.h"
#include "store/table/notice.h"
#include "store/table/table.h"
#include "voice/dialogs.h"

namespace zelko {
namespace {

constexpr int kNote = 2;  // its number while it is read or written

Text folderOf(TextView fullName) { return Text(fullName.substr(0, fullName.rfind(u'/') + 1)); }
Text nameOf(TextView fullName) { return Text(fullName.substr(fullName.rfind(u'/') + 1)); }

// A folder that is renamed takes its note along: what lies in it is noted without it.
Text noted(const Swap& swap, TextView file) { return folderOf(file) == swap.folder ? nameOf(file) : Text(file); }
Text named(const Swap& swap, TextView note) {
  return note.empty() || note.starts_with(u'/') ? Text(note) : swap.folder + Text(note);
}

// Also across file systems, where a link leads to one.
bool moveTo(TextView from, TextView to) {
  if (renameFile(from, to) == FileError::none) return true;
  if (fileExists(to) || copyFile(from, to) != FileError::none) return false;
  deleteFile(from);
  return true;
}

struct Note {
  Swap swap;
  std::int64_t length = 0;  // of WORK.QQQ
};

std::optional<std::string> noteText(TextView folder) {
  const Text name = Text(folder) + Text(kSwapNote);
  const std::int64_t length = lengthOf(name);
  constexpr std::int64_t kLongest = 65536;
  if (length <= 0 || length > kLongest || openRandom(kNote, name, 1) != FileError::none) return std::nullopt;
  std::string text(static_cast<std::size_t>(length), '\0');
  std::size_t got = 0;
  const FileError error = readBlock(kNote, 0, text.data(), text.size(), got);
  closeFile(kNote);
  if (error != FileError::none || got != text.size()) return std::nullopt;
  return text;
}

// Three lines; a note that was not written whole counts as none, for then nothing was deleted yet.
std::optional<Note> readNote(TextView folder) {
  const std::optional<std::string> text = noteText(folder);
  if (!text) return std::nullopt;
  std::array<Text, 3> lines;
  std::size_t at = 0;
  for (Text& line : lines) {
    const std::size_t end = text->find('\n', at);
    if (end == std::string::npos) return std::nullopt;
    line = fromUtf8(std::string_view(*text).substr(at, end - at));
    at = end + 1;
  }
  Note note;
  note.swap.folder = folder;
  note.length = static_cast<std::int64_t>(val(lines[0]));
  note.swap.data = named(note.swap, lines[1]);
  note.swap.items = named(note.swap, lines[2]);
  return note;
}

bool itemsWait(const Swap& swap) { return !swap.items.empty() && fileExists(swap.folder + Text(kWorkItemFile)); }

}  // namespace

bool noteSwap(const Swap& swap) {
  const Text name = swap.folder + Text(kSwapNote);
  const std::int64_t length = lengthOf(swap.folder + Text(kWorkFile));
  const Text text = decimal(length) + u"\n" + noted(swap, swap.data) + u"\n" + noted(swap, swap.items) + u"\n";
  deleteFile(name);
  FileError error = openRandom(kNote, name, 1);
  if (error == FileError::none) error = writeBlock(kNote, 0, toUtf8(text));
  if (error == FileError::none) error = syncFile(kNote);
  const FileError closing = closeFile(kNote);
  if (error == FileError::none && closing == FileError::none) return true;
  deleteFile(name);
  return false;
}

void forgetSwap(TextView folder) { deleteFile(Text(folder) + Text(kSwapNote)); }

bool finishSwap(const Swap& swap) {
  const Text work = swap.folder + Text(kWorkFile), workItems = swap.folder + Text(kWorkItemFile);
  if (!fileExists(swap.data) && !moveTo(work, swap.data)) return false;
  if (itemsWait(swap)) {
    if (fileExists(swap.items) && deleteFile(swap.items) != FileError::none) return false;
    if (!moveTo(workItems, swap.items)) return false;
  }
  forgetSwap(swap.folder);
  return true;
}

std::optional<Swap> interruptedSwap(TextView folder) {
  const std::optional<Note> note = readNote(folder);
  if (!note) return std::nullopt;
  const Swap& swap = note->swap;
  const std::int64_t work = lengthOf(swap.folder + Text(kWorkFile));
  if (!fileExists(swap.data)) {
    if (work == note->length) return swap;
    return std::nullopt;
  }
  if (work < 0 && itemsWait(swap)) return swap;
  forgetSwap(folder);
  return std::nullopt;
}

bool offerRecovery(TextView fullName) {
  const std::optional<Swap> swap = interruptedSwap(folderOf(fullName));
  if (!swap) return true;
  const bool isOther = fileExists(fullName) && behindLinks(fullName) != swap->data;
  const Text question =
      nameOf(swap->data) + u"の書き換えが途中で終わっています。書き換えたデータは残っています。元の名前に戻しますか？";
  if (!askYesNo(question, u"途中で終わった書き換え")) return isOther;
  if (finishSwap(*swap)) return true;
  tellWriteError();
  return isOther;
}

}  // namespace zelko
