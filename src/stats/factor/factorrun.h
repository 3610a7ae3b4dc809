// The factor analysis of the menu.
#pragma once

namespace zelko {

// mnuFCTOR.
void registerFactor();

}  // namespace zelko
