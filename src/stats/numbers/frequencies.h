// The frequency list of an item's texts.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <vector>

namespace zelko::numbers {

// A cell whose whole text is this mark is dropped: the count uses it for what is counted already.
inline constexpr const char16_t* kCountedMark = u"ﾟ";
inline constexpr std::size_t kFrequencyLimit = 1200;

struct Frequency {
  std::u16string text;
  int count = 0;
};

struct Frequencies {
  int n = 0;                      // all cells, blank and dropped ones too: the base of the percents
  std::vector<Frequency> listed;  // ascending by code unit
  std::vector<Frequency> hidden;  // counted but never listed: not between the character 31 and the mark
};

// Exact, untrimmed texts. More than 1200 cells is a subscript fault.
Frequencies frequencies(std::span<const std::u16string> cells);

// The number of signs in a row's bar: one for each 2.5 %, rounded half to even.
int barLength(int count, int n);

}  // namespace zelko::numbers
