// Sorting by one key: mnuSORT in place, mnuSORTF into a file.
#include "tablejobs/sort/sortcommands.h"

#include "editor/main/commands.h"
#include "files/output/output.h"
#include "files/output/outputending.h"
#include "files/output/outputform.h"
#include "files/output/outputtable.h"
#include "platform/host.h"
#include "store/records/records.h"
#include "store/table/cursor.h"
#include "store/table/readonly.h"
#include "store/table/table.h"
#include "tablejobs/sort/idsort.h"
#include "tablejobs/sort/msortform.h"
#include "tablejobs/sort/sorting.h"
#include "tablejobs/sort/sortquestions.h"
#include "voice/dialogs.h"
#include "voice/progress.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr TextView kJob = u"narabekaef";

void sortRecords() {
  if (docPath.empty()) return host().beep();
  if (refusedAsReadOnly()) return;
  if (!confirmSort()) return leaveSort();
  const auto key = askSortKey(u"昇順ですか？\r昇順は　はい  降順の場合は いいえ を選択して下さい");
  if (!key) return leaveSort();
  RecordSpan span;
  Job job;
  job.work = u"並べ替え中";
  job.changes = true;
  job.run = [&](Progress& progress, JobCounts&) {
    span = recordsToSort();
    return sortInPlace(span.first, span.last, {*key}, [&] { return progress.step(0); });
  };
  job.sentence = [&](JobEnd end, const JobCounts&) { return sortedWords(end, span.count()); };
  runJob(job);
}

void sortIntoFile(const Text& fullName) {
  if (!confirmSort()) return leaveSortOutput();
  const auto key = askSortKey(u"昇順 あ、い、う、え.　の順 ですか？\r   降順 の場合は いいえ を選択して下さい");
  if (!key) return leaveSortOutput();
  runSortOutput(fullName, {*key},
                u"元のﾌｧｲﾙで作業しますか。元のﾌｧｲﾙの場合 はい、並べ替えﾌｧｲﾙの場合 いいえ を押して下さい。");
}

void openSortIntoFile() {
  if (!beginJob(false, true)) return;
  if (talkMode != 0) waitSec(talkGap);
  showOutputDialog(kJob);
}

}  // namespace

void leaveSortOutput() {
  mode.clear();
  talkLast = 0;
  closeOutputDialog();
  leaveSort();
}

bool runSortOutput(const Text& fullName, const std::vector<SortKey>& keys, TextView question) {
  OutputTable output;
  if (!output.open(fullName)) return false;
  const RecordSpan span = recordsToSort();
  JobEnd end;
  {
    Progress progress(u"ソート中", 0);
    end = sortInto(output.records(), span.first, span.last, keys, [&] { return progress.step(0); });
  }
  if (end == JobEnd::done && !output.finish()) end = JobEnd::failed;
  bool toOutput = false;
  if (end == JobEnd::done) {
    toOutput = askWhereToWork(question, u"作業終了しました!") == WorkIn::output;
  }
  output.takeBack();
  mode.clear();
  closeSortForm();
  if (toOutput) {
    workInOutput(fullName, form<formHOZON>());
    return true;
  }
  // Where the user is now is news, whatever the dialog said a moment ago.
  talkLast = 0;
  closeOutputDialog();
  const bool stopped = end == JobEnd::stopped;
  endJob(end, false, stopped ? u"中止しました。元のﾌｧｲﾙはそのままです。並べ替えﾌｧｲﾙは作られていません。" : u"");
  return true;
}

void registerSorting() {
  registerSortTable();
  registerCommand(u"mnuSORT", sortRecords);
  registerCommand(u"mnuSORTF", openSortIntoFile);
  registerCommand(u"mnuMSORT", openSortByKeys);
  registerCommand(u"mnuMSORTF", openSortByKeysIntoFile);
  registerCommand(u"IDSORT", sortByOtherFile);
  registerOutputJob(kJob, {sortIntoFile, leaveSort});
  registerOutputJob(kSortByKeysJob, {sortByKeysIntoFile, keepSortForm});
}

}  // namespace zelko
