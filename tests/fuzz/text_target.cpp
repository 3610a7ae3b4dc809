// Any text where a user types one: patterns, dates, the words of the command line. Each is answered, or refused with
// words.
#include "app/commandline.h"
#include "fuzz/target.h"
#include "platform/fault.h"
#include "platform/text/daytime.h"
#include "platform/text/format.h"

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

const bool added =
    addFuzzTarget({"format",
                   {"0", "#", ".", ",", "%", ";", "E+", "\"", "\\", "@", "&", "<", "!", "yyyy", "gggee", "AM/PM", "c",
                    "General Number", "\xE6\x9D\xB1"},
                   checkFormatPattern}) &&
    addFuzzTarget({"pattern", {"*", "?", "#", "[", "]", "[!", "-", "a", "[]", "\xE6\x9D\xB1"}, checkPattern}) &&
    addFuzzTarget({"date",
                   {"/", "-", ":", " ", "0", "29", "12", "9999", "\xE6\x98\xAD\xE5\x92\x8C", "H", "\xE5\xB9\xB4", "PM"},
                   checkDate}) &&
    addFuzzTarget({"commandline", {"\n", "--", "--replay", "--dir", "-", "=", "\"", "--no-reader"}, checkCommandLine});

}  // namespace
}  // namespace zelko::test
