#include "parts/reading/tablelines.h"

#include <algorithm>

#include "platform/text/numcheck.h"
#include "platform/text/sjis.h"

namespace zelko {

namespace {

constexpr TextView kOpening = u"([", kClosing = u")]";

bool isOneOf(char16_t character, TextView signs) { return signs.find(character) != TextView::npos; }

bool isBlank(char16_t character) {
  return character == u' ' || character == u'\u3000' || character == u'\f' || character == u'|';
}

bool onlyParts(TextView cell) {
  if (cell.find_first_not_of(u"-=+･") == TextView::npos) return true;
  return cell == u":" || cell == u"：" || cell == u"," || cell == u"I";
}

// Behind the last character of the cell that begins there.
std::size_t endOfToken(TextView line, std::size_t start) {
  int open = 0;
  std::size_t at = start;
  for (; at < line.size(); ++at) {
    if (isBlank(line[at]) && (open == 0 || line.find_first_of(kClosing, at) == TextView::npos)) break;
    open += isOneOf(line[at], kOpening) ? 1 : 0;
    open -= isOneOf(line[at], kClosing) && open > 0 ? 1 : 0;
  }
  return at;
}

std::size_t shared(const TableToken& token, std::size_t left, std::size_t right) {
  const std::size_t from = std::max(token.left, left), to = std::min(token.right, right);
  return to > from ? to - from : 0;
}

std::size_t gap(const TableToken& token, std::size_t right) {
  return token.right > right ? token.right - right : right - token.right;
}

}  // namespace

std::vector<TableToken> tokensOf(TextView line) {
  std::vector<TableToken> tokens;
  std::size_t column = 0;
  for (std::size_t at = 0; at < line.size();) {
    const std::size_t end = isBlank(line[at]) ? at + 1 : endOfToken(line, at);
    const TextView piece = line.substr(at, end - at);
    const std::size_t width = sjisLength(piece);
    if (!isBlank(line[at]) && !onlyParts(piece)) tokens.push_back({at, end - at, column, column + width});
    column += width;
    at = end;
  }
  return tokens;
}

const TableToken* nearestToken(const std::vector<TableToken>& tokens, std::size_t left, std::size_t right) {
  const TableToken* best = nullptr;
  for (const TableToken& token : tokens) {
    if (!best || shared(token, left, right) > shared(*best, left, right) ||
        (shared(token, left, right) == shared(*best, left, right) && gap(token, right) < gap(*best, right)))
      best = &token;
  }
  return best;
}

bool isFigure(TextView cell) {
  if (cell.ends_with(u'%')) cell.remove_suffix(1);
  return cell == u"*" || isWholeNumber(cell);
}

}  // namespace zelko
