// The alignment of one item, changed in the item file and in every record.
#pragma once

#include <cstdint>

#include "platform/text/text.h"

namespace zelko {

// A typed alignment as it is compared and stored: trimmed, half-width, upper case.
Text alignmentLetter(TextView typed);

// Rewrites the table with the item justified anew: blanks (20H) on both sides of each of its cells stand behind the
// text for "L", in front of it for "R". The current row is stored before, the cell of the cursor shown again. Where it
// fails the table is as it was and the user is told.
void realignItem(std::int16_t item, TextView letter);

}  // namespace zelko
