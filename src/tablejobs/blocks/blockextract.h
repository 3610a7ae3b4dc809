// Block extraction into a table of its own.
#pragma once

namespace zelko {

class FrmBROCK;
struct BlockRanges;

// Asks for the name of the output and writes it; at the end the user chooses where to work, and the dialog goes.
// Without a name, after a refusal or a failure the dialog stays.
void extractBlocks(FrmBROCK& dialog, const BlockRanges& ranges);

}  // namespace zelko
