// What stands in the cells of chosen items: records, blanks, words and zeros, counted.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "platform/text/text.h"

namespace zelko {

enum class CellKind { blank, word, zero };
inline constexpr std::size_t kCellKinds = 3;

struct ItemCells {
  std::int16_t item = 0;
  std::int32_t records = 0;
  std::array<std::int32_t, kCellKinds> counts{};
  std::array<std::int32_t, kCellKinds> first{};  // the first record with such a cell, 0 for none

  std::int32_t count(CellKind kind) const { return counts[static_cast<std::size_t>(kind)]; }
  std::int32_t firstOf(CellKind kind) const { return first[static_cast<std::size_t>(kind)]; }
  // The first record with a cell of any of these kinds, 0 for none.
  std::int32_t firstOfAny() const;
};

// "ﾌﾞﾗﾝｸ", "文字", "0".
TextView cellKindName(CellKind kind);

// The cells of those items in firstRecord to lastRecord, an entry an item in the same order. Nothing where the user
// stopped it or a record could not be read (told).
std::optional<std::vector<ItemCells>> countCells(const std::vector<std::int16_t>& items);

}  // namespace zelko
