#include "tablejobs/replace/formatcell.h"

#include <algorithm>
#include <array>

#include "platform/text/format.h"
#include "platform/text/number.h"
#include "platform/text/numcheck.h"

namespace zelko {

namespace {

constexpr DateTime kSomeDay{2026, 1, 5, 0, 0, 0}, kOtherDay{1988, 12, 31, 0, 0, 0};

Text timeOn(const DateTime& day, TextView time) { return shortDate(day) + u" " + Text(time); }

std::optional<Text> formattedDate(TextView cell, TextView pattern) {
  if (const auto when = dateFromText(cell)) return formatDate(*when, pattern);
  const auto some = dateFromText(timeOn(kSomeDay, cell)), other = dateFromText(timeOn(kOtherDay, cell));
  if (!some || !other) return std::nullopt;
  Text result = formatDate(*some, pattern);
  if (result != formatDate(*other, pattern)) return std::nullopt;
  return result;
}

bool isClosed(TextView pattern) {
  bool quoted = false, escaped = false;
  for (const char16_t ch : pattern) {
    if (escaped) {
      escaped = false;
    } else if (ch == u'"') {
      quoted = !quoted;
    } else if (ch == u'\\' && !quoted) {
      escaped = true;
    }
  }
  return !quoted && !escaped;
}

template <class Values, class Formatter>
bool tellsTheValue(const Values& values, Formatter formatter) {
  const Text first = formatter(values.front());
  return std::any_of(values.begin(), values.end(), [&](const auto& value) { return formatter(value) != first; });
}

bool isUsable(FormatKind kind, TextView pattern) {
  if (trimmed(pattern).empty()) return false;
  switch (kind) {
    case FormatKind::number:
      return isClosed(pattern) &&
             tellsTheValue(std::array{0.0, 1.0, 27.5, 12345.678}, [&](double value) { return format(value, pattern); });
    case FormatKind::date:
      return isClosed(pattern) &&
             tellsTheValue(std::array{DateTime{2026, 1, 5, 1, 2, 3}, DateTime{1988, 12, 31, 14, 35, 46}},
                           [&](const DateTime& value) { return formatDate(value, pattern); });
    case FormatKind::text:
      break;
  }
  return true;
}

}  // namespace

std::optional<Text> formattedCell(FormatKind kind, TextView cell, TextView pattern) {
  if (cell.empty()) return std::nullopt;
  switch (kind) {
    case FormatKind::number:
      if (!isWholeNumber(cell)) return std::nullopt;
      return format(val(cell), pattern);
    case FormatKind::date:
      return formattedDate(cell, pattern);
    case FormatKind::text:
      break;
  }
  return formatText(cell, pattern);
}

std::optional<Text> formatSample(FormatKind kind, TextView pattern, const DateTime& now) {
  if (!isUsable(kind, pattern)) return std::nullopt;
  switch (kind) {
    case FormatKind::number:
      return format(12345.678, pattern);
    case FormatKind::date:
      return formatDate(now, pattern);
    case FormatKind::text:
      break;
  }
  return formatText(u"AbcXyz", pattern);
}

}  // namespace zelko
