#include "tablejobs/sort/sortrange.h"

#include <algorithm>
#include <utility>

#include "platform/fault.h"
#include "platform/text/sjis.h"
#include "store/records/records.h"

namespace zelko {

namespace {

constexpr std::size_t kRecord = std::size_t{recLen};

CacheRow rowOf(std::string_view record) {
  CacheRow row;
  std::copy_n(record.begin(), kRecord, row.begin());
  return row;
}

// The first four units, the first one highest; shorter keys are filled up with zeros.
std::uint64_t headOf(TextView key) {
  std::uint64_t head = 0;
  for (std::size_t unit = 0; unit < 4; ++unit) head = head << 16 | (unit < key.size() ? key[unit] : 0u);
  return head;
}

}  // namespace

void checkSortable(std::int32_t first, std::int32_t last) {
  if (last > kLastSortable && last - first >= 2)
    throw Fault{Text(kOverflow) + u"32767記録目を超える範囲は、並べ替えができません。"};
}

SortRange::SortRange(std::int32_t first, std::string records) : first_(first), records_(std::move(records)) {
  places_.resize(records_.size() / kRecord);
  for (std::size_t place = 0; place < places_.size(); ++place) places_[place] = {0, static_cast<std::uint32_t>(place)};
}

std::string_view SortRange::record(std::int32_t place) const {
  return std::string_view(records_).substr(at(place).source * kRecord, kRecord);
}

void SortRange::cutKeys(int item) {
  keys_.clear();
  keyStarts_.assign(1, 0);
  keyStarts_.reserve(places_.size() + 1);
  for (std::size_t source = 0; source < places_.size(); ++source) {
    keys_ += cellOfRow(rowOf(std::string_view(records_).substr(source * kRecord, kRecord)), item);
    keyStarts_.push_back(static_cast<std::uint32_t>(keys_.size()));
  }
  for (Place& place : places_) place.head = headOf(keyOfSource(place.source));
}

TextView SortRange::keyOfSource(std::uint32_t source) const {
  return TextView(keys_).substr(keyStarts_[source], keyStarts_[source + 1] - keyStarts_[source]);
}

TextView SortRange::keyOf(std::int32_t place) const { return keyOfSource(at(place).source); }

int SortRange::compareKeys(std::int32_t left, std::int32_t right) const {
  const Place &a = at(left), &b = at(right);
  if (a.head != b.head) return a.head < b.head ? -1 : 1;
  return a.source == b.source ? 0 : keyOfSource(a.source).compare(keyOfSource(b.source));
}

void SortRange::swapRecords(std::int32_t a, std::int32_t b) { std::swap(at(a), at(b)); }

}  // namespace zelko
