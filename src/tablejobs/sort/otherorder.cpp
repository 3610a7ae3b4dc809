#include "tablejobs/sort/otherorder.h"

#include <algorithm>
#include <bit>

namespace zelko {

namespace {

constexpr std::int32_t kStretch = 1 << 20;

// Records of a stretch of the range by their keys: chains in the order of the records, which get shorter as records are
// taken.
class KeyIndex {
 public:
  explicit KeyIndex(std::size_t records) : heads_(std::bit_ceil(records + 1), kNone) { entries_.reserve(records); }

  void add(std::int32_t record, TextView key) { entries_.push_back({hashOf(key), record, kNone}); }

  void finish() {
    for (std::size_t entry = entries_.size(); entry-- > 0;) {
      std::uint32_t& head = headOf(entries_[entry].hash);
      entries_[entry].next = head;
      head = static_cast<std::uint32_t>(entry);
    }
  }

  // Two keys may share a hash, so the key is read again. 0 where there is none.
  std::int32_t take(TextView key, const std::function<Text(std::int32_t)>& keyOf) {
    const std::uint32_t hash = hashOf(key);
    for (std::uint32_t* at = &headOf(hash); *at != kNone; at = &entries_[*at].next) {
      const Entry& entry = entries_[*at];
      if (entry.hash != hash || keyOf(entry.record) != key) continue;
      *at = entry.next;
      return entry.record;
    }
    return 0;
  }

 private:
  static constexpr std::uint32_t kNone = 0xFFFFFFFF;
  struct Entry {
    std::uint32_t hash;
    std::int32_t record;
    std::uint32_t next;
  };

  static std::uint32_t hashOf(TextView key) {
    const std::uint64_t hash = std::hash<TextView>{}(key);
    return static_cast<std::uint32_t>(hash ^ hash >> 32);
  }
  std::uint32_t& headOf(std::uint32_t hash) { return heads_[hash & (heads_.size() - 1)]; }

  std::vector<std::uint32_t> heads_;
  std::vector<Entry> entries_;
};

class Ordering {
 public:
  explicit Ordering(const OtherOrderJob& job) : job_(job), gone_(static_cast<std::size_t>(job.last - job.first + 1)) {}

  std::optional<OtherOrder> run() {
    std::int32_t first = job_.first;
    do {
      const std::int32_t last = std::min(job_.last - first, kStretch - 1) + first;
      if (!findIn(first, last)) return std::nullopt;
      if (last == job_.last) break;
      first = last + 1;
    } while (true);
    addRest();
    return std::move(order_);
  }

 private:
  bool findIn(std::int32_t first, std::int32_t last) {
    KeyIndex index(static_cast<std::size_t>(last - first + 1));
    const auto note = [&](std::int32_t record, const Text& key, bool blank) {
      if (!key.empty()) index.add(record, key);
      if (blank) gone_[static_cast<std::size_t>(record - job_.first)] = true;
      return true;
    };
    if (!job_.rangeKeys(first, last, note)) return false;
    index.finish();
    std::size_t at = 0;
    const bool isFirst = first == job_.first;
    const auto find = [&](std::int32_t, const Text& key, bool) {
      if (key.empty()) return true;
      if (isFirst) order_.records.push_back(0);
      std::uint32_t& found = order_.records[at++];
      if (found == 0) found = taken(index.take(key, job_.keyOf));
      return true;
    };
    return job_.orderCount == 0 || job_.orderKeys(1, job_.orderCount, find);
  }

  std::uint32_t taken(std::int32_t record) {
    if (record != 0) gone_[static_cast<std::size_t>(record - job_.first)] = true;
    return static_cast<std::uint32_t>(record);
  }

  void addRest() {
    const auto listed = static_cast<std::int32_t>(order_.records.size());
    order_.notFound = static_cast<std::int32_t>(std::ranges::count(order_.records, 0u));
    order_.found = listed - order_.notFound;
    for (std::size_t record = 0; record < gone_.size(); ++record)
      if (!gone_[record])
        order_.records.push_back(static_cast<std::uint32_t>(job_.first) + static_cast<std::uint32_t>(record));
    order_.kept = static_cast<std::int32_t>(order_.records.size()) - listed;
  }

  const OtherOrderJob& job_;
  std::vector<bool> gone_;
  OtherOrder order_;
};

}  // namespace

std::optional<OtherOrder> orderAsListed(const OtherOrderJob& job) { return Ordering(job).run(); }

}  // namespace zelko
