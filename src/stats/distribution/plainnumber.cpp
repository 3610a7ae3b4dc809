#include "stats/distribution/plainnumber.h"

#include <cmath>

#include "platform/text/format.h"
#include "platform/text/number.h"

namespace zelko {

namespace {

Text withZero(Text number) {
  number = trimmed(number);
  const std::size_t point = number.starts_with(u'-') ? 1 : 0;
  if (number.substr(point).starts_with(u'.')) number.insert(point, 1, u'0');
  return number;
}

}  // namespace

Text plainNumber(double value) { return withZero(str(value)); }

Text plainNumber(float value) { return withZero(str(value)); }

Text saidNumber(double value) {
  constexpr double kLeastInPlaces = 0.01;
  if (value != 0 && std::abs(value) < kLeastInPlaces) return plainNumber(static_cast<float>(value));
  Text number = format(value, u"0.####");
  if (number.ends_with(u'.')) number.pop_back();
  return number;
}

}  // namespace zelko
