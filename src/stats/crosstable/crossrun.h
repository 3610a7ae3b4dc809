// The cross report: every item of group 1 with every one of group 2.
#pragma once

namespace zelko {

// mnuCROS.
void registerCrossReport();

}  // namespace zelko
