#include "tablejobs/sort/idsort.h"

#include "files/picker/filenumber.h"
#include "platform/files/ownedfile.h"
#include "platform/text/number.h"
#include "store/records/records.h"
#include "store/table/cursor.h"
#include "store/table/notice.h"
#include "store/table/readonly.h"
#include "tablejobs/sort/otherfilesort.h"
#include "voice/dialogs.h"

namespace zelko {

namespace {

constexpr TextView kConfirm = u"確認";

Text wordsOf(const OtherOrder& counts) {
  Text said = decimal(counts.found) + u"記録を順序ﾌｧｲﾙの順に並べました。";
  if (counts.notFound > 0) said += u"該当の無い順序ﾃﾞｰﾀ" + decimal(counts.notFound) + u"件は、空白の記録になりました。";
  if (counts.kept > 0) said += u"順序ﾌｧｲﾙに無い" + decimal(counts.kept) + u"記録は、その後に続きます。";
  return said;
}

void runSort(const OtherFileOrder& order) {
  OtherOrder counts;
  Job job;
  job.work = u"並べ替え中";
  job.steps = stepsOfOrder(order);
  job.changes = true;
  job.run = [&](Progress& progress, JobCounts&) { return sortAsListed(order, progress, counts); };
  job.sentence = [&](JobEnd end, const JobCounts&) {
    if (end == JobEnd::done) return wordsOf(counts);
    return end == JobEnd::stopped ? Text(u"中止しました。表はそのままです。") : sortedWords(end, 0);
  };
  runJob(job);
}

bool hasRecords(std::int32_t count, TextView message) {
  if (count > 0) return true;
  showOK(message, kConfirm);
  return false;
}

void sortByChosen(const FileItem& chosen) {
  askYesNo(u"大文字小文字を区別しますか", {});
  if (msgAnswer == kCancel) return leaveSort();
  const bool caseCounts = msgAnswer == kYes;
  OwnedFile order;
  if (order.openToRead(chosen.dataFile, recLen) != FileError::none) {
    tellFailure(u"ﾌｧｲﾙがオープンできません。ﾌｧｲﾙ名を確認してください", kConfirm);
    return leaveSort();
  }
  if (!hasRecords(recCountOf(order.number()), u"順序指定ﾌｧｲﾙにはﾃﾞｰﾀがありません") ||
      !hasRecords(recCount(), u"編集中のﾌｧｲﾙにはﾃﾞｰﾀがありません"))
    return leaveSort();
  runSort({order.number(), chosen.item, curItem, recordsToSort(), caseCounts});
}

}  // namespace

void sortByOtherFile() {
  if (!docPath.empty() && refusedAsReadOnly()) return;
  if (!beginJob(true, true)) return;
  if (!hasRecords(recCount(), u"現在編集中のﾌｧｲﾙは全く未記入です")) return leaveSort();
  const auto chosen = getfileno(false);
  chosen ? sortByChosen(*chosen) : leaveSort();
}

}  // namespace zelko
