#include "dial/phonenumber.h"

#include <algorithm>

#include "platform/text/width.h"

namespace zelko {

namespace {

constexpr std::size_t kFewestDigits = 9, kMostDigits = 11;

bool isDigit(char16_t c) { return c >= u'0' && c <= u'9'; }
bool belongs(char16_t c) { return isDigit(c) || c == u'-'; }
bool isBetween(char16_t c) { return c == u'-' || c == u'(' || c == u')'; }
std::size_t digitsOf(TextView text) {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), isDigit));
}

// The run that begins at `from`, without what stands behind its last digit.
TextView runAt(TextView text, std::size_t from) {
  std::size_t end = from, behindDigit = from;
  for (; end < text.size() && (isDigit(text[end]) || isBetween(text[end])); ++end)
    if (isDigit(text[end])) behindDigit = end + 1;
  return text.substr(from, behindDigit - from);
}

}  // namespace

Text numberOfCell(TextView cell) {
  const Text text = toHalfWidth(cell);
  const std::size_t hyphen = text.find(u'-');
  if (hyphen == Text::npos) {
    Text digits;
    std::copy_if(text.begin(), text.end(), std::back_inserter(digits), isDigit);
    return digits;
  }
  std::size_t first = hyphen, end = hyphen + 1;
  while (first > 0 && belongs(text[first - 1])) --first;
  while (end < text.size() && belongs(text[end])) ++end;
  const Text run = text.substr(first, end - first);
  return digitsOf(run) > 0 ? run : Text();
}

Text numberInText(TextView text) {
  const Text half = toHalfWidth(text);
  for (std::size_t at = 0; at < half.size(); ++at) {
    const bool begins = isDigit(half[at]) || half[at] == u'(';
    if (!begins || (at > 0 && isDigit(half[at - 1]))) continue;
    const TextView run = runAt(half, at);
    const std::size_t first = run.find_first_of(u"0123456789"), digits = digitsOf(run);
    if (first != TextView::npos && run[first] == u'0' && digits >= kFewestDigits && digits <= kMostDigits)
      return Text(run);
    if (!run.empty()) at += run.size() - 1;
  }
  return {};
}

Text spokenNumber(TextView number) {
  Text out;
  for (const char16_t c : number) {
    if (c == u'(' || c == u')') continue;
    if (!out.empty()) out += u'､';
    out += c == u'-' ? u'の' : c;
  }
  return out;
}

Text linkOf(TextView number) {
  const Text half = toHalfWidth(number);
  Text digits;
  std::copy_if(half.begin(), half.end(), std::back_inserter(digits), isDigit);
  if (digits.empty()) return {};
  return u"tel:" + Text(trimmed(half).starts_with(u'+') ? u"+" : u"") + digits;
}

}  // namespace zelko
