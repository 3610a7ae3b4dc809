// The report on Pearson's coefficients of chosen items.
#pragma once

namespace zelko {

// mnuRP.
void registerPearson();

}  // namespace zelko
