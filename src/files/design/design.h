// Table design: the doors to frmDESIGN.
#pragma once

#include "platform/text/text.h"

namespace zelko {

enum class DesignFor {
  newTable,
  openTable,  // changes it; without one, a new table
  csv,        // makes the table that a CSV file is read into
};

// Shows frmDESIGN, modal; the word of its job stands in `mode` until it is closed. True when the table was made or
// changed; it is open then.
bool showTableDesign(DesignFor purpose);

// mnuNEW, mnuKOUMOKU, and the picker's "SVCread".
void registerTableDesign();

}  // namespace zelko
