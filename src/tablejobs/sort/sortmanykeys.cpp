#include "tablejobs/sort/sortmanykeys.h"

#include "files/output/output.h"
#include "platform/host.h"
#include "store/records/records.h"
#include "store/table/cursor.h"
#include "store/table/readonly.h"
#include "store/table/table.h"
#include "tablejobs/sort/msortform.h"
#include "tablejobs/sort/sortcommands.h"
#include "tablejobs/sort/sorting.h"
#include "tablejobs/sort/sortquestions.h"
#include "voice/progress.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr TextView kInPlace = u"MSORT";

void showSortTable(TextView job) {
  if (!beginJob(false, true)) return;
  mode = job;
  if (talkMode != 0 && job == kSortByKeysJob) waitSec(talkGap);
  unload<frmMSORT>();
  frmMSORT& table = form<frmMSORT>();
  table.intoFile = job == kSortByKeysJob;
  table.showModal();
  if (mode == job) mode.clear();
}

Text endWords(JobEnd end, std::int32_t records, bool copied) {
  Text words = sortedWords(end, records);
  if (end != JobEnd::done && copied) words += u"並べ替え前の表の控えは、" + Text(kSafetyCopy) + u"です。";
  return words;
}

void sortTableInPlace(const std::vector<SortKey>& keys) {
  const RecordSpan span = recordsToSort();
  bool copied = false;
  JobEnd end;
  {
    Progress progress(u"並べ替え中", 0);
    const auto goesOn = [&] { return progress.step(0); };
    checkSortable(span.first, span.last);
    end = makeSafetyCopy(goesOn);
    copied = end == JobEnd::done;
    if (copied) end = sortInPlace(span.first, span.last, keys, goesOn);
    closeSortForm();
  }
  mode.clear();
  const bool untouched = end == JobEnd::stopped && !copied;
  endJob(end, false, untouched ? Text(u"中止しました。表はそのままです。") : endWords(end, span.count(), copied));
}

}  // namespace

void openSortByKeys() {
  if (!docPath.empty() && refusedAsReadOnly()) return;
  showSortTable(kInPlace);
}

void openSortByKeysIntoFile() { showSortTable(kSortByKeysJob); }

void sortByTable(frmMSORT& table) {
  if (table.intoFile) return showOutputDialog(kSortByKeysJob);
  sortTableInPlace(std::vector<SortKey>(table.keys()));
}

void sortByKeysIntoFile(const Text& fullName) {
  frmMSORT* table = loadedForm<frmMSORT>();
  if (!table) return host().beep();
  const std::vector<SortKey> keys = table->keys();
  runSortOutput(fullName, keys,
                u"元のﾌｧｲﾙで作業しますか、抽出ﾌｧｲﾙにいきますか。元のﾌｧｲﾙの場合　はい　、並べ替えﾌｧｲﾙの場合 いいえ "
                u"を押して下さい。");
}

void keepSortForm() {
  frmMSORT* table = loadedForm<frmMSORT>();
  if (!table) return;
  mode = kSortByKeysJob;
  table->enableButtons(true);
  table->Text1.setFocus();
}

void closeSortForm() {
  if (!loadedForm<frmMSORT>()) return;
  const Silence silence;
  curRec = 1;
  curItem = 0;
  loadCache(curRec);
  unload<frmMSORT>();
}

void leaveSortTable(frmMSORT& table) {
  mode.clear();
  talkLast = 0;
  screen().unload(table);
  leaveSort();
}

}  // namespace zelko
