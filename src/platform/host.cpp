#include "platform/host.h"

#include "platform/text/sjis.h"

namespace zelko {
namespace {
Host* current = nullptr;
}

Host& host() { return *current; }
void setHost(Host* host) { current = host; }

int Host::textTwips(TextView text) {
  constexpr int kHalfWidth = 120;
  return kHalfWidth * static_cast<int>(sjisLength(text));
}

}  // namespace zelko
