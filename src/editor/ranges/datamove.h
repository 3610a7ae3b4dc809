// The cells of a rectangle at another place of the table.
#pragma once

#include <cstdint>

#include "editor/ranges/range.h"

namespace zelko {

// Puts each cell of the block, trimmed, into the cell that lies as far from (toRec, toItem) as it lies from the block's
// first; alignment and width are those of the new place. Records past the last make the file longer, items past
// itemCount are dropped. With `moves` what the block leaves behind is blanked. Overlapping places do not smear. The
// current row has been stored; the cache is to be loaded afterwards. False when a record could not be read or
// written, or at a stop (told): what was put so far stays, and no source is blanked before its copy stands.
bool copyBlock(const RangeBlock& block, std::int32_t toRec, std::int16_t toItem, bool moves);

}  // namespace zelko
