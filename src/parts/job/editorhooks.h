// What the floors of jobs need of the editor; the editor registers itself, until then nothing happens.
#pragma once

#include <functional>

namespace zelko {

struct EditorHooks {
  // Stores the names typed into their boxes, and with `box` what stands in the input box and the current row.
  std::function<void(bool box)> storeTyped = [](bool) {};
  // The cache around the cursor, the title and the view again; the range is dropped unless it is kept.
  std::function<void(bool keepRange)> reload = [](bool) {};
};
extern EditorHooks editorHooks;

}  // namespace zelko
