// The ways out of the program.
#pragma once

namespace zelko {

// Stores the current row, takes leave by ear, and unloads the main form, which ends the program.
void leaveProgram();
// Esc at an empty box: stores the current row and asks first.
void askToLeave();

}  // namespace zelko
