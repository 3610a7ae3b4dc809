#include "parts/reading/tablecells.h"

#include <algorithm>
#include <cstdlib>

#include "platform/text/numcheck.h"

namespace zelko {

namespace {

constexpr TextView kBlanks = u" 　\t";
constexpr TextView kBars = u"|｜│,";

bool isOneOf(char16_t ch, TextView set) { return set.find(ch) != TextView::npos; }

std::size_t columnsOf(char16_t ch) { return ch < 0x80 || (ch >= 0xFF61 && ch <= 0xFF9F) ? 1 : 2; }

bool allOf(TextView text, TextView set) { return text.find_first_not_of(set) == TextView::npos; }

bool isRuleWord(TextView word) { return allOf(word, u"-=*+･─━ー_"); }

// Parts of the frame and of a drawn bar, which are no words.
bool isFrame(TextView word) {
  return word == u"I" || word == u":" || (word.size() > 1 && isRuleWord(word)) || word == u"+";
}

bool isValue(TextView word) {
  if (word == u"*") return true;
  if (word.ends_with(u'%')) word.remove_suffix(1);
  return isWholeNumber(word);
}

// The end of the bracket that opens at `at`, or `at` where it does not close on the line.
std::size_t endOfBracket(TextView line, std::size_t at) {
  const char16_t closing = line[at] == u'(' ? u')' : u']';
  const std::size_t end = line.find(closing, at);
  return end == TextView::npos ? at : end;
}

// `bars`: there are some; `named`: one stands behind the first word.
std::vector<PrintedCell> wordsOf(TextView line, bool& bars, bool& named) {
  std::vector<PrintedCell> words;
  std::size_t col = 0;
  bool inWord = false;
  for (std::size_t i = 0; i < line.size(); ++i) {
    if (isOneOf(line[i], kBars) || isOneOf(line[i], kBlanks)) {
      const bool bar = isOneOf(line[i], u"|｜│");
      bars = bars || bar;
      named = named || (bar && words.size() == 1);
      inWord = false;
      col += columnsOf(line[i]);
      continue;
    }
    if (!inWord) words.push_back({i, col, col, {}});
    inWord = true;
    const bool opens = line[i] == u'(' || line[i] == u'[';
    for (const std::size_t end = opens ? endOfBracket(line, i) : i;; ++i) {
      words.back().text += line[i];
      col += columnsOf(line[i]);
      if (i == end) break;
    }
    words.back().endCol = col;
  }
  return words;
}

}  // namespace

PrintedLine printedLine(TextView line) {
  PrintedLine printed;
  bool named = false;
  auto words = wordsOf(line, printed.bars, named);
  if (words.empty()) return printed;
  const auto isOfRule = [](const PrintedCell& word) { return isRuleWord(word.text); };
  if (std::all_of(words.begin(), words.end(), isOfRule) && words.front().text != u"*") {
    printed.kind = PrintedLine::Kind::rule;
    return printed;
  }
  // A number in front of the frame is the name of the row.
  const bool namedByNumber = words.size() > 1 && (named || isFrame(words[1].text));
  std::erase_if(words, [](const PrintedCell& word) { return isFrame(word.text); });
  const auto valueOf = [](const PrintedCell& word) { return isValue(word.text); };
  const auto first = std::find_if(words.begin() + (namedByNumber && words.size() > 1 ? 1 : 0), words.end(), valueOf);
  if (first == words.end() || !std::all_of(first, words.end(), valueOf)) {
    printed.kind = PrintedLine::Kind::words;
    printed.cells = std::move(words);
    return printed;
  }
  printed.kind = PrintedLine::Kind::values;
  for (auto word = words.begin(); word != first; ++word)
    printed.name += (word == words.begin() ? Text() : Text(u" ")) + word->text;
  printed.cells.assign(first, words.end());
  return printed;
}

Text headingAbove(const PrintedLine& heading, const PrintedCell& cell) {
  const auto distance = [&](const PrintedCell& word) {
    const auto shared = static_cast<std::ptrdiff_t>(std::min(word.endCol, cell.endCol)) -
                        static_cast<std::ptrdiff_t>(std::max(word.col, cell.col));
    return -shared;
  };
  const auto best =
      std::min_element(heading.cells.begin(), heading.cells.end(),
                       [&](const PrintedCell& a, const PrintedCell& b) { return distance(a) < distance(b); });
  return best == heading.cells.end() ? Text() : best->text;
}

}  // namespace zelko
