// The cross report and the calculators for typed tables.
#pragma once

namespace zelko {

void registerCrossTable();

}  // namespace zelko
