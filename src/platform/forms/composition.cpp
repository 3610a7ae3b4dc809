#include "platform/forms/composition.h"

#include <utility>

#include "platform/forms/form.h"

namespace zelko {
namespace {
std::function<void(const Composition&)> served;
}

void compositionChanged(const Composition& composition) {
  Screen::HandlerScope scope;
  if (served) served(composition);
}

void onComposition(std::function<void(const Composition&)> serve) { served = std::move(serve); }

}  // namespace zelko
