#include "parts/ask/typed.h"

#include <charconv>
#include <cmath>

#include "platform/fault.h"
#include "platform/text/number.h"
#include "platform/text/width.h"
#include "store/table/table.h"

namespace zelko {

namespace {

bool isNumberText(TextView text) {
  return !text.empty() && text.find_first_not_of(u"0123456789+-.eE") == TextView::npos;
}

// Ends where the text ends, or it is no number.
template <class Number>
std::optional<Number> wholeText(TextView text) {
  if (!isNumberText(text)) return std::nullopt;
  std::string bytes(text.begin(), text.end());
  if (bytes.front() == '+') bytes.erase(0, 1);
  if (bytes.starts_with('+') || (text[0] == u'+' && bytes.starts_with('-'))) return std::nullopt;
  Number number{};
  const auto [end, error] = std::from_chars(bytes.data(), bytes.data() + bytes.size(), number);
  if (error != std::errc{} || end != bytes.data() + bytes.size()) return std::nullopt;
  return number;
}

}  // namespace

Text typedCode(TextView typed) { return trimmed(toHalfWidth(typed)); }

std::optional<double> typedNumber(TextView typed) {
  const auto number = wholeText<double>(typedCode(typed));
  return number && std::isfinite(*number) ? number : std::nullopt;
}

std::optional<std::int32_t> typedWhole(TextView typed, std::int32_t lowest, std::int32_t highest) {
  const auto number = wholeText<std::int32_t>(typedCode(typed));
  return number && *number >= lowest && *number <= highest ? number : std::nullopt;
}

std::optional<std::int16_t> typedItem(TextView typed, std::int16_t lowest) {
  const auto number = typedWhole(typed, lowest, itemCount);
  return number ? std::optional(static_cast<std::int16_t>(*number)) : std::nullopt;
}

std::optional<char16_t> typedLetter(TextView typed, TextView letters) {
  const Text code = upperCase(typedCode(typed));
  return code.size() == 1 && letters.find(code[0]) != TextView::npos ? std::optional(code[0]) : std::nullopt;
}

std::optional<double> typedVal(TextView typed) {
  try {
    return val(typed);
  } catch (const Fault&) {
    return std::nullopt;
  }
}

}  // namespace zelko
