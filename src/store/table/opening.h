// The two halves of opening a table: what can fail, and what then takes hold of the globals.
#pragma once

#include "store/table/description.h"

namespace zelko {

// Hides the read-only mark and reads the item file of a data file. On a failure all files are closed, the user is
// told, and it answers false.
bool readToOpen(TextView path, TextView drive, TableDescription& out);
// The description becomes that of the open table; itemStart is not computed.
void adopt(const TableDescription& table);

}  // namespace zelko
