#include "parts/reading/tablewalk.h"

#include <algorithm>

#include "platform/host.h"
#include "voice/talk.h"

namespace zelko {

namespace {

using Kind = PrintedLine::Kind;

std::size_t startOfLine(TextView text, std::size_t at) {
  const std::size_t before = at == 0 ? TextView::npos : text.rfind(u'\n', at - 1);
  return before == TextView::npos ? 0 : before + 1;
}

PrintedLine lineFrom(TextView text, std::size_t start) {
  const std::size_t end = std::min(text.find_first_of(u"\r\n", start), text.size());
  return printedLine(text.substr(start, end - start));
}

// The start of the next or the previous line; false where there is none.
bool step(TextView text, std::size_t& start, int direction) {
  if (direction < 0) {
    if (start == 0) return false;
    start = startOfLine(text, start - 1);
    return true;
  }
  const std::size_t end = text.find(u'\n', start);
  if (end == TextView::npos || end + 1 >= text.size()) return false;
  start = end + 1;
  return true;
}

// The last cell that begins at or before the column, else the first one.
std::size_t cellAtColumn(const PrintedLine& line, std::size_t col) {
  std::size_t found = 0;
  for (std::size_t i = 0; i < line.cells.size(); ++i) {
    if (line.cells[i].col <= col || line.cells[i].endCol <= col + 1) found = i;
  }
  return found;
}

// ".62" is heard as "0.62".
Text saidValue(const Text& value) {
  const std::size_t point = value.starts_with(u'-') ? 1 : 0;
  Text said = value;
  if (value.substr(point).starts_with(u'.')) said.insert(point, 1, u'0');
  return said == u"*" ? Text(u"なし") : said;
}

// "[A         ]" is "A"; a lone bracket stays.
Text saidName(const Text& name) {
  if (!name.starts_with(u'[') || !name.ends_with(u']') || name.size() < 3) return name;
  const Text inside = trimmed(name.substr(1, name.size() - 2));
  return inside.empty() ? Text(u"ﾌﾞﾗﾝｸ") : inside;
}

}  // namespace

bool TableWalk::isKey(const KeyEvent& key) {
  return key.mask == shift::Alt && key.code >= key::Left && key.code <= key::Down;
}

bool TableWalk::keyDown(const KeyEvent& key) {
  if (!isKey(key)) return false;
  const bool vertical = key.code == key::Up || key.code == key::Down;
  const int direction = key.code == key::Up || key.code == key::Left ? -1 : 1;
  Place place;
  const bool inCell = here(place);
  bool otherTable = false, moved = false;
  if (!inCell && place.printed.kind == Kind::values) {
    moved = true;  // the walk begins in the line of the caret
  } else {
    moved = vertical || place.printed.kind != Kind::values ? nextLine(place, direction, otherTable)
                                                           : sidewards(place, direction);
  }
  if (!moved) host().beep();
  if (place.printed.kind != Kind::values) {
    talkNow(u"表わありません");
    return true;
  }
  const PrintedCell& cell = place.printed.cells[place.cell];
  if (!vertical || !inCell || !moved) col_ = cell.col;
  box_.setSelection(static_cast<int>(place.line + cell.at), static_cast<int>(cell.text.size()));
  ++composedSentences;
  const TextView border = direction > 0 ? u"次の表" : u"前の表";
  talkNow((otherTable ? Text(border) + markPause : Text()) + sentence(place));
  return true;
}

// The line of the caret; true where a cell of it is marked.
bool TableWalk::here(Place& place) const {
  const auto caret = static_cast<std::size_t>(box_.selStart());
  place.line = startOfLine(box_.content(), caret);
  place.printed = lineFrom(box_.content(), place.line);
  if (place.printed.kind != Kind::values) return false;
  const auto& cells = place.printed.cells;
  const auto marked = std::find_if(cells.begin(), cells.end(), [&](const PrintedCell& cell) {
    return place.line + cell.at == caret && box_.selLength() == static_cast<int>(cell.text.size());
  });
  if (marked == cells.end()) return false;
  place.cell = static_cast<std::size_t>(marked - cells.begin());
  return true;
}

bool TableWalk::sidewards(Place& place, int direction) const {
  if (direction < 0 ? place.cell == 0 : place.cell + 1 >= place.printed.cells.size()) return false;
  place.cell = direction < 0 ? place.cell - 1 : place.cell + 1;
  return true;
}

// To the next line with values; words or an empty line between them end a table.
bool TableWalk::nextLine(Place& place, int direction, bool& otherTable) const {
  std::size_t start = place.line;
  bool gap = false;
  while (step(box_.content(), start, direction)) {
    PrintedLine line = lineFrom(box_.content(), start);
    if (line.kind == Kind::values) {
      otherTable = gap && place.printed.kind == Kind::values;
      place = {start, std::move(line), 0};
      place.cell = cellAtColumn(place.printed, col_);
      return true;
    }
    gap = gap || line.kind != Kind::rule;
  }
  return false;
}

Text TableWalk::sentence(const Place& place) const {
  const PrintedCell& cell = place.printed.cells[place.cell];
  const Text row = saidName(rowName(place)), column = saidName(headingAbove(headingOf(place), cell));
  Text names = row;
  if (!row.empty() && !column.empty()) names += u"と";
  names += column;
  return (names.empty() ? names : names + markPause) + saidValue(cell.text);
}

// A line without a name goes on with that of the line above it.
Text TableWalk::rowName(const Place& place) const {
  if (!place.printed.name.empty()) return place.printed.name;
  std::size_t start = place.line;
  if (!step(box_.content(), start, -1)) return {};
  const PrintedLine above = lineFrom(box_.content(), start);
  return above.kind == Kind::values && !above.name.empty() ? above.name + u"下段" : Text();
}

// Going up from the cell: words above the values; or, where bars part the cells, a line of numbers above the first
// rule.
PrintedLine TableWalk::headingOf(const Place& place) const {
  std::size_t start = place.line;
  bool belowRule = false;
  while (step(box_.content(), start, -1)) {
    PrintedLine line = lineFrom(box_.content(), start);
    if (line.kind == Kind::blank) break;
    if (line.kind == Kind::words) return line;
    if (line.kind == Kind::values && line.bars && belowRule && line.name.empty()) return line;
    belowRule = line.kind == Kind::rule;
  }
  return {};
}

}  // namespace zelko
