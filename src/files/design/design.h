// Table design: the doors to frmDESIGN.
#pragma once

#include "platform/text/text.h"

namespace zelko {

// Shows frmDESIGN for the job that `mode` names: "tdesign" changes the open table, "SVCread" makes the table that a CSV
// file is read into, every other word makes a new table. True when the table was made or changed; it is open then.
bool showTableDesign();

// mnuNEW, mnuKOUMOKU, and the picker's "SVCread".
void registerTableDesign();

}  // namespace zelko
