#include "store/rewrite/rewrite.h"

#include <algorithm>
#include <cstring>
#include <memory>

#include "store/table/table.h"

namespace zelko {
namespace {

constexpr std::size_t kBlockRecords = 2048;  // half a megabyte, which the processor's cache holds
constexpr std::int64_t kAskedAtEach = 4096;  // records at which each one is asked about
constexpr std::int64_t kAskedAtEvery = 256;  // then only every so many
constexpr std::size_t kRecord = std::size_t{recLen};

class Walk {
 public:
  Walk(const RewritePlan& plan, const ReadRecords& read, const WriteRecords& write, const KeepGoing& keepGoing)
      : plan_(plan),
        read_(read),
        write_(write),
        keepGoing_(keepGoing),
        total_(recordsOf(plan)),
        old_(blockRecords() * kRecord) {
    made_.resize(plan.cells.empty() ? 0 : old_.size());
  }

  RewriteEnd run() {
    for (const Stretch& stretch : plan_.stretches) {
      for (std::int32_t at = 0; at < stretch.count;) {
        const auto count = std::min<std::size_t>(kBlockRecords, static_cast<std::size_t>(stretch.count - at));
        const RewriteEnd end = block(stretch, at, count);
        if (end != RewriteEnd::done) return end;
        at += static_cast<std::int32_t>(count);
      }
    }
    return RewriteEnd::done;
  }

 private:
  std::size_t blockRecords() const { return std::min<std::size_t>(kBlockRecords, static_cast<std::size_t>(total_)); }

  RewriteEnd block(const Stretch& stretch, std::int32_t at, std::size_t count) {
    if (stretch.first == 0)
      std::memset(old_.data(), ' ', count * kRecord);
    else if (!read_(std::int64_t{stretch.first} - 1 + at, count, old_.data()))
      return RewriteEnd::failed;
    char* out = plan_.cells.empty() ? old_.data() : made_.data();
    for (std::size_t i = 0; i < count; ++i) {
      char* record = out + i * kRecord;
      if (!plan_.cells.empty()) make(old_.data() + i * kRecord, record);
      record[kDataBytes] = '\r';
      record[kDataBytes + 1] = '\n';
      if (!goOn()) return RewriteEnd::stopped;
    }
    return write_({out, count * kRecord}) ? RewriteEnd::done : RewriteEnd::failed;
  }

  void make(const char* old, char* record) const {
    if (plan_.overOld)
      std::memcpy(record, old, kRecord);
    else
      std::memset(record, ' ', kRecord);
    layCells(plan_.cells, old, record);
  }

  bool goOn() {
    ++done_;
    const bool asks = done_ <= kAskedAtEach || done_ % kAskedAtEvery == 0 || done_ == total_;
    return !asks || keepGoing_(done_);
  }

  const RewritePlan& plan_;
  const ReadRecords& read_;
  const WriteRecords& write_;
  const KeepGoing& keepGoing_;
  const std::int64_t total_;
  std::int64_t done_ = 0;
  std::vector<char> old_, made_;
};

}  // namespace

std::int64_t recordsOf(const RewritePlan& plan) {
  std::int64_t records = 0;
  for (const Stretch& stretch : plan.stretches) records += stretch.count;
  return records;
}

RewriteEnd rewriteRecords(const RewritePlan& plan, const ReadRecords& read, const WriteRecords& write,
                          const KeepGoing& keepGoing) {
  return Walk(plan, read, write, keepGoing).run();
}

}  // namespace zelko
