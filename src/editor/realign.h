// The alignment of one item, changed in the item file and in every record.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/text.h"

namespace zelko {

// A typed alignment as it is compared and stored: trimmed, half-width, upper case.
Text alignmentLetter(TextView typed);

// The bytes of a cell moved to the other end of it: blanks (20H) on both sides are taken off and put behind for "L", in
// front for "R".
std::string alignedCell(std::string_view cell, TextView letter);

// Stores the letter in the description and the item file, the current row, and every record's cell in place; the cell
// of the cursor is shown again. Nothing has changed where the item file could not be written; a record that could not
// be written ends the work. Either is told.
void realignItem(std::int16_t item, TextView letter);

}  // namespace zelko
