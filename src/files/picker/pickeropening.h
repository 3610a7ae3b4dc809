// From the picker into the editor, and back to the table that was open when the chosen one is none.
#pragma once

#include "platform/text/text.h"

namespace zelko {

class Form;

// Stores what the user changed in the open table; nothing without one.
void storeEditedTable();
// Opens the table of that data file in place of the open one. False after a message; the old table is open again then.
bool openInPlace(TextView dataFile);
// The same, with what stands in the input box put into its cell first.
void storeTypedCell();
// Drops what belongs to the items and records of one table alone: range, numbering, entry items, always-displayed item.
void forgetOldTable();
// Opens the data file of the table in edit again where a failure has closed it; tells when that can't be done.
void keepEditedTableOpen();
// Unloads the picker and enters the editor on the table that was opened.
void closeAndEnter(Form& picker);
// Takes leave by ear and ends the program.
[[noreturn]] void endFromPicker();

}  // namespace zelko
