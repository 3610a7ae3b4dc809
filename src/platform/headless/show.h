// What a script's `show` prints.
#pragma once

#include <string>
#include <vector>

#include "platform/headless/headless_host.h"

namespace zelko {

// The lines for "focus", "forms", "title", "clipboard", "menu NAME", FORM or FORM.CONTROL, each behind the word asked
// for. What isn't there is told as such.
std::vector<std::string> stateLines(const Text& what, const HeadlessHost& host, const Text& mainForm);

}  // namespace zelko
