#include "platform/text/sjis.h"

#include <iconv.h>

#include <memory>
#include <optional>

#include "platform/forms/shown.h"

using namespace zelko;

namespace {

// The system's own conversion, which knows nothing of our table.
class SystemConversion {
 public:
  SystemConversion(const char* to, const char* from) : handle_(iconv_open(to, from), &iconv_close) {
    REQUIRE(handle_.get() != reinterpret_cast<iconv_t>(-1));
  }

  std::optional<std::string> convert(std::string bytes) {
    char out[16];
    char* from = bytes.data();
    char* to = out;
    std::size_t left = bytes.size(), room = sizeof out;
    iconv(handle_.get(), nullptr, nullptr, nullptr, nullptr);
    const std::size_t result = iconv(handle_.get(), &from, &left, &to, &room);
    if (result == static_cast<std::size_t>(-1) || left > 0) return std::nullopt;
    return std::string(out, to);
  }

 private:
  std::unique_ptr<void, decltype(&iconv_close)> handle_;
};

std::string bytesOf(unsigned code) {
  if (code < 0x100) return std::string(1, static_cast<char>(code));
  return {static_cast<char>(code >> 8), static_cast<char>(code & 0xFF)};
}

bool isLead(unsigned byte) { return (byte >= 0x81 && byte <= 0x9F) || (byte >= 0xE0 && byte <= 0xFC); }

}  // namespace

TEST_CASE("every code decodes as in code page 932") {
  SystemConversion system("UTF-16LE", "CP932");
  int decoded = 0, differing = 0;
  for (unsigned code = 0; code < 0x10000; ++code) {
    if (code >= 0x100 && !isLead(code >> 8)) continue;
    const auto wanted = system.convert(bytesOf(code));
    const Text text = fromSjis(bytesOf(code));
    if (!wanted) {
      differing += text[0] != u'・';
      continue;
    }
    REQUIRE(wanted->size() == 2);
    const Text character(1, static_cast<char16_t>(static_cast<unsigned char>((*wanted)[0]) |
                                                  static_cast<unsigned char>((*wanted)[1]) << 8));
    differing += text != character;
    ++decoded;
  }
  CHECK(decoded == 9795);
  CHECK(differing == 0);
}

TEST_CASE("every character gets the code that code page 932 gives it, and its width") {
  SystemConversion system("CP932", "UTF-16LE");
  int encoded = 0, differing = 0;
  for (unsigned unit = 0; unit < 0x10000; ++unit) {
    const Text text(1, static_cast<char16_t>(unit));
    const auto wanted = system.convert({static_cast<char>(unit & 0xFF), static_cast<char>(unit >> 8)});
    differing += toSjis(text) != wanted.value_or("?");
    differing += sjisLength(text) != toSjis(text).size();
    encoded += wanted.has_value();
  }
  CHECK(encoded == 9406);
  CHECK(differing == 0);
}

TEST_CASE("what is no character passes through as a replacement") {
  const struct {
    std::string bytes;
    Text text;
  } rows[] = {
      {"\x8F", u"・"},  // half a character in the last byte of a cell
      {"ab\x95", u"ab・"},
      {"\x81 x", u"・ x"},  // the byte behind is read anew
      {"\x81\r\n", u"・\r\n"},
      {"\x81,\"", u"・,\""},
      {"\x81\x7F", u"・\x7F"},
      {"\x81\xFD", u"・・"},
      {"\x81\x20\xB1\xE0", u"・ ｱ・"},
      {"\x85\x40"
       "a",
       u"・a"},  // a pair that is not assigned
      {"\x80\xA0\xFD\xFE\xFF", u"・・・・・"},
      {"\x95\x5C\x83\x5C\x94\x5C", u"表ソ能"},  // second bytes that are a backslash, a bar, a letter
      {"\x83\x7C\x83\x61\x83\x8B", u"ポヂル"},
      {"12345678\x8A\xBF"
       "1234567\x8A\xBF"
       "12345678",
       u"12345678漢1234567漢12345678"},
      {std::string("a\0b", 3), Text(u"a\0b", 3)},
      {"", u""},
  };
  for (const auto& row : rows) {
    CAPTURE(row.text);
    CHECK(fromSjis(row.bytes) == row.text);
  }
}

TEST_CASE("what has no code becomes one question mark") {
  const struct {
    Text text;
    std::string bytes;
  } rows[] = {
      {u"𠮷野", "?\x96\xEC"},
      {u"é©", "??"},
      {Text(1, static_cast<char16_t>(0xD842)) + u"a", "?a"},
      {Text(1, static_cast<char16_t>(0xDC80)), "?"},
      {u"12345678é漢12345",
       "12345678?\x8A\xBF"
       "12345"},
      {u"〜−‖—¥‾¢£¬", "\x81\x60\x81\x7C\x81\x61\x81\x5C\\~\x81\x91\x81\x92\x81\xCA"},
      {Text(2000, u'漢'), ""},
  };
  for (const auto& row : rows) {
    CAPTURE(row.text);
    if (!row.bytes.empty()) CHECK(toSjis(row.text) == row.bytes);
    CHECK(sjisLength(row.text) == toSjis(row.text).size());
    CHECK(toSjis(fromSjis(toSjis(row.text))) == toSjis(row.text));
  }
}
