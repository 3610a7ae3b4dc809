// The significant decimal digits of a number, as the number formats share them.
#pragma once

#include <string>

namespace zelko {

// 0.d1d2d3... times ten to the `point`; no leading and no trailing zeros, "" for zero.
struct DecimalDigits {
  bool negative = false;
  std::string digits;
  int point = 0;
};

// 15 digits of a double, 7 of a single, rounded from the exact value. Faults with an overflow where the value is
// no finite number.
DecimalDigits decimalDigits(double value);
DecimalDigits decimalDigits(float value);

// Cuts to `places` digits behind the decimal point, rounding half away from zero.
void roundToPlaces(DecimalDigits& number, int places);

}  // namespace zelko
