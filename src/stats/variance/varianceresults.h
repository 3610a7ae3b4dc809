// The eight designs: from the values that were read to the table that is seen, said and written.
#pragma once

#include <vector>

#include "stats/variance/designread.h"
#include "stats/variance/variancetable.h"

namespace zelko {

// What a run would take now: "項目1:国語～3:理科､記録1～20".
Text selectionWords();
// Two items, and two records of the analysis, at least: else false, told.
bool groupsFit(const ItemSpan& items);
bool rowsFit();

VarianceResult oneWayResult(const ItemSpan& items, const std::vector<std::vector<double>>& groups, bool unequal);

// Subjects by trials; treatment by treatment with one value a cell.
VarianceResult trialsResult(const ItemSpan& items, const numbers::Matrix& values);
VarianceResult crossedResult(const ItemSpan& items, const numbers::Matrix& values);
VarianceResult cellsResult(const DesignItems& items, const DesignRead& read, bool unequal);

enum class ThreeWayDesign {
  treatments,     // one value a cell
  sameSubjects,   // all subjects meet all levels of A and B
  otherSubjects,  // other subjects at each level of A
  replicated,     // several values a cell
};
VarianceResult threeWayResult(ThreeWayDesign design, const DesignItems& items, const DesignRead& read);

}  // namespace zelko
