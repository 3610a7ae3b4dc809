// Which items and records an analysis of variance takes, and the questions for the items of a design.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "platform/text/text.h"

namespace zelko {

struct ItemSpan {
  std::int16_t first = 1, last = 0;
  int count() const { return last - first + 1; }
  bool holds(std::int16_t item) const { return first <= item && item <= last; }
};

// The items of the held range, else all but the ID item.
ItemSpan itemsOfRange();
std::vector<std::int16_t> listOf(const ItemSpan& items);

// Stores the row and takes the records of the range. False, told, where there are none, or more than 600.
bool beginVariance();

// The items of a design with grouping items.
struct DesignItems {
  ItemSpan values;                   // one, or the run that is the levels of B
  std::vector<std::int16_t> groups;  // of A, B, C
};

enum class AskedValues { item, run };
enum class ThirdFactor { none, treatment, subject };

// Asks for the items one after the other, a wrong one told and asked again. Of a run, the items are the levels of B,
// and A alone is asked for. Nothing where the user ended the questions.
std::optional<DesignItems> askDesignItems(AskedValues values, ThirdFactor third);

// "3:国語", and of a run "3:国語～5:理科".
Text itemWords(std::int16_t item);
Text itemWords(const ItemSpan& items);

}  // namespace zelko
