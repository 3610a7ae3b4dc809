// What a reader of the screen is told.
#pragma once

#include <QAccessible>

namespace zelko {

// Gives every kind of control its role. While the program speaks itself, events that a reader of the screen would
// say aloud are kept from it; names, roles and places stay open to it, and so does the change of windows.
void prepareAccessibility();
bool isToldToScreenReader(QAccessible::Event type);

}  // namespace zelko
