#include "tablejobs/sort/idsort.h"

#include <algorithm>
#include <iterator>

#include "files/picker/filenumber.h"
#include "platform/files/blockfiles.h"
#include "platform/files/ownedfile.h"
#include "platform/text/number.h"
#include "store/records/records.h"
#include "store/records/walk.h"
#include "store/rewrite/rewrite.h"
#include "store/table/cursor.h"
#include "store/table/itemfile.h"
#include "store/table/notice.h"
#include "store/table/readonly.h"
#include "tablejobs/sort/otherorder.h"
#include "tablejobs/sort/sortquestions.h"
#include "voice/dialogs.h"
#include "voice/progress.h"

namespace zelko {

namespace {

constexpr int kDataFile = 1;
constexpr TextView kConfirm = u"確認";

// Reads keys as they are compared, from one of the two files.
class Keys {
 public:
  Keys(int file, RecordShape shape, int item, bool caseCounts)
      : file_(file), shape_(std::move(shape)), item_(item), caseCounts_(caseCounts) {}

  bool walk(std::int32_t first, std::int32_t last, Progress& progress, std::int64_t& steps, const KeyVisit& visit) {
    Walk way;
    way.first = first;
    way.last = last;
    way.progress = &progress;
    way.doneBefore = steps;
    way.file = file_;
    way.shape = &shape_;
    steps += last - first + 1;
    const auto look = [&](const WalkedRecord& record) {
      return visit(record.number(), asCompared(record.cell(item_)), record.data() == blankRec);
    };
    return walkRecords(way, look) == WalkEnd::done;
  }

  Text of(std::int32_t record) const {
    CacheRow row;
    return getRec(file_, record, row) ? asCompared(cellText({row.data(), row.size()}, shape_.at(item_))) : Text();
  }

 private:
  Text asCompared(const Text& cell) const { return caseCounts_ ? trimmed(cell) : upperCase(trimmed(cell)); }

  int file_;
  RecordShape shape_;
  int item_;
  bool caseCounts_;
};

// The whole table as it will be: what stands in front of the range, the range in its order, what stands behind it.
class NewRecords {
 public:
  NewRecords(RecordSpan span, const std::vector<std::uint32_t>& order, std::int32_t count)
      : before_(span.first - 1), order_(order), behind_(span.last), after_(count - span.last) {}

  std::int32_t count() const { return static_cast<std::int32_t>(before_ + std::ssize(order_) + after_); }

  bool read(std::int64_t first, std::size_t count, char* out) const {
    for (std::size_t done = 0; done < count;) {
      const std::int64_t source = sourceOf(first + static_cast<std::int64_t>(done));
      std::size_t stretch = 1;
      while (done + stretch < count && source > 0 &&
             sourceOf(first + static_cast<std::int64_t>(done + stretch)) == source + static_cast<std::int64_t>(stretch))
        ++stretch;
      if (!fetch(source, stretch, out + done * std::size_t{recLen})) return false;
      done += stretch;
    }
    return true;
  }

 private:
  // The number of the old record that comes to stand there; 0 for a blank one.
  std::int64_t sourceOf(std::int64_t place) const {
    if (place < before_) return place + 1;
    const std::int64_t inOrder = place - before_;
    const auto listed = static_cast<std::int64_t>(order_.size());
    return inOrder < listed ? order_[static_cast<std::size_t>(inOrder)] : behind_ + inOrder - listed + 1;
  }

  static bool fetch(std::int64_t source, std::size_t count, char* out) {
    if (source == 0) {
      std::fill_n(out, kDataBytes, ' ');
      out[kDataBytes] = '\r';
      out[kDataBytes + 1] = '\n';
      return true;
    }
    std::size_t got = 0;
    const std::size_t size = count * std::size_t{recLen};
    return readBlock(kDataFile, (source - 1) * recLen, out, size, got) == FileError::none && got == size;
  }

  std::int64_t before_;
  const std::vector<std::uint32_t>& order_;
  std::int64_t behind_, after_;
};

class OtherFileSort {
 public:
  OtherFileSort(int orderFile, int orderItem, bool caseCounts)
      : order_(orderFile, RecordShape::ofOtherTable(), orderItem, caseCounts),
        own_(kDataFile, RecordShape::ofOpenTable(), curItem, caseCounts),
        orderCount_(recCountOf(orderFile)) {}

  // Of the progress: each record of the order and of the range once, and each of the table as it is written.
  std::int64_t steps() const { return std::int64_t{orderCount_} + recordsToSort().count() + recCount(); }

  JobEnd run(Progress& progress) {
    const RecordSpan span = recordsToSort();
    std::int64_t done = 0;
    OtherOrderJob job;
    job.orderCount = orderCount_;
    job.orderKeys = [&](std::int32_t first, std::int32_t last, const KeyVisit& visit) {
      return order_.walk(first, last, progress, done, visit);
    };
    job.first = span.first;
    job.last = span.last;
    job.rangeKeys = [&](std::int32_t first, std::int32_t last, const KeyVisit& visit) {
      return own_.walk(first, last, progress, done, visit);
    };
    job.keyOf = [&](std::int32_t record) { return own_.of(record); };
    auto found = orderAsListed(job);
    if (!found) return progress.stopped() ? JobEnd::stopped : JobEnd::failed;
    found_ = std::move(*found);
    return write(span, progress, done);
  }

  Text words() const {
    Text said = decimal(found_.found) + u"記録を順序ﾌｧｲﾙの順に並べました。";
    if (found_.notFound > 0) said += u"該当の無い順序ﾃﾞｰﾀ" + decimal(found_.notFound) + u"件は、空白の記録になりました。";
    if (found_.kept > 0) said += u"順序ﾌｧｲﾙに無い" + decimal(found_.kept) + u"記録は、その後に続きます。";
    return said;
  }

 private:
  JobEnd write(RecordSpan span, Progress& progress, std::int64_t done) {
    const NewRecords records(span, found_.records, recCount());
    const auto read = [&](std::int64_t first, std::size_t count, char* out) { return records.read(first, count, out); };
    switch (rewriteTable(records.count(), read, [&](std::int64_t at) { return progress.step(done + at); })) {
      case RewriteEnd::done:
        return JobEnd::done;
      case RewriteEnd::stopped:
        return JobEnd::stopped;
      default:
        return JobEnd::failed;
    }
  }

  Keys order_, own_;
  std::int32_t orderCount_;
  OtherOrder found_;
};

void runSort(OtherFileSort& sort) {
  Job job;
  job.work = u"並べ替え中";
  job.steps = sort.steps();
  job.changes = true;
  job.run = [&](Progress& progress, JobCounts&) { return sort.run(progress); };
  job.sentence = [&](JobEnd end, const JobCounts&) {
    if (end == JobEnd::done) return sort.words();
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
  OwnedFile order;
  if (order.openToRead(chosen.dataFile, recLen) != FileError::none) {
    tellFailure(u"ﾌｧｲﾙがオープンできません。ﾌｧｲﾙ名を確認してください", kConfirm);
    return leaveSort();
  }
  if (!hasRecords(recCountOf(order.number()), u"順序指定ﾌｧｲﾙにはﾃﾞｰﾀがありません") ||
      !hasRecords(recCount(), u"編集中のﾌｧｲﾙにはﾃﾞｰﾀがありません"))
    return leaveSort();
  OtherFileSort sort(order.number(), chosen.item, msgAnswer == kYes);
  runSort(sort);
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
