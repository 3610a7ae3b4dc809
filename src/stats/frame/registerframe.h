// The forms and commands that all analyses share.
#pragma once

namespace zelko {

void registerAnalysisFrame();

}  // namespace zelko
