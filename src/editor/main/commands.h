// Menu commands by name: the table of the menu is the editor's, the commands come from every floor above.
#pragma once

#include <functional>
#include <vector>

#include "platform/text/text.h"

namespace zelko {

// Serves the menu entry of that name; the last one wins. An entry that nobody serves beeps.
void registerCommand(TextView menuName, std::function<void()> command);
// What serves the entry; empty where nobody does.
const std::function<void()>& commandOf(TextView menuName);
// The names of all that are served.
std::vector<Text> commandNames();
// Runs what serves the entry; a beep where nobody does.
void runCommand(TextView menuName);

}  // namespace zelko
