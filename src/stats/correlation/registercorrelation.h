// The correlations between items.
#pragma once

namespace zelko {

void registerCorrelation();

}  // namespace zelko
