#include "tablejobs/sort/sorttable.h"

#include <algorithm>

#include "parts/ask/typed.h"

namespace zelko {

namespace {

bool isBlank(const SortRow& row) { return typedCode(row.item).empty() && typedCode(row.direction).empty(); }

bool isDigit(char16_t ch) { return ch >= u'0' && ch <= u'9'; }

// Empty where the item is one of the open table.
Text faultOfItem(const Text& code) {
  if (code.empty()) return u"キー項目無記入";
  if (!std::ranges::all_of(code, isDigit)) return u"キー項目数字以外使用";
  return typedItem(code) ? Text() : Text(u"無い項目番号を指定");
}

}  // namespace

SortTableFault checkSortTable(const std::vector<SortRow>& rows, std::vector<SortKey>& keys) {
  std::size_t count = rows.size();
  while (count > 1 && isBlank(rows[count - 1])) --count;
  keys.clear();
  for (std::size_t row = 0; row < count; ++row) {
    const Text item = typedCode(rows[row].item);
    if (Text message = faultOfItem(item); !message.empty()) return {message, static_cast<int>(row), false};
    const auto direction = typedLetter(rows[row].direction, u"AD");
    if (!direction) return {u"A D 以外の記入", static_cast<int>(row), true};
    keys.push_back({*typedItem(item), *direction == u'A'});
  }
  return {};
}

}  // namespace zelko
