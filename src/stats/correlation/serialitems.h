// The check of analyses that need one unbroken run of items.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/text/text.h"

namespace zelko {

// `marked` ascending, of the items 1 to lastItem. Empty, or what speaks against them. A run that reaches lastItem needs
// one item more than others.
Text chkSerial(const std::vector<std::int16_t>& marked, int lastItem);

}  // namespace zelko
