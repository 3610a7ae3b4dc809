// A range of records in memory while it is put in order: swaps change places there, and never a file.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/text/text.h"

namespace zelko {

// Positions of a sort are 16-bit numbers: a range of more than two records that ends behind this one can't be sorted.
inline constexpr std::int32_t kLastSortable = 32767;
// Throws the overflow fault for such a range, with a sentence that names the limit.
void checkSortable(std::int32_t first, std::int32_t last);

// Asked now and then on the way; false stops the sort where it stands, every record there once.
using SortGoesOn = std::function<bool()>;

class SortRange {
 public:
  // Records `first` to `last` of a table of these bytes: their 256 bytes each, one behind the other.
  SortRange(std::int32_t first, std::string records);

  std::int32_t first() const { return first_; }
  std::int32_t last() const { return first_ + static_cast<std::int32_t>(places_.size()) - 1; }

  // The 256 bytes of the record that stands at that place now.
  std::string_view record(std::int32_t place) const;
  // Cuts the keys of all records once: the cell of `item` as text, as it stands.
  void cutKeys(int item);
  // The key of the record at that place, of the item whose keys were cut last.
  TextView keyOf(std::int32_t place) const;
  // Below, at or above 0, by code units.
  int compareKeys(std::int32_t left, std::int32_t right) const;
  void swapRecords(std::int32_t a, std::int32_t b);

 private:
  struct Place {
    std::uint64_t head;    // the first four units of the key, for a quick comparison
    std::uint32_t source;  // which of the loaded records stands here
  };
  const Place& at(std::int32_t place) const { return places_[static_cast<std::size_t>(place - first_)]; }
  Place& at(std::int32_t place) { return places_[static_cast<std::size_t>(place - first_)]; }
  TextView keyOfSource(std::uint32_t source) const;

  std::int32_t first_;
  std::string records_;
  std::vector<Place> places_;
  Text keys_;
  std::vector<std::uint32_t> keyStarts_;
};

// A place in the range by chance.
std::int32_t pickPivot(std::int32_t first, std::int32_t last);

// Puts the records from `first` to `last` in order by the cell of `item`. False where it was stopped. Equal keys
// stand in any order.
bool quickSortFile(SortRange& range, std::int32_t first, std::int32_t last, int item, bool ascending,
                   const SortGoesOn& goesOn);

struct SortKey {
  int item = 0;
  bool ascending = true;
};

// From `end`, the end of the run before, to the next run of records whose cells in the item of the key before are
// equal when trimmed. Behind the range's end it begins anew at its beginning.
void nextKeyRun(const SortRange& range, std::int32_t& start, std::int32_t& end, int item);

// By several keys, the first one counts most: each further key within the runs of the key right before it, whatever the
// keys before that one say. False where it was stopped.
bool sortByKeys(SortRange& range, const std::vector<SortKey>& keys, const SortGoesOn& goesOn);

}  // namespace zelko
