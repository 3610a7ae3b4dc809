#include "tablejobs/sort/sorting.h"

#include <algorithm>
#include <utility>

#include "platform/files/blockfiles.h"
#include "platform/files/workfiles.h"
#include "platform/host.h"
#include "store/records/appender.h"
#include "store/records/records.h"
#include "store/rewrite/rewrite.h"
#include "store/table/itemfile.h"

namespace zelko {

namespace {

constexpr int kDataFile = 1;
constexpr std::size_t kRecord = std::size_t{recLen};
constexpr std::int64_t kBlock = 262144;

bool readRecords(std::int64_t first, std::size_t count, char* out) {
  std::size_t got = 0;
  const std::size_t size = count * kRecord;
  return readBlock(kDataFile, first * recLen, out, size, got) == FileError::none && got == size;
}

// The records of the table with those of the range in their order.
bool readSorted(const SortRange& range, std::int64_t first, std::size_t count, char* out) {
  for (std::size_t done = 0; done < count;) {
    const std::int64_t number = first + static_cast<std::int64_t>(done) + 1;
    if (number >= range.first() && number <= range.last()) {
      std::ranges::copy(range.record(static_cast<std::int32_t>(number)), out + done * kRecord);
      ++done;
      continue;
    }
    const std::int64_t left = static_cast<std::int64_t>(count - done);
    const std::int64_t stretch = number < range.first() ? std::min(left, range.first() - number) : left;
    if (!readRecords(number - 1, static_cast<std::size_t>(stretch), out + done * kRecord)) return false;
    done += static_cast<std::size_t>(stretch);
  }
  return true;
}

JobEnd copyWhole(OwnedFile& copy, const SortGoesOn& goesOn) {
  std::string block(static_cast<std::size_t>(kBlock), '\0');
  const std::int64_t length = std::int64_t{recCount()} * recLen;
  for (std::int64_t at = 0; at < length; at += kBlock) {
    if (!goesOn()) return JobEnd::stopped;
    const auto size = static_cast<std::size_t>(std::min(kBlock, length - at));
    std::size_t got = 0;
    if (readBlock(kDataFile, at, block.data(), size, got) != FileError::none || got != size) return JobEnd::failed;
    if (writeBlock(copy.number(), at, std::string_view(block).substr(0, size)) != FileError::none)
      return JobEnd::failed;
  }
  return syncFile(copy.number()) == FileError::none ? JobEnd::done : JobEnd::failed;
}

}  // namespace

JobEnd jobEndOf(RewriteEnd end) {
  switch (end) {
    case RewriteEnd::done:
      return JobEnd::done;
    case RewriteEnd::stopped:
      return JobEnd::stopped;
    case RewriteEnd::refused:
      return JobEnd::refused;
    case RewriteEnd::failed:
      break;
  }
  return JobEnd::failed;
}

std::optional<SortRange> rangeInMemory(std::int32_t first, std::int32_t last) {
  checkSortable(first, last);
  std::string records(static_cast<std::size_t>(std::max(0, last - first + 1)) * kRecord, '\0');
  if (!records.empty() && !readRecords(first - 1, records.size() / kRecord, records.data())) return std::nullopt;
  return SortRange(first, std::move(records));
}

JobEnd makeSafetyCopy(const SortGoesOn& goesOn) {
  const Text name = besideTable(kSafetyCopy);
  OwnedFile copy;
  if (removeOwnName(name) != FileError::none) return JobEnd::failed;
  if (copy.createRandom(name, recLen) != FileError::none) return JobEnd::failed;
  copyPermissions(joinName(docDrive, docPath), name);
  JobEnd end = copyWhole(copy, goesOn);
  if (copy.close() != FileError::none && end == JobEnd::done) end = JobEnd::failed;
  if (end != JobEnd::done) removeOwnName(name);
  return end;
}

JobEnd sortInPlace(std::int32_t first, std::int32_t last, const std::vector<SortKey>& keys, const SortGoesOn& goesOn) {
  std::optional<SortRange> range = rangeInMemory(first, last);
  if (!range) return JobEnd::failed;
  const bool finished = sortByKeys(*range, keys, goesOn);
  const auto read = [&](std::int64_t at, std::size_t count, char* out) { return readSorted(*range, at, count, out); };
  // What is in order by now is written whatever is asked meanwhile: there is nothing to go back to.
  const auto onlyLook = [](std::int64_t) {
    host().letEventsThrough();
    return true;
  };
  const JobEnd end = jobEndOf(rewriteTable(recCount(), read, onlyLook));
  return end != JobEnd::done || finished ? end : JobEnd::stopped;
}

JobEnd sortInto(RecordAppender& output, std::int32_t first, std::int32_t last, const std::vector<SortKey>& keys,
                const SortGoesOn& goesOn) {
  std::optional<SortRange> range = rangeInMemory(first, last);
  if (!range) return JobEnd::failed;
  if (!sortByKeys(*range, keys, goesOn)) return JobEnd::stopped;
  for (std::int32_t place = first; place <= last; ++place)
    if (!output.append(range->record(place))) return JobEnd::failed;
  return JobEnd::done;
}

}  // namespace zelko
