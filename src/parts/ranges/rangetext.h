// The range language: blocks of numbers parted by "/", a block one number or two joined by "-": "10-15/80-100/3".
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "platform/text/text.h"

namespace zelko {

inline constexpr int kRecordRange = 1, kItemRange = 0;  // kinds of checkRangeText

// Why the text is no range of the open table's records (kind 1) or items (any other kind); empty where it is one. The
// text is used up: pass a copy.
void checkRangeText(Text& text, Text& message, int kind);

// Takes the first block from the text. One number gives from = to, a missing end 0; a number that no table reaches is
// the largest that there is. The text is empty when no block is left.
void nextRangeBlock(std::int32_t& from, std::int32_t& to, Text& text);

struct NumberBlock {
  std::int32_t from = 0, to = 0;
  bool operator==(const NumberBlock&) const = default;
};
// All blocks in the written order; a checked text.
std::vector<NumberBlock> rangeBlocks(TextView text);
// How many numbers the blocks name; one that runs downwards names none.
std::int64_t countOfRange(const std::vector<NumberBlock>& blocks);
// Each number, in the written order; nullopt where there are more than `most`.
std::optional<std::vector<std::int32_t>> numbersOfRange(TextView text, std::size_t most);

}  // namespace zelko
