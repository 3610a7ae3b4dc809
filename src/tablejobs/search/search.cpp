#include "tablejobs/search/search.h"

#include "editor/main/commands.h"
#include "editor/moves/commit.h"
#include "editor/moves/moves.h"
#include "editor/show/sheet.h"
#include "editor/show/showcell.h"
#include "parts/cells.h"
#include "platform/host.h"
#include "platform/text/number.h"
#include "store/records/records.h"
#include "store/table/cursor.h"
#include "store/table/notice.h"
#include "tablejobs/search/searchform.h"
#include "voice/dialogs.h"
#include "voice/heard.h"
#include "voice/talk.h"

namespace zelko {

std::optional<SearchSettings> lastSearch;
std::int16_t searchItem = 0;
std::optional<SearchConditions> searchConditions;

namespace {

constexpr TextView kWork = u"検索中";
constexpr TextView kNoHit = u"検索文字列に該当するｾﾙはありません";

// The round of the keys, its direction, and the cell where it stands.
SearchRound keyRound;
bool keysTowardsHead = false;
CellAt keyHit;

// Stores the box and the row; false where no table is open.
bool storedTyped() {
  if (docPath.empty()) {
    host().beep();
    return false;
  }
  commitBox();
  hideRangeMask();
  dropRange();
  return true;
}

// The item of the last search may not be one of the table that is open now.
SearchSettings settingsForKeys(bool towardsHead) {
  SearchSettings settings = *lastSearch;
  settings.way.towardsHead = towardsHead;
  if (settings.way.item > itemCount) settings.way.allItems = true;
  return settings;
}

// `looked` is the cell that was looked at last.
void tellScan(const Scan& scan, CellAt looked, const SearchSettings& settings) {
  switch (scan.end) {
    case ScanEnd::hit:
      host().beep();
      showFoundCell(scan.at);
      keyHit = scan.at;
      return sayFound();
    case ScanEnd::cameRound:
      showFoundCell(scan.at);
      host().beep();
      return showOK(roundReport(settings.way), u"検索終了");
    case ScanEnd::stopped:
      showFoundCell(looked);
      return talkBehindDialog(u"検索を中止しました。ギョウ" + decimal(curRec) + u" 項目" + decimal(curItem));
    case ScanEnd::failed:
      showFoundCell(looked);
      return tellSearchUnreadable();
  }
}

Text countSentence(const HitCount& count) {
  if (count.stopped) return u"中止しました。ここまでに" + decimal(count.all) + u"件あります";
  if (count.all == 0) return Text(kNoHit);
  const Text all = decimal(count.all) + u"件";
  if (count.isHit) return all + u"中" + decimal(count.before + 1) + u"件目";
  return all + u"あります。今のｾﾙは該当しません。前に" + decimal(count.before) + u"件、後に" +
         decimal(count.all - count.before) + u"件";
}

}  // namespace

bool storedForSearch() {
  if (!storedTyped()) return false;
  if (curRec <= recCount()) return true;
  host().beep();
  showOK(u"新規ギョウから検索はできません", u"注意");
  return false;
}

Scan SearchRound::next(const SearchSettings& settings, TextView work, const std::function<bool(CellAt)>& onRecord) {
  const CellAt cursor = {curRec, curItem};
  if (!open_) start_ = cursor;
  open_ = true;
  const Matcher matcher(settings.terms);
  const CellAt from = steppedOff(cursor, settings.way, recCount());
  const Scan scan = scanCells(matcher, settings.way, from, start_, work, onRecord);
  const bool onStart = scan.at.record == start_.record && (!settings.way.allItems || scan.at.item == start_.item);
  if (scan.end == ScanEnd::cameRound || (scan.end == ScanEnd::hit && onStart)) open_ = false;
  return scan;
}

void showFoundCell(CellAt at) {
  const Silence silence;
  goTo(at.record, at.item);
}

void sayFound() {
  if (talkMode == 0) return;
  constexpr double kBefore = 0.3, kBehind = 0.1;  // seconds
  waitSec(kBefore);
  ++composedSentences;
  talkNow(u"見つかりました、ぎょう" + decimal(curRec) + u"項目" + decimal(curItem) + u" " + currentCell());
  waitSec(kBehind);
}

Text roundReport(const SearchWay& way) {
  const Text head = way.towardsHead ? u"｢前方検索終了｣" : u"｢後方検索終了｣";
  return head + (way.allItems ? Text(u"全項目") : u"項目" + decimal(way.item)) + u"について検索しました";
}

void tellSearchUnreadable() { tellFailure(u"検索中のﾌｧｲﾙが読めません", u"ファイル読み込みエラー"); }

void searchAgain(bool towardsHead) {
  if (!lastSearch) return openSearchForm();
  if (!storedForSearch()) return;
  const SearchSettings settings = settingsForKeys(towardsHead);
  if (keyHit != CellAt{curRec, curItem} || keysTowardsHead != towardsHead) keyRound.end();
  keysTowardsHead = towardsHead;
  // The boxes show the old cell until the dialog has gone: the cursor stays with them.
  CellAt looked = {curRec, curItem};
  const Scan scan = keyRound.next(settings, kWork, [&looked](CellAt at) {
    looked = at;
    return true;
  });
  tellScan(scan, looked, settings);
}

void tellHitCount() {
  if (!lastSearch) return openSearchForm();
  if (!storedTyped()) return;
  const SearchSettings settings = settingsForKeys(false);
  const Matcher matcher(settings.terms);
  const HitCount count = countCells(matcher, settings.way, {curRec, curItem}, u"検索件数を数えています");
  if (count.failed) return tellSearchUnreadable();
  talkBehindDialog(countSentence(count));
}

void openSearchForm() {
  if (!storedForSearch()) return;
  keyRound.end();
  {
    const Silence silence;
    showCell(static_cast<float>(curRec), curItem, {}, {});
    dispAll(curItem);
  }
  frmSRCH& dialog = form<frmSRCH>();
  dialog.chooseDirection();
  dialog.show();
}

std::optional<SearchConditions> askSearchConditions(TextView job) {
  unload<frmSRCH>();
  frmSRCH& dialog = form<frmSRCH>();
  searchConditions.reset();
  dialog.askOnly(job);
  dialog.showModal();
  return searchConditions;
}

void registerSearch() {
  lastSearch.reset();
  searchItem = 0;
  keyRound.end();
  registerForm<frmSRCH>();
  registerCommand(u"mnuSEARCH", openSearchForm);
  registerCommand(u"mnuSEARCHN", [] { searchAgain(false); });
  registerCommand(u"mnuSEARCHP", [] { searchAgain(true); });
  registerCommand(u"mnuSEARCHC", tellHitCount);
}

}  // namespace zelko
