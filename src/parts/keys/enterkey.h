// Enter on a control that has no use of its own for it.
#pragma once

#include <functional>

#include "platform/forms/controls.h"

namespace zelko {

// Enter alone runs the action and goes no further: in a box of one line that is edited as rich text.
void onEnter(Control& control, std::function<void()> action);
// Enter alone ticks and unticks, where a form has a default button that would take it.
void toggleOnEnter(CheckBox& box);

}  // namespace zelko
