#include "tablejobs/sort/otherfilesort.h"

#include <algorithm>
#include <iterator>

#include "platform/files/blockfiles.h"
#include "store/records/records.h"
#include "store/records/walk.h"
#include "store/rewrite/rewrite.h"
#include "tablejobs/sort/sorting.h"
#include "voice/progress.h"

namespace zelko {

namespace {

constexpr int kDataFile = 1;

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

JobEnd writeOrder(RecordSpan span, const OtherOrder& found, Progress& progress, std::int64_t done) {
  const NewRecords records(span, found.records, recCount());
  const auto read = [&](std::int64_t first, std::size_t count, char* out) { return records.read(first, count, out); };
  return jobEndOf(rewriteTable(records.count(), read, [&](std::int64_t at) { return progress.step(done + at); }));
}

}  // namespace

// Each record of the order and of the range once, and each of the table as it is written.
std::int64_t stepsOfOrder(const OtherFileOrder& order) {
  return std::int64_t{recCountOf(order.orderFile)} + order.span.count() + recCount();
}

JobEnd sortAsListed(const OtherFileOrder& order, Progress& progress, OtherOrder& counts) {
  Keys listed(order.orderFile, RecordShape::ofOtherTable(), order.orderItem, order.caseCounts);
  Keys own(kDataFile, RecordShape::ofOpenTable(), order.item, order.caseCounts);
  std::int64_t done = 0;
  OtherOrderJob job;
  job.orderCount = recCountOf(order.orderFile);
  job.orderKeys = [&](std::int32_t first, std::int32_t last, const KeyVisit& visit) {
    return listed.walk(first, last, progress, done, visit);
  };
  job.first = order.span.first;
  job.last = order.span.last;
  job.rangeKeys = [&](std::int32_t first, std::int32_t last, const KeyVisit& visit) {
    return own.walk(first, last, progress, done, visit);
  };
  job.keyOf = [&](std::int32_t record) { return own.of(record); };
  auto found = orderAsListed(job);
  if (!found) return progress.stopped() ? JobEnd::stopped : JobEnd::failed;
  const JobEnd end = writeOrder(order.span, *found, progress, done);
  counts = std::move(*found);
  counts.records.clear();
  return end;
}

}  // namespace zelko
