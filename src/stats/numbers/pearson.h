// Pearson's product-moment coefficient of two items.
#pragma once

#include <cstddef>
#include <span>

namespace zelko::numbers {

inline constexpr std::size_t kPearsonLimit = 1000;

struct Pearson {
  int n = 0;            // pairs: both values not 0 once they are whole numbers
  bool refused = true;  // n <= 1, or no spread on a side: r stays 0
  double r = 0;         // of the whole numbers; standardised, of the standard values rounded to whole numbers
  double exact = 0;     // of the values as they stand, over the same pairs
};

// x and y hold the same records, at most 1000 (a subscript fault). A value or a product beyond 32 bits is an overflow
// fault; products are those of standard values where `standardised`.
Pearson pearson(std::span<const double> x, std::span<const double> y, bool standardised);

}  // namespace zelko::numbers
