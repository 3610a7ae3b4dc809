// The texts of the manual that were written for it (assets/manual), as they were when the program was built.
#pragma once

#include <string_view>

namespace zelko {

// UTF-8, a block a line: "# chapter", "## section", "- item", "1. step", "term : definition", anything else a
// paragraph. "@keys",
// "@menu" and "@help NAME" stand for the guides, the menu and a help text.
std::string_view manualChapters();
// UTF-8, a line an entry of the menu: its name, a blank, what it does.
std::string_view manualMenuLines();

}  // namespace zelko
