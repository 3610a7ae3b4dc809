// The spoken file picker: the doors to it.
#pragma once

#include "platform/text/text.h"

namespace zelko {

// Shows frmDISK for the job that `mode` names (empty or "YOMIKOMI" opens a table), on the program's folder. Modal over
// the main form; without one, as from the start screen, it returns at once. A table that was chosen is open, and the
// editor entered, when the picker has gone.
//
// Jobs that other floors finish are commands by name (editor/commands.h), run while the picker is open; until one is
// registered the picker beeps: "LAYOUT" reads a layout, "REF" shows the reference table of the second description,
// "CVZLKF" converts a text file, "SVCread" lets the user design the items of a CSV file, "csvREAD" reads it.
void showFilePicker();

// What such a command asks for: the full name of the chosen file, in the jobs of tables the data file; empty where
// nothing is chosen or the picker isn't open.
Text pickedFile();
// Closes the picker, `mode` as it stands.
void closeFilePicker();

void registerFilePicker();

}  // namespace zelko
