#include "platform/text/number.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <memory>

#include "platform/fault.h"
#include "platform/text/decimaldigits.h"

namespace zelko {
namespace {

constexpr bool isSkipped(char16_t unit) { return unit == u' ' || unit == u'\t' || unit == u'\n'; }
constexpr bool isDigit(char byte) { return byte >= '0' && byte <= '9'; }

// The characters that can stand in a number, blanks dropped, up to the first that cannot. A sentinel NUL ends them.
char* cleaned(TextView text, char* out) {
  for (const char16_t unit : text) {
    if (isSkipped(unit)) continue;
    if (unit <= u' ' || unit > u'z') break;
    *out++ = static_cast<char>(unit);
  }
  *out = '\0';
  return out;
}

// Up to 4 hex digits, or an octal value up to 16 bits, are a signed 16-bit value; longer ones a signed 32-bit one,
// of which no further digit is taken than fits.
double radixValue(const char* digits, const char* end, int base) {
  const std::ptrdiff_t longest = base == 16 ? 8 : 11;
  const char* const limit = end - digits > longest ? digits + longest : end;
  std::uint64_t value = 0;
  const auto read = std::from_chars(digits, limit, value, base);
  if (value > 0xFFFFFFFFu) value >>= 3;  // eleven octal digits can be 33 bits
  const bool isShort = base == 16 ? read.ptr - digits <= 4 : value <= 0xFFFF;
  if (isShort) return static_cast<std::int16_t>(value);
  return static_cast<std::int32_t>(value);
}

struct Scanned {
  char* end;       // behind the longest prefix that makes a number
  bool beyondOne;  // its magnitude is 1 or more, whatever the size
};

char* skipDigits(char* at) {
  while (isDigit(*at)) ++at;
  return at;
}

// Stops at the first character that does not belong to the number, and makes the exponent's letter an "e".
Scanned scan(char* at) {
  char* const whole = at;
  at = skipDigits(at);
  std::ptrdiff_t digits = at - whole;
  char* firstDigit = whole;
  while (*firstDigit == '0') ++firstDigit;
  long magnitude = static_cast<long>(at - firstDigit);
  if (*at == '.') {
    char* const fraction = at + 1;
    at = skipDigits(fraction);
    digits += at - fraction;
    char* nonZero = fraction;
    while (*nonZero == '0') ++nonZero;
    if (magnitude == 0) magnitude = static_cast<long>(fraction - nonZero);
  }
  if (digits == 0) return {whole, false};
  if (*at == 'E' || *at == 'e' || *at == 'D' || *at == 'd') {
    char* exponent = at + 1;
    const bool down = *exponent == '-';
    if (*exponent == '+' || down) ++exponent;
    char* const end = skipDigits(exponent);
    if (end != exponent) {
      long value = 0;
      const auto read = std::from_chars(exponent, end, value);
      if (read.ec != std::errc() || value > 1'000'000'000) value = 1'000'000'000;
      magnitude += down ? -value : value;
      *at = 'e';
      at = end;
    }
  }
  return {at, magnitude > 0};
}

double cleanedValue(char* at, char* end) {
  if (at[0] == '&' && (at[1] == 'H' || at[1] == 'h')) return radixValue(at + 2, end, 16);
  if (at[0] == '&' && (at[1] == 'O' || at[1] == 'o')) return radixValue(at + 2, end, 8);

  const bool negative = *at == '-';
  if (negative || *at == '+') ++at;
  const Scanned number = scan(at);
  if (number.end == at) return 0;
  double value = 0;
  const auto read = std::from_chars(at, number.end, value);
  if (read.ec == std::errc::result_out_of_range) {
    if (number.beyondOne) throw Fault{kOverflow};
    return 0;
  }
  return negative ? -value : value;
}

template <class Number>
Text textForm(Number value, int precision) {
  const DecimalDigits number = decimalDigits(value);
  std::string text = number.negative ? "-" : " ";
  const std::string& digits = number.digits;
  const int count = static_cast<int>(digits.size());
  if (digits.empty()) {
    text += '0';
  } else if (number.point > precision || count - number.point > precision) {
    text += digits[0];
    if (count > 1) text.append(".").append(digits, 1);
    const int exponent = number.point - 1;
    text += exponent < 0 ? "E-" : "E+";
    if (std::abs(exponent) < 10) text += '0';
    text += std::to_string(std::abs(exponent));
  } else if (number.point >= count) {
    text.append(digits).append(static_cast<std::size_t>(number.point - count), '0');
  } else if (number.point > 0) {
    const auto whole = static_cast<std::size_t>(number.point);
    text.append(digits, 0, whole).append(".").append(digits, whole);
  } else {
    text.append(".").append(static_cast<std::size_t>(-number.point), '0').append(digits);
  }
  return Text(text.begin(), text.end());
}

template <class Integer>
Integer toInteger(double value) {
  const double rounded = std::nearbyint(value);  // half to even, the mode that nothing here changes
  const bool fits = rounded >= std::numeric_limits<Integer>::min() && rounded <= std::numeric_limits<Integer>::max();
  if (!fits) throw Fault{kOverflow};
  return static_cast<Integer>(rounded);
}

}  // namespace

double val(TextView text) {
  char small[128];
  if (text.size() < sizeof small) return cleanedValue(small, cleaned(text, small));
  const auto large = std::make_unique_for_overwrite<char[]>(text.size() + 1);
  return cleanedValue(large.get(), cleaned(text, large.get()));
}

Text str(double value) { return textForm(value, 15); }
Text str(float value) { return textForm(value, 7); }

Text str(std::int64_t value) { return value < 0 ? decimal(value) : u" " + decimal(value); }

Text decimal(std::int64_t value) {
  const std::string digits = std::to_string(value);
  return Text(digits.begin(), digits.end());
}

std::int16_t toInt16(double value) { return toInteger<std::int16_t>(value); }
std::int32_t toInt32(double value) { return toInteger<std::int32_t>(value); }

}  // namespace zelko
