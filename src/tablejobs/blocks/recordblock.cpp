#include "tablejobs/blocks/recordblock.h"

#include <algorithm>

#include "editor/main/commands.h"
#include "files/output/output.h"
#include "files/output/outputending.h"
#include "files/output/outputform.h"
#include "files/output/outputtable.h"
#include "parts/job/job.h"
#include "platform/host.h"
#include "platform/text/number.h"
#include "store/records/records.h"
#include "store/records/walk.h"
#include "store/table/cursor.h"
#include "voice/dialogs.h"
#include "voice/progress.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr TextView kJob = u"rtenki";
constexpr TextView kWhere =
    u"元のﾌｧｲﾙで作業しますか、抽出ﾌｧｲﾙにいきますか。元のﾌｧｲﾙの場合　はい　、抽出ﾌｧｲﾙの場合 いいえ を押して下さい。";
constexpr std::int16_t kRecords = 2;  // rangeKind

Walk heldRecords() {
  Walk held;
  held.first = std::min(rangeRec1, rangeRec2);
  held.last = std::min(std::max(rangeRec1, rangeRec2), recCount());
  return held;
}

JobEnd copyRecords(OutputTable& output, Progress& progress) {
  Walk held = heldRecords();
  held.progress = &progress;
  const auto copy = [&](const WalkedRecord& record) { return output.records().append(record.data()); };
  switch (walkRecords(held, copy)) {
    case WalkEnd::done:
      return output.finish() ? JobEnd::done : JobEnd::failed;
    case WalkEnd::stopped:
      return JobEnd::stopped;
    default:
      return JobEnd::failed;
  }
}

Text endWords(JobEnd end, std::int32_t records) {
  if (end == JobEnd::done) return decimal(records) + u"記録を転記しました。";
  return end == JobEnd::stopped ? u"中止しました。転記はされていません。" : u"転記はされませんでした。";
}

void closeAndEnd(JobEnd end, const Text& fullName, const Text& words) {
  bool toOutput = false;
  if (end == JobEnd::done) {
    toOutput = askWhereToWork(words + Text(kWhere), u"作業終了しました!") == WorkIn::output;
  }
  mode.clear();
  if (toOutput) {
    workInOutput(fullName, form<formHOZON>());
    return;
  }
  talkLast = 0;
  closeOutputDialog();
  endJob(end, false, end == JobEnd::done ? Text() : words);
}

void appendRecords(const Text& fullName) {
  OutputTable output;
  if (!output.open(fullName)) return;
  const Walk held = heldRecords();
  const std::int32_t count = std::max(0, held.last - held.first + 1);
  JobEnd end;
  {
    Progress progress(u"記録転記中", count);
    end = copyRecords(output, progress);
  }
  output.takeBack();
  closeAndEnd(end, fullName, endWords(end, count));
}

void openAppending() {
  if (docPath.empty()) return host().beep();
  if (rangeKind != kRecords)
    return showOK(u"Alt+↓↑で転記記録範囲を指定した上で、本ﾒﾆｭｰを選択して下さい", u"記録ﾌﾞﾛｯｸの先指定");
  if (!beginJob(false, true)) return;
  showOutputDialog(kJob);
}

}  // namespace

void registerRecordBlock() {
  registerOutputJob(kJob, {appendRecords, [] { endJob(JobEnd::done, false, {}); }});
  registerCommand(u"mnuBROCK", openAppending);
}

}  // namespace zelko
