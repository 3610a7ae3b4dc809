#include "tablejobs/blocks/blockplan.h"

#include <algorithm>

#include "parts/ranges/rangetext.h"
#include "platform/text/number.h"
#include "store/table/table.h"

namespace zelko {

namespace {

constexpr std::size_t kMostItems = kHighestItem + 1;
constexpr std::size_t kLongestList = 200;  // characters of the memo behind which no number is added

std::vector<Stretch> stretchesOf(std::int32_t records, TextView text) {
  if (text.empty()) return {{1, records}};
  std::vector<Stretch> stretches;
  for (const NumberBlock& block : rangeBlocks(text)) {
    if (block.to >= block.from) stretches.push_back({block.from, block.to - block.from + 1});
  }
  return stretches;
}

std::vector<int> startsOf(const std::vector<ItemLine>& items) {
  std::vector<int> starts;
  int start = 0;
  for (const ItemLine& item : items) {
    starts.push_back(std::min(start, kDataBytes));
    start += item.width;
  }
  return starts;
}

}  // namespace

std::optional<BlockPlan> planBlocks(const TableDescription& table, std::int32_t records, TextView recordText,
                                    TextView itemText) {
  const Text all = u"0-" + decimal(static_cast<std::int64_t>(table.items.size()) - 1);
  const auto items = numbersOfRange(itemText.empty() ? TextView(all) : itemText, kMostItems);
  if (!items || items->empty()) return std::nullopt;
  BlockPlan plan;
  plan.records.stretches = stretchesOf(records, recordText);
  plan.records.overOld = false;
  const std::vector<int> starts = startsOf(table.items);
  int to = 0;
  for (const std::int32_t number : *items) {
    const auto item = static_cast<std::size_t>(number);
    const int width = std::min<int>(table.items[item].width, kDataBytes - to);
    if (width == 0 && table.items[item].width > 0) {
      ++plan.leftOut;
      continue;
    }
    const int held = std::min(width, kDataBytes - starts[item]);
    plan.records.cells.push_back({starts[item], held, to, width, Justify::keep});
    plan.description.items.push_back(table.items[item]);
    plan.description.items.back().width = static_cast<std::int16_t>(width);
    to += width;
  }
  return plan;
}

Text memoOfBlocks(TextView source, const std::vector<std::int32_t>& items, const DateTime& now) {
  Text memo = Text(source) + u"より、項目";
  for (std::size_t at = 0; at < items.size() && memo.size() <= kLongestList; ++at)
    memo += (at > 0 ? u"､" : u"") + decimal(items[at]);
  memo += u"を転送による " + shortDate(now) + u" " + shortTime(now);
  std::ranges::replace(memo, u',', u'、');
  return memo;
}

}  // namespace zelko
