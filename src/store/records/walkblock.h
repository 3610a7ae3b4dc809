// A block of records in memory, and what of it has to go back to the file; the walk's alone.
#pragma once

#include <cstdint>
#include <vector>

#include "store/records/recordshape.h"

namespace zelko {

class RecordBlock {
 public:
  RecordBlock(int file, const RecordShape& shape) : file_(file), shape_(shape) {}

  // Takes the records first..first + count - 1; those behind the end of the file are blank. False where one can't be
  // read.
  bool load(std::int32_t first, std::int32_t count);
  bool holds(std::int32_t record) const { return record >= first_ && record - first_ < count_; }
  void forget() { count_ = 0; }
  // Loaded a tenth of a second ago or more: another program may have written.
  bool isOld() const;
  char* bytesOf(std::int32_t record) { return held_.data() + offset(record); }
  // The bytes of a record that is visited: one behind the end of the file waits to be stored from here on.
  char* visit(std::int32_t record);

  // The record is about to be changed, and has been changed: one that is the same again does not wait.
  void touch(std::int32_t record);
  void settle(std::int32_t record);
  bool waits() const { return waiting_ > 0; }

  // Stores what waits, towards the end or the head of the file, so that a kill leaves no later change without an
  // earlier one. False where that failed: told by putRec, or with `tell` off not at all and less is tried.
  bool store(bool towardsHead, bool tell = true);

 private:
  // ahead: behind the end of the file, not visited yet; made: the same, visited
  enum class State : std::uint8_t { clean, changed, ahead, made };

  std::size_t offset(std::int32_t record) const { return static_cast<std::size_t>(record - first_) * recLen; }
  State& stateOf(std::int32_t record) { return states_[static_cast<std::size_t>(record - first_)]; }
  State stateOf(std::int32_t record) const { return states_[static_cast<std::size_t>(record - first_)]; }
  std::int32_t lengthOfRun(std::int32_t from, std::int32_t step, std::int32_t most) const;
  bool storeRun(std::int32_t first, std::int32_t last, bool tell);
  bool mergeOthers(std::int32_t first, std::int32_t last);
  bool writeRun(std::int32_t first, std::int32_t last);

  int file_;
  const RecordShape& shape_;
  std::int32_t first_ = 0, count_ = 0;
  std::int32_t waiting_ = 0;
  std::int64_t loadedAt_ = 0;                 // milliseconds
  std::vector<char> held_, before_, onDisk_;  // before_: as read, of changed records only
  std::vector<State> states_;
};

}  // namespace zelko
