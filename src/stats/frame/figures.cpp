#include "stats/frame/figures.h"

#include <algorithm>

#include "platform/text/format.h"
#include "platform/text/number.h"

namespace zelko {

namespace {

constexpr std::size_t kShift = 45;  // zeros on each side: more than the exponents of a report need

// The digits with their point moved, zeros of both ends gone but the one before the point.
Text moved(TextView digits, int exponent) {
  const std::size_t point = std::min(digits.find(u'.'), digits.size());
  Text all = Text(digits.substr(0, point));
  if (point < digits.size()) all += digits.substr(point + 1);
  const std::size_t zeros = std::max(kShift, static_cast<std::size_t>(std::abs(exponent)) + digits.size());
  all = Text(zeros, u'0') + all + Text(zeros, u'0');
  const std::size_t at = static_cast<std::size_t>(static_cast<int>(zeros + point) + exponent);
  Text whole = all.substr(0, at), part = all.substr(at);
  whole.erase(0, std::min(whole.find_first_not_of(u'0'), whole.size()));
  part.erase(part.find_last_not_of(u'0') + 1);
  return (whole.empty() ? Text(u"0") : whole) + (part.empty() ? part : u"." + part);
}

}  // namespace

Text plainDecimal(TextView number) {
  Text text = trimmedLeft(trimmedRight(number));
  const bool isNegative = !text.empty() && text.front() == u'-';
  if (isNegative || (!text.empty() && text.front() == u'+')) text.erase(0, 1);
  const std::size_t mark = std::min(text.find_first_of(u"EDed"), text.size());
  const int exponent = mark < text.size() ? static_cast<int>(val(TextView(text).substr(mark + 1))) : 0;
  const Text plain = moved(TextView(text).substr(0, mark), exponent);
  return isNegative && plain != u"0" ? u"-" + plain : plain;
}

Text plainDecimal(double value) { return plainDecimal(str(value)); }

Text figure(double value, std::size_t width, std::size_t decimals) {
  Text digits = format(value, u"0." + Text(decimals, u'0'));
  if (digits.find_first_not_of(u"-0.") == Text::npos && digits.front() == u'-') digits.erase(0, 1);
  return digits.size() < width ? Text(width - digits.size(), u' ') + digits : u" " + digits;
}

}  // namespace zelko
