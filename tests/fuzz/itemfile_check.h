// Any bytes as an item file: read, and every cell cut, or refused with one message.
#pragma once

#include <string_view>

namespace zelko::test {

// Ends the process where the store breaks its word; the sanitizers see the rest.
void checkItemFile(std::string_view bytes);

}  // namespace zelko::test
