// The keys that are held while the mouse acts.
#pragma once

namespace zelko {

// The shift mask of the click or double click that is being served; shift::None otherwise.
int mouseModifiers();

// A host holds one while it hands a click to the model.
class MouseModifiers {
 public:
  explicit MouseModifiers(int mask);
  ~MouseModifiers();
  MouseModifiers(const MouseModifiers&) = delete;
  MouseModifiers& operator=(const MouseModifiers&) = delete;

 private:
  int before_;
};

}  // namespace zelko
