#include "parts/reading/tablewalk.h"

#include <algorithm>

#include "parts/reading/linereader.h"
#include "parts/reading/tablelines.h"
#include "platform/host.h"
#include "voice/talk.h"

namespace zelko {

namespace {

// One line of the text with its cells.
struct Line {
  std::size_t start = 0;
  TextView text;
  std::vector<TableToken> tokens;

  TextView cell(const TableToken& token) const { return text.substr(token.start, token.length); }
  bool isBlank() const { return trimmed(text).empty(); }
  // Names only, or numbers behind the empty corner of a ruled table ("    |   1|   2|").
  bool isHead() const {
    if (tokens.empty()) return false;
    return trimmedLeft(text).starts_with(u'|') ||
           std::none_of(tokens.begin(), tokens.end(),
                        [this](const TableToken& token) { return isFigure(cell(token)); });
  }
};

Line lineFrom(TextView text, std::size_t start) {
  Line line;
  line.start = start;
  line.text = text.substr(start, text.find(u'\n', start) - start);
  if (line.text.ends_with(u'\r')) line.text.remove_suffix(1);
  line.tokens = tokensOf(line.text);
  return line;
}

Line lineOf(TextView text, std::size_t caret) {
  const std::size_t before = caret == 0 ? TextView::npos : text.rfind(u'\n', caret - 1);
  return lineFrom(text, before == TextView::npos ? 0 : before + 1);
}

std::optional<Line> lineAbove(TextView text, const Line& line) {
  return line.start == 0 ? std::nullopt : std::optional(lineOf(text, line.start - 1));
}

std::optional<Line> lineBelow(TextView text, const Line& line) {
  const std::size_t end = text.find(u'\n', line.start);
  return end == TextView::npos || end + 1 >= text.size() ? std::nullopt : std::optional(lineFrom(text, end + 1));
}

// The next line of the same table that has cells.
std::optional<Line> nextRow(TextView text, Line line, bool down) {
  for (;;) {
    const std::optional<Line> next = down ? lineBelow(text, line) : lineAbove(text, line);
    if (!next || next->isBlank()) return std::nullopt;
    if (!next->tokens.empty()) return next;
    line = *next;
  }
}

const TableToken* tokenAt(const Line& line, std::size_t caret) {
  for (const TableToken& token : line.tokens) {
    if (line.start + token.start <= caret && caret < line.start + token.start + token.length) return &token;
  }
  return nullptr;
}

// A line that goes on with the row above begins behind that row's name.
Text rowName(TextView text, const Line& line, const TableToken& token) {
  const TableToken& first = line.tokens.front();
  const std::optional<Line> above = nextRow(text, line, false);
  const bool goesOn = above && !above->isHead() && above->tokens.front().right <= first.left;
  if (goesOn) return Text(above->cell(above->tokens.front()));
  return &token == &first ? Text() : Text(line.cell(first));
}

Text columnName(TextView text, const Line& line, const TableToken& token) {
  for (auto above = nextRow(text, line, false); above; above = nextRow(text, *above, false)) {
    if (!above->isHead()) continue;
    const TableToken* head = nearestToken(above->tokens, token.left, token.right);
    return Text(above->cell(*head));
  }
  return {};
}

TextCell cellOf(TextView text, const Line& line, const TableToken& token) {
  TextCell cell{line.start + token.start, Text(line.cell(token)), {}, {}};
  if (line.isHead()) return cell;
  cell.row = rowName(text, line, token);
  if (!cell.row.empty()) cell.column = columnName(text, line, token);
  return cell;
}

std::optional<CellMove> moveOf(const KeyEvent& key) {
  if (key.mask != shift::Alt) return std::nullopt;
  switch (key.code) {
    case key::Left:
      return CellMove::left;
    case key::Right:
      return CellMove::right;
    case key::Up:
      return CellMove::up;
    case key::Down:
      return CellMove::down;
    default:
      return std::nullopt;
  }
}

}  // namespace

std::optional<TextCell> cellAt(TextView text, std::size_t caret) {
  const Line line = lineOf(text, caret);
  const TableToken* token = tokenAt(line, caret);
  return token ? std::optional(cellOf(text, line, *token)) : std::nullopt;
}

std::optional<TextCell> cellBeside(TextView text, std::size_t caret, CellMove move) {
  const Line line = lineOf(text, caret);
  if (move == CellMove::right || move == CellMove::left) {
    const TableToken* beside = nullptr;
    for (const TableToken& token : line.tokens) {
      const std::size_t start = line.start + token.start;
      if (move == CellMove::left && start + token.length <= caret) beside = &token;
      if (move == CellMove::right && start > caret && !beside) beside = &token;
    }
    return beside ? std::optional(cellOf(text, line, *beside)) : std::nullopt;
  }
  const std::optional<Line> next = nextRow(text, line, move == CellMove::down);
  if (!next) return std::nullopt;
  const TableToken* token = tokenAt(line, caret);
  return cellOf(text, *next, *nearestToken(next->tokens, token ? token->left : 0, token ? token->right : 1));
}

namespace {

// "[*     ]" is heard as what stands in it.
Text unbracketed(const Text& name) {
  if (!name.starts_with(u'[') || !name.ends_with(u']')) return name;
  const Text inside = trimmed(TextView(name).substr(1, name.size() - 2));
  return inside.empty() ? Text(u"ﾌﾞﾗﾝｸ") : inside;
}

}  // namespace

Text cellSentence(const TextCell& cell, const CellNames& names) {
  const auto named = [&](NamedPart part, const Text& name) {
    const Text stands = names ? names(part, name, cell.start) : Text();
    return stands.empty() && part != NamedPart::whole ? unbracketed(name) : stands;
  };
  if (const Text whole = named(NamedPart::whole, cell.value); !whole.empty()) return whole + u"、" + cell.value;
  if (cell.row.empty()) return named(NamedPart::row, cell.value);
  const Text column = cell.column.empty() ? Text() : u"と" + named(NamedPart::column, cell.column);
  return named(NamedPart::row, cell.row) + column + u"、" + cell.value;
}

bool walkTables(TextBox& box, KeyEvent& key, const CellNames& names) {
  const auto move = moveOf(key);
  if (!move) return false;
  key.swallow();
  const Text& text = box.content();
  const auto caret = static_cast<std::size_t>(box.selStart());
  std::optional<TextCell> cell = cellBeside(text, caret, *move);
  if (cell) {
    box.setSelection(static_cast<int>(cell->start), 0);
  } else {
    host().beep();
    cell = cellAt(text, caret);
  }
  const Text line = trimmed(lineAt(text, caret));
  talkGated(cell ? cellSentence(*cell, names) : line.empty() ? Text(u"空行") : line);
  return true;
}

}  // namespace zelko
