// The spoken file picker: the doors to it.
#pragma once

#include "platform/text/text.h"

namespace zelko {

enum class PickFor {
  table,      // to be opened; the editor is entered on it when the picker has gone
  deletion,   // of a table
  layout,     // read by the command "LAYOUT"
  reference,  // a table for the second description, shown by the command "REF"
  text,       // converted to a table by the command "CVZLKF"
  csv,        // its items are designed by the command "SVCread", and it is read by "csvREAD"
};

// Shows frmDISK on the program's folder, and publishes the word of its job in `mode` until it is closed. Modal over the
// main form; without one, as from the start screen, it returns at once. False where the user gave up, which "tyusi"
// tells in `mode` while the picker closes.
//
// The commands are run while the picker is open; until one is registered (editor/main/commands.h) it beeps.
bool showFilePicker(PickFor purpose);

// What such a command asks for: the full name of the chosen file, in the jobs of tables the data file; empty where
// nothing is chosen or the picker isn't open.
Text pickedFile();
// Closes the picker.
void closeFilePicker();

void registerFilePicker();

}  // namespace zelko
