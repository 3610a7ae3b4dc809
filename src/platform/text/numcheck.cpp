#include "platform/text/numcheck.h"

#include <charconv>
#include <optional>
#include <string>

#include "platform/fault.h"
#include "platform/text/number.h"

namespace zelko {

namespace {

// As val, but a number beyond a double is none.
std::optional<double> held(TextView text) {
  try {
    return val(text);
  } catch (const Fault&) {
    return std::nullopt;
  }
}

}  // namespace

int numCheck(TextView text) {
  const auto value = held(text);
  if (value.value_or(0) != 0) return 0;
  int points = 0;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const bool firstPoint = text[at] == u'.' && ++points == 1;
    const bool digit = text[at] >= u'0' && text[at] <= u'9';
    if (!digit && !firstPoint) return static_cast<int>(at) + 1;
  }
  if (!value) return 1;
  return text.empty() ? kBlankCell : 0;
}

bool isWholeNumber(TextView text) {
  if (!text.empty() && text.front() == u'+') text.remove_prefix(1);
  std::string ascii;
  for (const char16_t ch : text) {
    const bool digit = ch >= u'0' && ch <= u'9';
    if (!digit && TextView(u"+-.EeDd").find(ch) == TextView::npos) return false;
    ascii += ch == u'D' || ch == u'd' ? 'e' : static_cast<char>(ch);
  }
  double value = 0;
  const auto read = std::from_chars(ascii.data(), ascii.data() + ascii.size(), value);
  return read.ec == std::errc() && read.ptr == ascii.data() + ascii.size();
}

}  // namespace zelko
