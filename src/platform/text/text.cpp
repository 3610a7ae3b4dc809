#include "platform/text/text.h"

#include <algorithm>

namespace zelko {
namespace {

constexpr char16_t kEscapedByte = 0xDC00;  // + the byte, 80..FF
constexpr char32_t kUnknown = 0xFFFD;

constexpr bool isBetween(char32_t value, char32_t low, char32_t high) { return value >= low && value <= high; }

template <class Mapping>
Text mapped(TextView text, Mapping mapping) {
  Text result(text);
  std::transform(result.begin(), result.end(), result.begin(), mapping);
  return result;
}

// How many bytes a sequence has that starts like this; 0 where none does.
std::size_t sequenceLength(unsigned char lead) {
  if (lead < 0x80) return 1;
  if (isBetween(lead, 0xC2, 0xDF)) return 2;
  if (isBetween(lead, 0xE0, 0xEF)) return 3;
  return isBetween(lead, 0xF0, 0xF4) ? 4 : 0;
}

struct Decoded {
  char32_t character = 0;
  std::size_t length = 0;  // 0 where the bytes are no UTF-8
};

Decoded firstCharacter(std::string_view bytes) {
  const auto lead = static_cast<unsigned char>(bytes[0]);
  const std::size_t length = sequenceLength(lead);
  if (length == 1) return {lead, 1};
  if (length == 0 || length > bytes.size()) return {};

  char32_t character = lead & (0x7Fu >> length);
  for (std::size_t i = 1; i < length; ++i) {
    const auto byte = static_cast<unsigned char>(bytes[i]);
    if ((byte & 0xC0) != 0x80) return {};
    character = character << 6 | (byte & 0x3Fu);
  }
  constexpr char32_t kSmallest[] = {0, 0, 0x80, 0x800, 0x10000};
  const bool valid = character >= kSmallest[length] && character <= 0x10FFFF && !isBetween(character, 0xD800, 0xDFFF);
  return valid ? Decoded{character, length} : Decoded{};
}

void appendUtf8(std::string& out, char32_t character) {
  const auto tail = [&](unsigned shift) { out += static_cast<char>(0x80 | ((character >> shift) & 0x3F)); };
  if (character < 0x80) {
    out += static_cast<char>(character);
  } else if (character < 0x800) {
    out += static_cast<char>(0xC0 | (character >> 6));
    tail(0);
  } else if (character < 0x10000) {
    out += static_cast<char>(0xE0 | (character >> 12));
    tail(6);
    tail(0);
  } else {
    out += static_cast<char>(0xF0 | (character >> 18));
    tail(12);
    tail(6);
    tail(0);
  }
}

}  // namespace

Text trimmedLeft(TextView text) { return Text(text.substr(std::min(text.find_first_not_of(u' '), text.size()))); }

Text trimmedRight(TextView text) { return Text(text.substr(0, text.find_last_not_of(u' ') + 1)); }

Text trimmed(TextView text) {
  const TextView rest = text.substr(std::min(text.find_first_not_of(u' '), text.size()));
  return trimmedRight(rest);
}

Text upperCase(TextView text) {
  return mapped(text, [](char16_t unit) {
    if (isBetween(unit, u'a', u'z') || isBetween(unit, u'ａ', u'ｚ')) return static_cast<char16_t>(unit - 0x20);
    return unit;
  });
}

Text lowerCase(TextView text) {
  return mapped(text, [](char16_t unit) {
    if (isBetween(unit, u'A', u'Z') || isBetween(unit, u'Ａ', u'Ｚ')) return static_cast<char16_t>(unit + 0x20);
    return unit;
  });
}

Text left(TextView text, std::size_t count) { return Text(text.substr(0, count)); }

Text right(TextView text, std::size_t count) { return Text(text.substr(text.size() - std::min(count, text.size()))); }

Text mid(TextView text, std::size_t start, std::size_t count) {
  if (start == 0) {
    if (count == 0) return Text();
    if (count != TextView::npos) --count;
    start = 1;
  }
  if (start > text.size()) return Text();
  return Text(text.substr(start - 1, count));
}

std::size_t positionOf(TextView text, TextView what, std::size_t start) {
  const std::size_t from = start == 0 ? 0 : start - 1;
  if (from >= text.size()) return 0;
  return text.find(what, from) + 1;  // npos + 1 is 0
}

bool contains(TextView text, TextView what) { return text.find(what) != TextView::npos; }

Text replaceAll(TextView text, TextView what, TextView with) {
  if (what.empty()) return Text(text);
  Text result;
  std::size_t from = 0;
  for (std::size_t at; (at = text.find(what, from)) != TextView::npos; from = at + what.size()) {
    result.append(text.substr(from, at - from)).append(with);
  }
  return result.append(text.substr(from));
}

Text fromUtf8(std::string_view bytes) {
  Text result;
  result.reserve(bytes.size());
  while (!bytes.empty()) {
    auto [character, length] = firstCharacter(bytes);
    if (length == 0) {
      result += static_cast<char16_t>(kEscapedByte + static_cast<unsigned char>(bytes[0]));
      length = 1;
    } else if (character < 0x10000) {
      result += static_cast<char16_t>(character);
    } else {
      result += static_cast<char16_t>(0xD7C0 + (character >> 10));
      result += static_cast<char16_t>(0xDC00 + (character & 0x3FF));
    }
    bytes.remove_prefix(length);
  }
  return result;
}

std::string toUtf8(TextView text) {
  std::string result;
  result.reserve(text.size() * 3);
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char32_t unit = text[i];
    if (isBetween(unit, 0xD800, 0xDBFF) && i + 1 < text.size() && isBetween(text[i + 1], 0xDC00, 0xDFFF)) {
      appendUtf8(result, 0x10000 + ((unit - 0xD800) << 10) + (text[++i] - 0xDC00u));
    } else if (isBetween(unit, kEscapedByte + 0x80, kEscapedByte + 0xFF)) {
      result += static_cast<char>(unit & 0xFF);
    } else {
      appendUtf8(result, isBetween(unit, 0xD800, 0xDFFF) ? kUnknown : unit);
    }
  }
  return result;
}

}  // namespace zelko
