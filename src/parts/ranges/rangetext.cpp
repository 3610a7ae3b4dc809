#include "parts/ranges/rangetext.h"

#include <algorithm>
#include <limits>

#include "platform/text/width.h"
#include "store/records/records.h"
#include "store/table/table.h"

namespace zelko {

namespace {

constexpr TextView kMarks = u"-/";

std::int32_t numberOf(TextView digits) {
  constexpr std::int64_t kMost = std::numeric_limits<std::int32_t>::max();
  std::int64_t number = 0;
  for (const char16_t ch : digits) {
    if (ch < u'0' || ch > u'9') break;
    number = std::min(number * 10 + (ch - u'0'), kMost);
  }
  return static_cast<std::int32_t>(number);
}

void dropMarks(Text& text) { text.erase(0, std::min(text.find_first_not_of(kMarks), text.size())); }

TextView faultOfSigns(TextView text) {
  int minuses = 0;
  for (const char16_t ch : text) {
    if ((ch < u'0' || ch > u'9') && ch != u'-' && ch != u'/')
      return u"数字-/以外の文字が含まれる、又は無駄なスペースが含まれる";
    if (ch == u'/') minuses = 0;
    if (ch == u'-' && ++minuses > 1) return u"ブロック中に１以上の「－」がある";
  }
  return {};
}

TextView faultOfBlock(NumberBlock block, int kind, std::int32_t records) {
  const auto [lowest, highest] = std::minmax(block.from, block.to);
  if (kind == kRecordRange) {
    if (highest > records) return u"レコード番号がオーバ";
    return lowest < 1 ? TextView(u"指定値が１より小さい") : TextView();
  }
  if (highest > itemCount) return u"指定値が最大項目番号をオーバ";
  return lowest < 0 ? TextView(u"指定値が０より小さい") : TextView();
}

}  // namespace

void checkRangeText(Text& text, Text& message, int kind) {
  text = toHalfWidth(text);
  if (!text.ends_with(u'/')) text += u'/';
  message = faultOfSigns(text);
  const std::int32_t records = kind == kRecordRange ? recCount() : 0;
  do {
    NumberBlock block;
    nextRangeBlock(block.from, block.to, text);
    if (message.empty()) message = faultOfBlock(block, kind, records);
  } while (!text.empty());
}

void nextRangeBlock(std::int32_t& from, std::int32_t& to, Text& text) {
  if (std::ranges::any_of(text, [](char16_t ch) { return ch > u'~'; })) text = toHalfWidth(text);
  dropMarks(text);
  const std::size_t end = std::min(text.find(u'/'), text.size());
  const Text block = text.substr(0, end);
  const std::size_t minus = block.find(u'-');
  from = numberOf(block);
  to = minus == Text::npos ? from : numberOf(TextView(block).substr(minus + 1));
  text.erase(0, end);
  dropMarks(text);
}

std::vector<NumberBlock> rangeBlocks(TextView text) {
  std::vector<NumberBlock> blocks;
  Text rest = toHalfWidth(text);
  for (dropMarks(rest); !rest.empty();) {
    NumberBlock& block = blocks.emplace_back();
    nextRangeBlock(block.from, block.to, rest);
  }
  return blocks;
}

std::int64_t countOfRange(const std::vector<NumberBlock>& blocks) {
  std::int64_t count = 0;
  for (const NumberBlock& block : blocks) count += std::max<std::int64_t>(std::int64_t{block.to} - block.from + 1, 0);
  return count;
}

std::optional<std::vector<std::int32_t>> numbersOfRange(TextView text, std::size_t most) {
  const std::vector<NumberBlock> blocks = rangeBlocks(text);
  if (countOfRange(blocks) > static_cast<std::int64_t>(most)) return std::nullopt;
  std::vector<std::int32_t> numbers;
  for (const NumberBlock& block : blocks) {
    for (std::int64_t number = block.from; number <= block.to; ++number)
      numbers.push_back(static_cast<std::int32_t>(number));
  }
  return numbers;
}

}  // namespace zelko
