// The forms of the analysis of variance, mnu1 to mnu3.
#pragma once

namespace zelko {

void registerVariance();

}  // namespace zelko
