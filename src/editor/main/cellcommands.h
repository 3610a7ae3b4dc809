// Menu commands on the current cell and record, and the mouse's way to the same on the labels of the main form.
#pragma once

namespace zelko {

class Form1;

void copyCellToBox();  // mnuCTRLU: the trimmed cell into the input box
void clearCell();      // mnuCTRLD: what the box holds into the cell (blanks where it is empty), next item

void registerCellCommands();
// Clicks on labels and the row of buttons.
void wireLabels(Form1& form);

}  // namespace zelko
