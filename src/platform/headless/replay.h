// Plays a script through the whole program, from its start to its exit status.
#pragma once

#include <functional>
#include <string>

#include "platform/headless/recorders.h"

namespace zelko {

enum ReplayStatus { kReplayed = 0, kExpectFailed = 1, kScriptMalformed = 2, kFaulted = 3 };

struct ReplayOptions {
  std::string script;          // a file, or "-" for standard input
  Text mainForm = u"Form1";    // whose caption is the title
  Transcript transcript = {};  // standard output, a line at a time, where it is empty
  Transcript complaints = {};  // standard error where it is empty
};

// `startProgram` runs first, and shows the first form; then the script plays. Gives the exit status. The screen is
// empty afterwards and no host is set.
int runReplay(const ReplayOptions& options, const std::function<void()>& startProgram);

}  // namespace zelko
