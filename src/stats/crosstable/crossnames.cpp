#include "stats/crosstable/crossnames.h"

#include <algorithm>

#include "parts/reading/tablelines.h"

namespace zelko {

namespace {

constexpr TextView kFigures[] = {u"X2", u"Phi", u"p"};  // of each cell against the others
constexpr std::pair<TextView, TextView> kSections[] = {{u"横合計", u"の横％"}, {u"縦計", u"の縦％"}, {u"集計表", u""}};

}  // namespace

void CrossNames::add(std::size_t start, const std::vector<Text>& lines, TextView columnItem, TextView rowItem) {
  TextView section;
  Text category;  // of the last row that has one: the lines of a cell's figures stand below it
  for (const Text& line : lines) {
    for (const auto& [head, words] : kSections)
      if (line.starts_with(head)) section = words;
    const bool isHead = trimmedLeft(line).starts_with(u'|');
    Text row;
    for (const TableToken& token : tokensOf(isHead ? TextView() : TextView(line))) {
      const TextView cell = TextView(line).substr(token.start, token.length);
      const bool isFirst = row.empty() && isFigure(cell);
      if (isFirst) category = Text(rowItem) + Text(cell);
      if (isFirst) row = category + Text(section);
      if (std::ranges::find(kFigures, cell) != std::end(kFigures)) row = category + u"の" + Text(cell);
      if (row.empty()) break;
    }
    lines_.push_back({start, row, Text(columnItem), isHead});
    start += line.size() + 2;
  }
}

Text CrossNames::nameOf(const std::vector<Line>& lines, NamedPart part, TextView name, std::size_t position) {
  if (part == NamedPart::whole) return {};
  const auto behind = std::ranges::upper_bound(lines, position, {}, &Line::start);
  if (behind == lines.begin()) return {};
  const Line& line = *(behind - 1);
  if (part == NamedPart::row && !line.isHead) return line.row;
  return isFigure(name) ? line.columnItem + Text(name) : Text();
}

}  // namespace zelko
