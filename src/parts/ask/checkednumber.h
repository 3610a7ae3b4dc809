// A typed or pasted value as the analyses take cells: tested first, then read.
#pragma once

#include <optional>

#include "platform/text/text.h"

namespace zelko {

// In half width; its leading number where numCheck says that it is one ("12abc" is 12). Nothing for a blank, a text and
// a number beyond a double.
std::optional<double> checkedNumber(TextView typed);

}  // namespace zelko
