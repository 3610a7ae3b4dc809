// Walking the tables of a text cell by cell: Alt with the arrows, row and column named with each value.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>

#include "platform/forms/controls.h"

namespace zelko {

enum class CellMove { left, right, up, down };

struct TextCell {
  std::size_t start = 0;  // in the text, from 0
  Text value;
  Text row, column;  // their names as they stand in the table; empty where it has none
};

// The cell beside the one at the caret: within its line, or in the next line that holds any, where it stands nearest
// to the same columns. nullopt where the line or the table (which ends at an empty line) has no further one.
std::optional<TextCell> cellBeside(TextView text, std::size_t caret, CellMove move);
// The cell that the caret stands in.
std::optional<TextCell> cellAt(TextView text, std::size_t caret);

// What a name of a table stands for, by the position of the cell in the text; empty: it is said as it stands. `whole`
// is asked first, with the cell's own text: what stands for row and column together.
enum class NamedPart { whole, row, column };
using CellNames = std::function<Text(NamedPart part, TextView name, std::size_t position)>;

// "英語と数学、0.62".
Text cellSentence(const TextCell& cell, const CellNames& names = {});

// For the key-down of a box: Alt with an arrow moves the caret to the next cell and says it, a beep where there is
// none. True where it was that key, which is swallowed then.
bool walkTables(TextBox& box, KeyEvent& key, const CellNames& names = {});

}  // namespace zelko
