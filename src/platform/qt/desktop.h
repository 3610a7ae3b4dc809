// The desktop: windows, input method, clipboard, printing and sound behind the host interface.
#pragma once

#include <functional>

#include "platform/text/text.h"

namespace zelko {

// Where the sentences go besides the clipboard and the windows; each may stay empty.
struct DesktopHooks {
  // True while every move is said by the program itself.
  std::function<bool()> speaks;
  std::function<void(TextView)> onSentence;   // a sentence was put on the clipboard
  std::function<void(TextView)> onAgent;      // the talking character speaks
  std::function<void()> onAgentStop;          // and falls silent
  std::function<void(TextView)> onAgentFile;  // another character was loaded, by its file
  std::function<void()> onEnd;                // the program is about to end: let the last sentence out
};
DesktopHooks& desktopHooks();

// Runs the program on the desktop: sets the host, calls `startProgram` and serves events until the program ends.
// The exit status: 0; 1 where the display cannot be reached; 3 after a run-time fault, when all files were closed and
// the user has heard its text.
int runDesktop(int argc, char** argv, const std::function<void()>& startProgram);

}  // namespace zelko
