#include "store/records/walkblock.h"

#include <algorithm>
#include <cstring>
#include <ctime>

#include "platform/files/blockfiles.h"
#include "store/records/records.h"

namespace zelko {

namespace {

constexpr std::int64_t kOldMilliseconds = 100;
constexpr std::int32_t kPageRecords = 4096 / recLen;  // a kill never parts a page

std::int64_t nowMilliseconds() {
  timespec now{};
  clock_gettime(CLOCK_MONOTONIC_COARSE, &now);
  return std::int64_t{now.tv_sec} * 1000 + now.tv_nsec / 1000000;
}

std::int64_t placeOf(std::int32_t record) { return (std::int64_t{record} - 1) * recLen; }

bool sameData(const char* one, const char* other) { return std::memcmp(one, other, kDataBytes) == 0; }

void endLine(char* record) {
  record[kDataBytes] = '\r';
  record[kDataBytes + 1] = '\n';
}

}  // namespace

bool RecordBlock::load(std::int32_t first, std::int32_t count) {
  first_ = first;
  count_ = count;
  waiting_ = 0;
  loadedAt_ = nowMilliseconds();
  const std::size_t size = static_cast<std::size_t>(count) * recLen;
  if (held_.size() < size) held_.resize(size);
  states_.assign(static_cast<std::size_t>(count), State::clean);
  const std::int32_t there = std::clamp(recCountOf(file_) - first + 1, 0, count);
  const std::size_t wanted = static_cast<std::size_t>(there) * recLen;
  std::size_t got = 0;
  if (there > 0 && (readBlock(file_, placeOf(first), held_.data(), wanted, got) != FileError::none || got != wanted)) {
    forget();
    return false;
  }
  for (std::int32_t record = first + there; record < first + count; ++record) {
    std::memset(bytesOf(record), ' ', kDataBytes);
    endLine(bytesOf(record));
    stateOf(record) = State::ahead;
  }
  return true;
}

char* RecordBlock::visit(std::int32_t record) {
  State& state = stateOf(record);
  if (state == State::ahead) {
    state = State::made;
    ++waiting_;
  }
  return bytesOf(record);
}

bool RecordBlock::isOld() const { return nowMilliseconds() - loadedAt_ >= kOldMilliseconds; }

void RecordBlock::touch(std::int32_t record) {
  State& state = stateOf(record);
  if (state != State::clean) return;
  if (before_.size() < held_.size()) before_.resize(held_.size());
  std::memcpy(before_.data() + offset(record), bytesOf(record), recLen);
  state = State::changed;
  ++waiting_;
}

void RecordBlock::settle(std::int32_t record) {
  State& state = stateOf(record);
  if (state == State::clean) return;
  const char* before = before_.data() + offset(record);
  if (state == State::made || !sameData(bytesOf(record), before)) return endLine(bytesOf(record));
  std::memcpy(bytesOf(record), before, recLen);
  state = State::clean;
  --waiting_;
}

bool RecordBlock::store(bool towardsHead, bool tell) {
  if (!waits()) return true;
  for (std::int32_t at = 0; at < count_;) {
    const std::int32_t from = towardsHead ? first_ + count_ - 1 - at : first_ + at;
    const std::int32_t length = lengthOfRun(from, towardsHead ? -1 : 1, count_ - at);
    at += length;
    const std::int32_t to = towardsHead ? from - length + 1 : from + length - 1;
    const bool waits = stateOf(from) == State::changed || stateOf(from) == State::made;
    if (waits && !storeRun(std::min(from, to), std::max(from, to), tell)) return false;
  }
  waiting_ = 0;
  return true;
}

// How many records from `from` on, at most `most`, are written at once or passed. Changed ones take along the unchanged
// between them where they share pages of the file: one write costs less than many.
std::int32_t RecordBlock::lengthOfRun(std::int32_t from, std::int32_t step, std::int32_t most) const {
  const State state = stateOf(from);
  std::int32_t length = 1;
  for (std::int32_t ahead = 1; ahead < most; ++ahead) {
    const std::int32_t record = from + ahead * step;
    const bool newPageUpwards = step < 0 && record % kPageRecords == 0;
    if (newPageUpwards) break;
    if (stateOf(record) == state) {
      length = ahead + 1;
      continue;
    }
    const bool mayBridge = state == State::changed && stateOf(record) == State::clean && step > 0;
    if (!mayBridge || ahead - length >= kPageRecords - 1) break;
  }
  return length;
}

bool RecordBlock::storeRun(std::int32_t first, std::int32_t last, bool tell) {
  const bool made = stateOf(first) == State::made;
  bool stored = (made || mergeOthers(first, last)) && writeRun(first, last);
  if (!stored && tell) {
    // One by one, so that what can be stored is, and what cannot is told with its reason.
    stored = true;
    for (std::int32_t record = first; record <= last && stored; ++record)
      stored = stateOf(record) == State::clean || putRec(file_, record, {bytesOf(record), recLen});
  }
  if (stored) std::fill(states_.begin() + (first - first_), states_.begin() + (last - first_) + 1, State::clean);
  return stored;
}

// What stands on the disk by now, with the cells that we changed over it; a record that we did not change as it stands.
bool RecordBlock::mergeOthers(std::int32_t first, std::int32_t last) {
  const std::size_t size = static_cast<std::size_t>(last - first + 1) * recLen;
  if (onDisk_.size() < size) onDisk_.resize(size);
  std::size_t got = 0;
  if (readBlock(file_, placeOf(first), onDisk_.data(), size, got) != FileError::none || got != size) return false;
  for (std::int32_t record = first; record <= last; ++record) {
    const char* onDisk = onDisk_.data() + (record - first) * recLen;
    if (stateOf(record) == State::clean)
      std::memcpy(bytesOf(record), onDisk, recLen);
    else if (const char* before = before_.data() + offset(record); std::memcmp(onDisk, before, recLen) != 0)
      keepOthersCells(bytesOf(record), before, onDisk, shape_);
  }
  return true;
}

bool RecordBlock::writeRun(std::int32_t first, std::int32_t last) {
  if (mayWriteRecords(file_) != FileError::none) return false;
  const bool made = stateOf(first) == State::made;
  const std::int64_t length = fileLength(file_);
  const std::size_t size = static_cast<std::size_t>(last - first + 1) * recLen;
  if (writeBlock(file_, placeOf(first), {bytesOf(first), size}) == FileError::none) return true;
  // No record is left half written.
  if (made)
    cutOpenFile(file_, length);
  else
    writeBlock(file_, placeOf(first), {onDisk_.data(), size});
  return false;
}

}  // namespace zelko
