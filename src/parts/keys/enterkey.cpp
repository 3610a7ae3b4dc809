#include "parts/keys/enterkey.h"

namespace zelko {

void onEnter(Control& control, std::function<void()> action) {
  control.onKeyDown = [action = std::move(action)](KeyEvent& key) {
    if (!key.is(key::Enter, shift::None)) return;
    key.swallow();
    action();
  };
}

void toggleOnEnter(CheckBox& box) {
  onEnter(box, [&box] { box.setValue(1 - box.value()); });
}

}  // namespace zelko
