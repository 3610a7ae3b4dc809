// The commands and forms of replacement and conversion.
#pragma once

namespace zelko {

void registerReplacement();

}  // namespace zelko
