#include "files/csv/plaincells.h"

#include <bitset>
#include <cstdint>
#include <cstring>
#include <memory>

#include "platform/text/sjis.h"

namespace zelko {

namespace {

// By code: a single byte below 0x100, or a pair.
using Codes = std::bitset<0x10000>;

std::unique_ptr<const Codes> findStable() {
  auto codes = std::make_unique<Codes>();
  for (unsigned code = 0; code < 0x10000; ++code) {
    std::string bytes;
    if (code > 0xFF) bytes += static_cast<char>(code >> 8);
    bytes += static_cast<char>(code & 0xFF);
    (*codes)[code] = toSjis(fromSjis(bytes)) == bytes;
  }
  // A pair of two characters is none; its bytes are looked at one by one.
  for (unsigned code = 0x100; code < 0x10000; ++code)
    if (fromSjis(std::string{static_cast<char>(code >> 8), static_cast<char>(code & 0xFF)}).size() != 1)
      (*codes)[code] = false;
  return codes;
}

const Codes& stable() {
  static const auto codes = findStable();
  return *codes;
}

bool leads(unsigned char byte) { return (byte >= 0x81 && byte <= 0x9F) || (byte >= 0xE0 && byte <= 0xFC); }

bool eightAscii(const char* bytes) {
  std::uint64_t word;
  std::memcpy(&word, bytes, sizeof word);
  return (word & 0x8080808080808080u) == 0;
}

}  // namespace

std::size_t asciiPrefix(std::string_view bytes) {
  std::size_t at = 0;
  while (at + 8 <= bytes.size() && eightAscii(bytes.data() + at)) at += 8;
  while (at < bytes.size() && static_cast<unsigned char>(bytes[at]) < 0x80) ++at;
  return at;
}

bool survivesConversion(std::string_view bytes) {
  const Codes& codes = stable();
  for (std::size_t at = 0; at < bytes.size();) {
    if (at + 8 <= bytes.size() && eightAscii(bytes.data() + at)) {
      at += 8;
      continue;
    }
    const auto byte = static_cast<unsigned char>(bytes[at++]);
    if (byte < 0x80) continue;
    if (!leads(byte)) {
      if (!codes[byte]) return false;
      continue;
    }
    if (at == bytes.size() || !codes[unsigned{byte} << 8 | static_cast<unsigned char>(bytes[at++])]) return false;
  }
  return true;
}

std::string_view throughText(std::string_view bytes, std::string& scratch) {
  if (survivesConversion(bytes)) return bytes;
  scratch = toSjis(fromSjis(bytes));
  return scratch;
}

}  // namespace zelko
