#include "platform/text/decimaldigits.h"

#include <charconv>
#include <cmath>

#include "platform/fault.h"

namespace zelko {
namespace {

template <class Number>
DecimalDigits significant(Number value, int count) {
  if (!std::isfinite(value)) throw Fault{kOverflow};
  DecimalDigits result;
  if (value == 0) return result;
  result.negative = value < 0;

  char text[40];  // d.ddde-dd
  const auto end = std::to_chars(text, text + sizeof text, std::abs(value), std::chars_format::scientific, count - 1);
  const char* const exponent = text + count + 1;  // the "e"
  result.digits.assign(1, text[0]).append(text + 2, static_cast<std::size_t>(count) - 1);
  result.digits.resize(result.digits.find_last_not_of('0') + 1);
  std::from_chars(exponent + (exponent[1] == '+' ? 2 : 1), end.ptr, result.point);
  ++result.point;
  return result;
}

// One more in the last place; 9.99 becomes 10.
void roundUp(DecimalDigits& number) {
  while (!number.digits.empty() && number.digits.back() == '9') number.digits.pop_back();
  if (number.digits.empty()) {
    number.digits = "1";
    ++number.point;
  } else {
    ++number.digits.back();
  }
}

}  // namespace

DecimalDigits decimalDigits(double value) { return significant(value, 15); }
DecimalDigits decimalDigits(float value) { return significant(value, 7); }

void roundToPlaces(DecimalDigits& number, int places) {
  const int kept = number.point + places;
  if (kept >= static_cast<int>(number.digits.size())) return;
  if (kept < 0) {
    number.digits.clear();
    return;
  }
  const bool up = number.digits[static_cast<std::size_t>(kept)] >= '5';
  number.digits.resize(static_cast<std::size_t>(kept));
  if (up) return roundUp(number);
  number.digits.resize(number.digits.find_last_not_of('0') + 1);
}

}  // namespace zelko
