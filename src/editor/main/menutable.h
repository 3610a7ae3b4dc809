// The menu of the main form as one table of data: order, names, captions, shortcuts.
#pragma once

#include <span>

#include "platform/text/text.h"

namespace zelko {

class Form;

struct MenuRow {
  int level;  // 0 an entry of the bar, 1 below it, 2 in a submenu
  TextView name;
  TextView caption;
  int shortcutCode = 0, shortcutMask = 0;
  bool hidden = false;  // shown by its owner when there is something to do
};

// In the order of the menu.
std::span<const MenuRow> menuRows();

// Builds the menu of `form` from the table; what serves an entry is asked of the registered commands when it is chosen.
void buildMainMenu(Form& form);

}  // namespace zelko
