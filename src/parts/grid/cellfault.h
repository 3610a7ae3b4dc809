// A value that a cell can't be left with, and how it is told.
#pragma once

#include "platform/text/text.h"

namespace zelko {

class TextBox;

struct CellFault {
  TextView said;  // in short, while the dialog opens; empty for a fault that has no short form
  Text text, title;
  bool empties = false;  // a beep comes first, and what was typed goes
};

// Gives the focus back to the box, its text marked so that typing replaces it, and shows the dialog.
void tellCellFault(const CellFault& fault, TextBox& back);

void markWhole(TextBox& box);
bool isWholeMarked(const TextBox& box);
// Without the line ends that the clipboard may bring into a box of one line.
Text withoutLineEnds(TextView typed);

}  // namespace zelko
