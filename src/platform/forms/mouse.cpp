#include "platform/forms/mouse.h"

#include <utility>

namespace zelko {
namespace {
int held = 0;
}

int mouseModifiers() { return held; }

MouseModifiers::MouseModifiers(int mask) : before_(std::exchange(held, mask)) {}
MouseModifiers::~MouseModifiers() { held = before_; }

}  // namespace zelko
