#include "store/records/walk.h"

#include <algorithm>
#include <optional>

#include "platform/host.h"
#include "store/records/records.h"
#include "store/records/walkblock.h"
#include "store/table/notice.h"
#include "voice/progress.h"

namespace zelko {

namespace {

constexpr std::int32_t kFirstBlock = 16, kLargestBlock = 1024;  // records
constexpr std::int64_t kAskedAtEach = 4096;                     // so many records, then at every sixteenth
constexpr std::int64_t kAskedAtEvery = 16;

std::int64_t lengthOfWalk(const Walk& walk) {
  const std::int64_t last = walk.lengthens ? walk.last : std::min(walk.last, recCountOf(walk.file));
  return std::max<std::int64_t>(last - std::max(walk.first, 1) + 1, 0);
}

}  // namespace

class Walker {
 public:
  Walker(const Walk& walk, bool changes)
      : walk_(walk),
        changes_(changes),
        shape_(walk.shape ? *walk.shape : RecordShape::ofOpenTable()),
        total_(lengthOfWalk(walk)),
        lowest_(std::max(walk.first, 1)),
        highest_(static_cast<std::int32_t>(lowest_ + total_ - 1)),
        block_(walk.file, shape_),
        record_(shape_, *this) {
    if (!walk.progress && !walk.work.empty()) late_.emplace(walk.work, walk.doneBefore + total_);
  }

  WalkEnd run(const std::function<bool(ChangedRecord&)>& visit) {
    try {
      return visitAll(visit);
    } catch (...) {
      if (block_.holds(record_.number_)) block_.settle(record_.number_);
      block_.store(walk_.towardsHead, false);
      throw;
    }
  }

  void touch() { block_.touch(record_.number_); }

  // A question follows: the dialog goes, and opens again only when the walk itself takes its second.
  bool storeNow() {
    asked_ = true;
    if (late_) late_->close();
    block_.settle(record_.number_);
    isOld_ = true;
    failed_ = !block_.store(walk_.towardsHead) || failed_;
    return !failed_;
  }

 private:
  WalkEnd visitAll(const std::function<bool(ChangedRecord&)>& visit) {
    for (done_ = 1; done_ <= total_; ++done_) {
      if (!goOn()) return failed_ ? WalkEnd::failed : WalkEnd::stopped;
      const auto steps = static_cast<std::int32_t>(done_ - 1);
      if (!take(walk_.towardsHead ? highest_ - steps : lowest_ + steps)) return WalkEnd::failed;
      const bool further = visit(record_);
      if (asked_ && late_) late_->restart();
      asked_ = false;
      block_.settle(record_.number_);
      if (failed_) return WalkEnd::failed;
      if (!further) return block_.store(walk_.towardsHead) ? WalkEnd::left : WalkEnd::failed;
    }
    return block_.store(walk_.towardsHead) ? WalkEnd::done : WalkEnd::failed;
  }

  // Lets events through, behind what waits to be stored; false at a stop or where that failed.
  bool goOn() {
    if (done_ > kAskedAtEach && done_ % kAskedAtEvery != 0 && done_ != total_) return true;
    if (block_.waits()) {
      if (!shows() && !host().eventWaits()) return true;
      failed_ = !block_.store(walk_.towardsHead);
      if (failed_) return false;
    }
    isOld_ = isOld_ || block_.isOld();
    const std::int64_t done = walk_.doneBefore + done_;
    if (walk_.progress) return walk_.progress->step(done);
    if (late_) return late_->step(done);
    host().letEventsThrough();
    return true;
  }

  bool shows() {
    const std::int64_t done = walk_.doneBefore + done_;
    return walk_.progress ? walk_.progress->shows(done) : late_ && late_->shows(done);
  }

  bool take(std::int32_t number) {
    if (!block_.holds(number) || isOld_) {
      if (!block_.store(walk_.towardsHead)) return false;
      if (!load(number)) {
        if (changes_) tellReadError();
        return false;
      }
      isOld_ = false;
    }
    record_.number_ = number;
    record_.bytes_ = block_.visit(number);
    return true;
  }

  bool load(std::int32_t number) {
    const auto left = static_cast<std::int32_t>(total_ - done_ + 1);
    const std::int32_t count = std::min(left, blockRecords_);
    blockRecords_ = std::min(blockRecords_ * 4, kLargestBlock);
    return block_.load(walk_.towardsHead ? number - count + 1 : number, count);
  }

  const Walk& walk_;
  const bool changes_;
  const RecordShape shape_;
  const std::int64_t total_;
  const std::int32_t lowest_, highest_;
  std::optional<LateProgress> late_;
  RecordBlock block_;
  ChangedRecord record_;
  std::int64_t done_ = 0;
  std::int32_t blockRecords_ = kFirstBlock;
  bool isOld_ = false, failed_ = false, asked_ = false;
};

void ChangedRecord::setCell(int item, TextView text) {
  walker_.touch();
  putCell(bytes_, shape_.at(item), text);
}

void ChangedRecord::setCellBytes(int item, std::string_view bytes) {
  walker_.touch();
  putCellBytes(bytes_, shape_.at(item), bytes);
}

void ChangedRecord::setData(std::string_view data) {
  walker_.touch();
  const std::size_t length = std::min<std::size_t>(data.size(), kDataBytes);
  std::fill(std::copy_n(data.begin(), length, bytes_), bytes_ + kDataBytes, ' ');
}

bool ChangedRecord::store() { return walker_.storeNow(); }

WalkEnd walkRecords(const Walk& walk, const std::function<bool(const WalkedRecord&)>& look) {
  Walk reading = walk;
  reading.lengthens = false;
  return Walker(reading, false).run([&look](ChangedRecord& record) { return look(record); });
}

WalkEnd changeRecords(const Walk& walk, const std::function<bool(ChangedRecord&)>& change) {
  return Walker(walk, true).run(change);
}

}  // namespace zelko
