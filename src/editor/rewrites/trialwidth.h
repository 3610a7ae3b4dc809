// Item widths that are tried out: the description and the cached rows change, the files do not.
#pragma once

#include <array>

#include "store/table/table.h"

namespace zelko {

// Takes the widths over and lays the cached rows out anew from the file, with "/" in the new bytes of a left-justified
// cell; the mask goes on the item of the cursor.
void previewWidths(const std::array<std::int16_t, kMaxItems>& widths);
// Says the width of the item, and that the record has no room for its last bytes where that is so.
void sayWidth(std::int16_t item);

}  // namespace zelko
