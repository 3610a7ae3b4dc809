// The user's clipboard beyond the end of the program.
#pragma once

namespace zelko {

// Where a text on the clipboard would be gone with the program that put it there, hands ours to a process of its own.
// At the end of the program, while its windows can still talk to the display.
void leaveClipboard();

// That process: serves the text from standard input until another program takes the clipboard. The exit status.
int keepClipboard(int argc, char** argv);

}  // namespace zelko
