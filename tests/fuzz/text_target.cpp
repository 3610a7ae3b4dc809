// Any text where a user types one: patterns, ranges, dates, the words of the command line; and any bytes as a CSV file.
// Each is answered, or refused with words.
#include <algorithm>

#include "app/commandline.h"
#include "files/csv/csvreader.h"
#include "fuzz/target.h"
#include "parts/ranges/rangetext.h"
#include "platform/fault.h"
#include "platform/text/daytime.h"
#include "platform/text/format.h"
#include "store/table/table.h"

namespace zelko::test {
namespace {

void checkFormatPattern(std::string_view bytes) {
  const Text pattern = fromUtf8(bytes);
  for (const double value : {0.0, -0.001, 12345.678, -1e300, 1e-300})
    require(format(value, pattern).size() < 4096 + 64 * pattern.size(), "a number longer than its pattern");
  formatDate({2026, 1, 5, 9, 5, 0}, pattern);
  require(formatText(u"\u6771a\u3042", pattern).size() <= pattern.size() + 3, "a text longer than its pattern");
}

// A "*" in front and behind finds whatever is found alone.
void checkPattern(std::string_view bytes) {
  const Text pattern = fromUtf8(bytes);
  for (const TextView text : {u"", u"a", u"aab-c]\u6771", u"aaaaaaaaaaaaaaaaaaaaaaaa"}) {
    try {
      if (likeMatch(text, pattern)) require(likeMatch(text, u"*" + pattern + u"*"), "a match that stars lose");
    } catch (const Fault& fault) {
      require(!fault.text.empty(), "a fault without words");
    }
  }
}

void checkRange(std::string_view bytes) {
  itemCount = 254;
  for (const int kind : {kRecordRange, kItemRange}) {
    Text used = fromUtf8(bytes), message;
    checkRangeText(used, message, kind);
    if (!message.empty()) continue;
    const auto blocks = rangeBlocks(fromUtf8(bytes));
    const std::int64_t count = countOfRange(blocks);
    const auto numbers = numbersOfRange(fromUtf8(bytes), 1000);
    require(count >= 0 && (!numbers || numbers->size() <= 1000), "a range that ends");
  }
}

void checkDate(std::string_view bytes) {
  const auto date = dateFromText(fromUtf8(bytes));
  if (!date) return;
  require(date->month >= 1 && date->month <= 12 && date->day >= 1 && date->day <= 31, "a day of the calendar");
  require(date->hour >= 0 && date->hour < 24 && date->minute < 60 && date->second < 60, "a time of the day");
  const auto again = dateFromText(shortDate(*date));
  require(!again || dayNumber(*again) == dayNumber(*date), "the same day again");
}

void checkCommandLine(std::string_view bytes) {
  std::vector<std::string> words(1);
  for (const char byte : bytes)
    if (byte == '\n')
      words.emplace_back();
    else
      words.back() += byte;
  const CommandLine line = readCommandLine(words);
  require((line.action == CommandLine::Action::wrong) == !line.complaint.empty(),
          "wrong with a complaint, else without");
}

// However the file comes in pieces: the same fields, and an end.
std::vector<std::string> fieldsOf(std::string_view bytes, bool protects, std::size_t piece) {
  std::size_t at = 0;
  CsvReader reader(
      [&](char* out, std::size_t size) {
        const std::size_t count = std::min({size, piece, bytes.size() - at});
        std::copy_n(bytes.begin() + static_cast<std::ptrdiff_t>(at), count, out);
        at += count;
        return count;
      },
      protects);
  std::vector<std::string> fields;
  CsvLine line;
  for (std::size_t lines = 0; reader.next(line); ++lines) {
    require(lines <= bytes.size(), "lines without an end");
    for (std::size_t i = 0; i < line.fields(); ++i) fields.emplace_back(line.getSVCdata(i));
    fields.emplace_back("\n");
  }
  require(reader.taken() <= static_cast<std::int64_t>(bytes.size()), "more than there is");
  return fields;
}

void checkCsv(std::string_view bytes) {
  for (const bool protects : {false, true})
    require(fieldsOf(bytes, protects, 1 << 16) == fieldsOf(bytes, protects, 3), "a field that hangs on the blocks");
  Utf8Judge judge;
  judge.take(bytes);
  judge.isUtf8();
}

const bool added =
    addFuzzTarget({"format",
                   {"0", "#", ".", ",", "%", ";", "E+", "\"", "\\", "@", "&", "<", "!", "yyyy", "gggee", "AM/PM", "c",
                    "General Number", "\xE6\x9D\xB1"},
                   checkFormatPattern}) &&
    addFuzzTarget({"pattern", {"*", "?", "#", "[", "]", "[!", "-", "a", "[]", "\xE6\x9D\xB1"}, checkPattern}) &&
    addFuzzTarget(
        {"range", {"-", "/", "0", "1", "254", "2147483647", "99999999999", " ", "\xEF\xBC\x91"}, checkRange}) &&
    addFuzzTarget({"date",
                   {"/", "-", ":", " ", "0", "29", "12", "9999", "\xE6\x98\xAD\xE5\x92\x8C", "H", "\xE5\xB9\xB4", "PM"},
                   checkDate}) &&
    addFuzzTarget(
        {"commandline", {"\n", "--", "--replay", "--dir", "-", "=", "\"", "--no-reader"}, checkCommandLine}) &&
    addFuzzTarget({"csv", {",", "\"", "\"\"", "\r\n", "\r", "\x1A", "\xEF\xBB\xBF", " ", "\x81", "\",\""}, checkCsv});

}  // namespace
}  // namespace zelko::test
