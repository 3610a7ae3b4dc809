#include "platform/text/sjis.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <memory>

namespace zelko {
namespace {

struct Row {
  unsigned char lead;
  const char16_t* characters;  // of the trail bytes 40..7E, 80..FC
};

constexpr Row kRows[] = {
#include "platform/text/sjis_table.inc"
};

struct Twin {
  char16_t character, twin;
};

constexpr Twin kTwins[] = {{0x00A2, 0xFFE0}, {0x00A3, 0xFFE1}, {0x00A5, u'\\'},  {0x00AC, 0xFFE2}, {0x2014, 0x2015},
                           {0x2016, 0x2225}, {0x203E, u'~'},   {0x2212, 0xFF0D}, {0x301C, 0xFF5E}};

constexpr char16_t kNoCharacter = 0xFFFD;
constexpr char16_t kReplacement = 0x30FB;
constexpr unsigned kTrails = 188;

constexpr unsigned trailByte(unsigned cell) { return cell + (cell < 0x3F ? 0x40 : 0x41); }
constexpr bool isTrail(unsigned char byte) { return byte >= 0x40 && byte <= 0xFC && byte != 0x7F; }
constexpr bool isLead(unsigned char byte) { return (byte >= 0x81 && byte <= 0x9F) || (byte >= 0xE0 && byte <= 0xFC); }
constexpr bool isHighSurrogate(char16_t unit) { return (unit & 0xFC00) == 0xD800; }
constexpr bool isLowSurrogate(char16_t unit) { return (unit & 0xFC00) == 0xDC00; }

// Where a character has several codes, the table row of the highest rank gives the one to write.
int rank(unsigned char lead) {
  if (lead == 0xED || lead == 0xEE) return 0;
  if (lead >= 0xFA) return 1;
  return lead == 0x87 ? 2 : 3;
}

class Tables {
 public:
  Tables() {
    decode_.fill(kReplacement);
    for (int wanted = 0; wanted <= 3; ++wanted) {
      for (const Row& row : kRows) {
        if (rank(row.lead) == wanted) addRow(row);
      }
    }
    for (unsigned cell = 0; cell < 10 * kTrails; ++cell) {
      add((0xF0 + cell / kTrails) << 8 | trailByte(cell % kTrails), static_cast<char16_t>(0xE000 + cell));
    }
    for (unsigned byte = 0; byte < 0x80; ++byte) add(byte, static_cast<char16_t>(byte));
    for (unsigned byte = 0xA1; byte < 0xE0; ++byte) add(byte, static_cast<char16_t>(0xFF61 + byte - 0xA1));
    for (const Twin& twin : kTwins) encode_[twin.character] = encode_[twin.twin];
  }

  // The character of a single byte (its code below 0x100) or of a pair.
  char16_t character(unsigned code) const { return decode_[code]; }
  // 0 where the character has no code (U+0000 as well, whose code is 0).
  unsigned code(char16_t character) const { return encode_[character]; }

 private:
  void add(unsigned code, char16_t character) {
    decode_[code] = character;
    encode_[character] = static_cast<std::uint16_t>(code);
  }

  void addRow(const Row& row) {
    for (unsigned cell = 0; cell < kTrails; ++cell) {
      if (row.characters[cell] != kNoCharacter) add(unsigned{row.lead} << 8 | trailByte(cell), row.characters[cell]);
    }
  }

  std::array<char16_t, 0x10000> decode_{};
  std::array<std::uint16_t, 0x10000> encode_{};
};

const Tables& tables() {
  static const auto built = std::make_unique<const Tables>();
  return *built;
}

// Short texts, which nearly all are, take no more than the one allocation of their result.
template <class Char, std::size_t Size = 512>
class Scratch {
 public:
  explicit Scratch(std::size_t needed) {
    if (needed > Size) large_ = std::make_unique_for_overwrite<Char[]>(needed);
  }
  Char* begin() { return large_ ? large_.get() : small_; }

 private:
  Char small_[Size];
  std::unique_ptr<Char[]> large_;
};

bool eightAscii(const char* bytes) {
  std::uint64_t word;
  std::memcpy(&word, bytes, sizeof word);
  return (word & 0x8080808080808080u) == 0;
}

bool fourAscii(const char16_t* units) {
  std::uint64_t word;
  std::memcpy(&word, units, sizeof word);
  return (word & 0xFF80FF80FF80FF80u) == 0;
}

char16_t* decodeInto(std::string_view bytes, char16_t* out) {
  const Tables& table = tables();
  const char* at = bytes.data();
  const char* const end = at + bytes.size();
  while (at < end) {
    while (end - at >= 8 && eightAscii(at)) {
      for (int i = 0; i < 8; ++i) *out++ = static_cast<unsigned char>(*at++);
    }
    if (at == end) break;
    const auto byte = static_cast<unsigned char>(*at++);
    if (isLead(byte) && at < end && isTrail(static_cast<unsigned char>(*at))) {
      *out++ = table.character(unsigned{byte} << 8 | static_cast<unsigned char>(*at++));
    } else {
      *out++ = table.character(byte);
    }
  }
  return out;
}

char* encodeInto(TextView text, char* out) {
  const Tables& table = tables();
  const char16_t* at = text.data();
  const char16_t* const end = at + text.size();
  while (at < end) {
    while (end - at >= 4 && fourAscii(at)) {
      for (int i = 0; i < 4; ++i) *out++ = static_cast<char>(*at++);
    }
    if (at == end) break;
    const char16_t unit = *at++;
    const unsigned code = table.code(unit);
    if (code > 0xFF) {
      *out++ = static_cast<char>(code >> 8);
      *out++ = static_cast<char>(code & 0xFF);
    } else {
      if (isHighSurrogate(unit) && at < end && isLowSurrogate(*at)) ++at;
      *out++ = code != 0 || unit == 0 ? static_cast<char>(code) : '?';
    }
  }
  return out;
}

}  // namespace

Text fromSjis(std::string_view bytes) {
  Scratch<char16_t> scratch(bytes.size());
  char16_t* const begin = scratch.begin();
  return Text(begin, decodeInto(bytes, begin));
}

std::vector<std::size_t> characterStarts(std::string_view bytes) {
  std::vector<std::size_t> starts;
  starts.reserve(bytes.size() + 1);
  std::size_t at = 0;
  while (at < bytes.size()) {
    starts.push_back(at);
    const bool pair = isLead(static_cast<unsigned char>(bytes[at])) && at + 1 < bytes.size() &&
                      isTrail(static_cast<unsigned char>(bytes[at + 1]));
    at += pair ? 2 : 1;
  }
  starts.push_back(at);
  return starts;
}

std::string toSjis(TextView text) {
  Scratch<char> scratch(2 * text.size());
  char* const begin = scratch.begin();
  return std::string(begin, encodeInto(text, begin));
}

Text asStored(TextView typed) {
  Text out;
  for (std::size_t at = 0; at < typed.size(); ++at) {
    const TextView unit = typed.substr(at, 1);
    const std::string bytes = toSjis(unit);
    out += bytes == "?" ? Text(unit) : fromSjis(bytes);
  }
  return out;
}

std::size_t sjisLength(TextView text) {
  const Tables& table = tables();
  std::size_t length = text.size();
  for (std::size_t i = 0; i < text.size(); ++i) {
    while (i + 4 <= text.size() && fourAscii(&text[i])) i += 4;
    if (i == text.size()) break;
    const char16_t unit = text[i];
    if (unit < 0x80) continue;
    if (table.code(unit) > 0xFF) {
      ++length;
    } else if (isHighSurrogate(unit) && i + 1 < text.size() && isLowSurrogate(text[i + 1])) {
      ++i;
      --length;
    }
  }
  return length;
}

}  // namespace zelko
