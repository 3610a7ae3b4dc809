// The check of a formula before it is used in a condition.
#include "editor/formulas/formula.h"
#include "platform/text/number.h"
#include "store/table/table.h"

namespace zelko {

namespace {

constexpr TextView kAllowed = u"0123456789-+*/\\@()^.|";

TextView digitsAt(TextView text, std::size_t from) {
  const std::size_t end = text.find_first_not_of(u"0123456789", from);
  return text.substr(from, end == TextView::npos ? end : end - from);
}

Text complaintOfCharacters(TextView text) {
  const std::size_t bad = text.find_first_not_of(kAllowed);
  if (bad == TextView::npos) return {};
  // A character of two units is named whole.
  const bool pair = text[bad] >= 0xD800 && text[bad] < 0xDC00;
  return u"許されない文字[" + Text(text.substr(bad, pair ? 2 : 1)) + u"]が使われています";
}

constexpr TextView kNoNumber = u"@後の項目番号がありません";

bool isItem(TextView digits) {
  constexpr std::size_t kLongest = 100;  // of a number that is read at all
  const double item = digits.size() > kLongest ? 0 : val(digits);
  return item >= 1 && item <= itemCount;
}

Text complaintOfItems(TextView text, bool condition) {
  for (std::size_t at = text.find(u'@'); at != TextView::npos; at = text.find(u'@', at + 1)) {
    const TextView digits = digitsAt(text, at + 1);
    if (digits.empty()) {
      if (condition || at + 1 == text.size()) return Text(kNoNumber);
      continue;
    }
    if (condition && digits == u"0") continue;
    if (!isItem(digits)) return u"@後の項目番号が不正です";
  }
  return {};
}

Text complaintOfBrackets(Text text) {
  for (;;) {
    const std::size_t open = text.rfind(u'(');
    if (open == Text::npos) break;
    const std::size_t shut = text.find(u')', open);
    if (shut == Text::npos) return u"括弧の数、向きが合いません";
    text[open] = text[shut] = u'?';
  }
  return contains(text, u")") ? u"括弧の数又は向きが合いません" : u"";
}

}  // namespace

namespace {

void check(TextView text, bool condition, Text& message) {
  message = complaintOfCharacters(text);
  if (message.empty()) message = complaintOfItems(text, condition);
  if (message.empty()) message = complaintOfBrackets(Text(text));
}

}  // namespace

void checkFormula(TextView text, Text& message) { check(text, false, message); }

void checkNumExpression(TextView text, Text& message) { check(text, true, message); }

}  // namespace zelko
