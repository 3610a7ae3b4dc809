// The distributions of one item and of groups: their forms and commands.
#pragma once

namespace zelko {

void registerDistribution();

}  // namespace zelko
