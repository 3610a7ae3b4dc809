// The desktop program: windows, and the reader inside it.
#pragma once

#include "app/commandline.h"

namespace zelko {

// Runs the program on the desktop, as the program was built; says so on standard error where it was built without one,
// or where there is no display. The exit status.
int startOnDesktop(int argc, char** argv, const CommandLine& line);

}  // namespace zelko
