// Blocks of records and items: the dialog that asks for them, and the commands that extract them.
#pragma once

#include <optional>

#include "platform/text/text.h"

namespace zelko {

// In the range language, checked against the open table. No records means all of them, where the job takes it so.
struct BlockRanges {
  Text records, items;
};

// Asks for them in the dialog, for a job of another floor: "PRINT", or a word of the statistics that contains "MLINE",
// for which no records become "1-" and their count, and no items those behind the ID item. `mode` is the word
// meanwhile. nullopt where the user gave up.
std::optional<BlockRanges> askBlockRanges(TextView word);

// mnuMBROCK, mnuBROCK and the form.
void registerBlocks();

}  // namespace zelko
