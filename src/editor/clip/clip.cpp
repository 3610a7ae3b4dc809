#include "editor/clip/clip.h"

#include <algorithm>
#include <limits>
#include <vector>

#include "editor/clip/clipfile.h"
#include "editor/main/commands.h"
#include "editor/moves/commit.h"
#include "editor/rewrites/rewrites.h"
#include "editor/show/sheet.h"
#include "editor/show/showcell.h"
#include "store/records/records.h"
#include "store/records/walk.h"
#include "store/table/cursor.h"
#include "store/table/notice.h"
#include "store/table/readonly.h"
#include "voice/dialogs.h"
#include "voice/heard.h"
#include "voice/progress.h"
#include "voice/talk.h"

namespace zelko {

namespace {

// What a clip copy hands over at most, in characters: weeks of listening. The clip file itself has no limit.
constexpr std::size_t kLongestHandedOver = 1000000;

enum class Ending { done, stopped, outOfLines, failed };

void tellNoClip() { showOK(u"張り付けるべきｸﾘｯﾌﾟﾌｧｲﾙがありません", u"クリップファイルなし"); }

void tellBrokenClip() {
  tellFailure(u"ｸﾘｯﾌﾟﾌｧｲﾙのデータが途中で終わっているか、読み取れません。", u"ｸﾘｯﾌﾟﾌｧｲﾙの読み込みエラー");
}

// A clip file that is there and has a header, or the notice that belongs to it.
bool openedClip(ClipReader& clip, void (*tellMissing)()) {
  if (!clip.open()) {
    tellMissing();
    return false;
  }
  if (clip.header()) return true;
  clip.close();
  tellBrokenClip();
  return false;
}

void showAgain() {
  dispAll(curItem);
  showTitle();
  showCell(static_cast<float>(curRec), curItem, {}, {});
}

// --- Copy ----------------------------------------------------------------------------------------------------

Block rangeInOrder() {
  return {std::min(rangeRec1, rangeRec2), std::max(rangeRec1, rangeRec2), std::min(rangeItem1, rangeItem2),
          std::max(rangeItem1, rangeItem2)};
}

// Writes one record of the block; its text comes behind `text`. `cell` gives the text of an item.
template <class Cells>
bool copyRecord(ClipWriter& clip, const Block& block, const Cells& cell, Text& text) {
  Text cells;
  for (int item = block.item1; item <= block.item2; ++item) {
    const Text copied = cell(item);
    cells += copied;
    if (clip.cell(copied) != FileError::none) return false;
  }
  if (text.size() + cells.size() <= kLongestHandedOver) text += cells + kLineEnd;
  return true;
}

// The new line behind the last record can be in a block: it is copied as it stands, blank.
bool copyBehindLast(ClipWriter& clip, const Block& block, Text& text) {
  CacheRow row;
  setRow(row, blankRec);
  const auto cell = [&row](int item) { return cellOfRow(row, item); };
  for (std::int32_t record = std::max(block.rec1, recCount() + 1); record <= block.rec2; ++record)
    if (!copyRecord(clip, block, cell, text)) return false;
  return true;
}

// The progress is measured against the last record's number.
Ending copyBlock(const Block& block, Text& text) {
  Progress progress(u"ｸﾘｯﾌﾟﾌｧｲﾙ作成中", block.rec2);
  ClipWriter clip;
  bool written = clip.open(block) == FileError::none;
  const Walk walk{
      .first = block.rec1, .last = block.rec2, .progress = &progress, .doneBefore = std::int64_t{block.rec1} - 1};
  const auto copy = [&](const WalkedRecord& record) {
    written = copyRecord(
        clip, block, [&record](int item) { return record.cell(item); }, text);
    return written;
  };
  const WalkEnd end = written ? walkRecords(walk, copy) : WalkEnd::left;
  if (end == WalkEnd::stopped) return Ending::stopped;
  if (end == WalkEnd::failed) {
    tellReadError();
    return Ending::failed;
  }
  if (written && copyBehindLast(clip, block, text) && clip.finish() == FileError::none) return Ending::done;
  tellWriteError();
  return Ending::failed;
}

// --- Paste ---------------------------------------------------------------------------------------------------

// The records that a clip of so many covers from the cursor on.
Walk walkOfPaste(std::int32_t count, Progress* progress) {
  constexpr std::int64_t kHighest = std::numeric_limits<std::int32_t>::max() - 1;
  const std::int64_t last = std::min(std::int64_t{curRec} + count - 1, kHighest);
  return {.first = curRec, .last = static_cast<std::int32_t>(last), .progress = progress};
}

// On the disk before the first record changes: neither a kill nor a full disk leaves a paste that can't be undone.
// Records behind the last one are backed up as blank ones.
Ending backUp(std::int32_t count, Progress& progress) {
  BackupWriter backup;
  FileError error = backup.open(curRec);
  const Walk walk = walkOfPaste(count, &progress);
  const auto save = [&](const WalkedRecord& record) {
    error = backup.record(record.data());
    return error == FileError::none;
  };
  const WalkEnd end = error == FileError::none ? walkRecords(walk, save) : WalkEnd::left;
  if (end == WalkEnd::stopped) return Ending::stopped;
  if (end == WalkEnd::failed) {
    tellReadError();
    return Ending::failed;
  }
  for (std::int64_t record = std::max(walk.first, recCount() + 1); record <= walk.last && error == FileError::none;
       ++record)
    error = backup.record(blankRec);
  if (error == FileError::none) error = backup.finish();
  if (error == FileError::none) return Ending::done;
  tellWriteError();
  return Ending::failed;
}

// One record of the clip; false where its lines run out.
bool readRecord(ClipReader& clip, std::vector<Text>& cells) {
  cells.clear();
  Text cell;
  for (std::int32_t number = 0; number < clip.items(); ++number) {
    if (!clip.next(cell)) return false;
    if (number <= itemCount - curItem) cells.push_back(trimmed(cell));
  }
  return true;
}

// A record is visited only where all of its cells are at hand.
Ending pasteRecords(ClipReader& clip, Progress& progress) {
  Walk walk = walkOfPaste(clip.records(), &progress);
  walk.doneBefore = clip.records();
  walk.lengthens = true;
  std::vector<Text> cells;
  bool holdsAll = readRecord(clip, cells);
  const auto layOver = [&](ChangedRecord& record) {
    int item = curItem;
    for (const Text& cell : cells) record.setCell(item++, cell);
    if (record.number() < walk.last) holdsAll = readRecord(clip, cells);
    return holdsAll;
  };
  const WalkEnd end = holdsAll ? changeRecords(walk, layOver) : WalkEnd::left;
  if (end == WalkEnd::stopped) return Ending::stopped;
  if (end == WalkEnd::failed) return Ending::failed;
  return holdsAll ? Ending::done : Ending::outOfLines;
}

// Records that the paste did not come to are not there: they stay so. Without `progress` nothing stops it.
WalkEnd putBackRecords(Progress* progress) {
  BackupReader backup;
  std::string bytes;
  const std::int32_t first = backup.open();
  if (first == 0) return WalkEnd::done;
  const auto putBack = [&](ChangedRecord& record) {
    if (!backup.next(bytes)) return false;
    record.setData(bytes);
    return true;
  };
  return changeRecords({.first = first, .last = recCount(), .progress = progress}, putBack);
}

// Without a question: also the way back of a paste that was stopped, which nothing stops; `changed` where the paste had
// come to the records.
void restoreBackup(bool afterStop, bool changed) {
  const BackupFits fits = changed ? backupFits() : BackupFits::here;
  if (fits == BackupFits::none) return showOK(u"最近張り付け操作をした形跡はありません", u"張付け操作");
  if (fits == BackupFits::elsewhere) {
    return showOK(u"最後の貼り付けは、今のこの表には合いません。取り消しはしません", u"張付け操作");
  }
  WalkEnd end = WalkEnd::done;
  {
    Progress progress(u"張り付け撤去中", 0);
    if (changed) end = putBackRecords(afterStop ? nullptr : &progress);
    loadCache(curRec);
    waitPastGate();  // the cell in its new state is heard when the progress dialog closes
  }
  showAgain();
  if (end == WalkEnd::stopped)
    talkBehindDialog(u"取り消しを中止しました。もう一度取り消しを選ぶと、最後まで元に戻します");
}

void paste(ClipReader& clip, TextView work) {
  Ending ending;
  bool changed = false;
  {
    Progress progress(work, std::int64_t{clip.records()} * 2);
    ending = backUp(clip.records(), progress);
    changed = ending == Ending::done;
    if (changed) ending = pasteRecords(clip, progress);
    clip.close();
    loadCache(curRec);
    waitPastGate();  // the cell in its new state is heard when the progress dialog closes
  }
  if (ending == Ending::stopped) return restoreBackup(true, changed);
  showAgain();
  if (ending == Ending::outOfLines) tellBrokenClip();
}

// The number of records in the clip file; 0 after the notice that there is none.
std::int32_t recordsToInsert() {
  ClipReader clip;
  const auto tellMissing = [] {
    showOK(u"張り付けるべきｸﾘｯﾌﾟﾌｧｲﾙがありません。矢印またはshift+矢印でClip範囲を指定した上で本ﾒﾆｭｰを選択して下さい.",
           u"ｸﾘｯﾌﾟ範囲の指定");
  };
  return openedClip(clip, tellMissing) ? clip.records() : 0;
}

}  // namespace

bool clipCopy() {
  if (rangeKind == 0) {
    showOK(u"Alt+矢印またはshift+矢印でClip範囲を指定した上で本ﾒﾆｭｰを選択して下さい.", u"ｸﾘｯﾌﾟ範囲の指定");
    return false;
  }
  Text text;
  const Ending ending = copyBlock(rangeInOrder(), text);
  if (ending == Ending::done) handToUser(text);
  hideRangeMask();
  dropRange();
  dispAll(curItem);
  return ending == Ending::done;
}

void pasteOver() {
  if (refusedAsReadOnly()) return;
  ClipReader clip;
  if (!openedClip(clip, tellNoClip)) return;
  if (!commitBox()) return;
  paste(clip, u"上書き張り付け作業中");
}

void pasteInsert() {
  if (refusedAsReadOnly()) return;
  const std::int32_t count = recordsToInsert();
  if (count == 0) return;
  if (!commitBox()) return;
  ClipReader clip;
  if (insertRecords(count, docPath, docDrive) && openedClip(clip, tellNoClip)) paste(clip, u"挿入張り付け作業中");
}

void pasteUndo() {
  if (refusedAsReadOnly()) return;
  if (!askYesNo(u"いちばん最近の貼り付け操作を取り消し,以前の状態に戻します", u".張り付けの取り消し")) return;
  if (!commitBox()) return;
  restoreBackup(false, true);
}

void clipToClipboard() {
  ClipReader clip;
  if (!openedClip(clip, tellNoClip)) return;
  LateProgress progress(u"ｸﾘｯﾌﾟﾌｧｲﾙ読み込み中", clip.records());
  Text text, line, cell;
  for (std::int32_t record = 0; record < clip.records(); ++record, line.clear()) {
    for (std::int32_t item = 0; item < clip.items(); ++item, line += cell)
      if (!clip.next(cell)) return tellBrokenClip();
    text += trimmedRight(line) + kLineEnd;
    if (!progress.step(record + 1)) return talkBehindDialog(u"中止しました");
  }
  handToUser(text);
}

void registerClip() {
  registerCommand(u"mnuClip", [] { clipCopy(); });
  registerCommand(u"mnuPAST", pasteOver);
  registerCommand(u"mnuIPASTE", pasteInsert);
  registerCommand(u"mnuDEPAST", pasteUndo);
  registerCommand(u"mnuCC", clipToClipboard);
}

}  // namespace zelko
