// The cluster analysis of the menu.
#pragma once

namespace zelko {

// The forms and mnuCLUS.
void registerCluster();

}  // namespace zelko
