#include "platform/host.h"

namespace zelko {
namespace {
Host* current = nullptr;
}

Host& host() { return *current; }
void setHost(Host* host) { current = host; }

}  // namespace zelko
