// The frequency list: its form and mnuFREQ.
#pragma once

namespace zelko {

void registerFrequency();

}  // namespace zelko
