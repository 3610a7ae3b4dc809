#include "editor/clip/clip.h"

#include <algorithm>

#include "editor/clip/clipfile.h"
#include "editor/main/commands.h"
#include "editor/moves/commit.h"
#include "editor/rewrites/rewrites.h"
#include "editor/show/sheet.h"
#include "editor/show/showcell.h"
#include "platform/host.h"
#include "store/records/records.h"
#include "store/table/cursor.h"
#include "store/table/notice.h"
#include "store/table/readonly.h"
#include "voice/dialogs.h"
#include "voice/heard.h"
#include "voice/progress.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr int kDataFile = 1;

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

// Writes one record of the block; its text comes behind `text`.
FileError copyRecord(ClipWriter& clip, std::int32_t record, const Block& block, Text& text) {
  CacheRow& row = recCache[0];
  FileError error = getRec(kDataFile, record, row) || record > recCount() ? FileError::none : FileError::device;
  Text cells;
  for (int item = block.item1; item <= block.item2 && error == FileError::none; ++item) {
    const Text cell = cellOfRow(row, item);
    cells += cell;
    error = clip.cell(cell);
  }
  if (text.size() + cells.size() <= kLongestHandedOver) text += cells + kLineEnd;
  return error;
}

// The progress is measured against the last record's number.
Ending copyBlock(const Block& block, Text& text) {
  Progress progress(u"ｸﾘｯﾌﾟﾌｧｲﾙ作成中", block.rec2);
  ClipWriter clip;
  FileError error = clip.open(block);
  for (std::int32_t record = block.rec1; record <= block.rec2 && error == FileError::none; ++record) {
    if (!progress.step(record)) return Ending::stopped;
    error = copyRecord(clip, record, block, text);
  }
  if (error == FileError::none) error = clip.finish();
  return error == FileError::none ? Ending::done : Ending::failed;
}

// --- Paste ---------------------------------------------------------------------------------------------------

// Lays one record of the clip over the row, from `first` on; false where the clip's lines run out.
bool layOver(ClipReader& clip, std::int16_t first, CacheRow& row) {
  Text cell;
  for (std::int32_t number = 0; number < clip.items(); ++number) {
    if (!clip.next(cell)) return false;
    if (number <= itemCount - first) setCell(row, first + number, trimmed(cell));
  }
  row[kDataBytes] = '\r';
  row[kDataBytes + 1] = '\n';
  return true;
}

// The record as it is, or a blank one behind the last; false where it can't be read.
bool readTarget(std::int32_t target, CacheRow& row) { return getRec(kDataFile, target, row) || target > recCount(); }

// On the disk before the first record changes: neither a kill nor a full disk leaves a paste that can't be undone.
Ending backUp(std::int32_t count, Progress& progress) {
  BackupWriter backup;
  FileError error = backup.open(curRec);
  for (std::int32_t number = 0; number < count && error == FileError::none; ++number) {
    if (!progress.step(0)) return Ending::stopped;
    CacheRow& row = recCache[0];
    error = readTarget(curRec + number, row) ? backup.record(row) : FileError::device;
  }
  if (error == FileError::none) error = backup.finish();
  if (error == FileError::none) return Ending::done;
  tellWriteError();
  return Ending::failed;
}

Ending pasteRecord(ClipReader& clip, std::int32_t target) {
  CacheRow& row = recCache[0];
  if (!readTarget(target, row)) {
    tellReadError();
    return Ending::failed;
  }
  if (!layOver(clip, curItem, row)) return Ending::outOfLines;
  return putRec(kDataFile, target, {row.data(), row.size()}) ? Ending::done : Ending::failed;
}

Ending pasteRecords(ClipReader& clip, Progress& progress) {
  setRow(recCache[1], blankRec);
  Ending ending = Ending::done;
  for (std::int32_t number = 0; number < clip.records() && ending == Ending::done; ++number)
    ending = progress.step(number + 1) ? pasteRecord(clip, curRec + number) : Ending::stopped;
  return ending;
}

// Records that the paste did not come to are not there: they stay so.
void putBackRecords(Progress& progress) {
  BackupReader backup;
  CacheRow& row = recCache[1];
  std::string bytes;
  for (std::int32_t record = backup.open(); record > 0 && record <= recCount() && backup.next(bytes); ++record) {
    progress.step(0);
    setRow(row, bytes);
    if (!putRec(kDataFile, record, {row.data(), row.size()})) return;
  }
}

// Without a question: also the way back of a paste that was stopped, `changed` where it had come to the records.
void restoreBackup(bool changed = true) {
  const BackupFits fits = changed ? backupFits() : BackupFits::here;
  if (fits == BackupFits::none) return showOK(u"最近張り付け操作をした形跡はありません", u"張付け操作");
  if (fits == BackupFits::elsewhere) {
    return showOK(u"最後の貼り付けは、今のこの表には合いません。取り消しはしません", u"張付け操作");
  }
  {
    Progress progress(u"張り付け撤去中", 0);
    if (changed) putBackRecords(progress);
    loadCache(curRec);
    waitPastGate();  // the cell in its new state is heard when the progress dialog closes
  }
  showAgain();
}

void paste(ClipReader& clip, TextView work) {
  Ending ending;
  bool changed = false;
  {
    Progress progress(work, clip.records());
    ending = backUp(clip.records(), progress);
    changed = ending == Ending::done;
    if (changed) ending = pasteRecords(clip, progress);
    clip.close();
    loadCache(curRec);
    waitPastGate();  // the cell in its new state is heard when the progress dialog closes
  }
  if (ending == Ending::stopped) return restoreBackup(changed);
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
  if (ending == Ending::failed) tellWriteError();
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
  restoreBackup();
}

void clipToClipboard() {
  ClipReader clip;
  if (!openedClip(clip, tellNoClip)) return;
  Text text, line, cell;
  for (std::int32_t record = 0; record < clip.records(); ++record, line.clear()) {
    for (std::int32_t item = 0; item < clip.items(); ++item, line += cell)
      if (!clip.next(cell)) return tellBrokenClip();
    text += trimmedRight(line) + kLineEnd;
    host().letEventsThrough();
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
