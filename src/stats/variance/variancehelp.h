// The help texts of the analysis of variance: an example of the data, the conditions, and the table in words.
#pragma once

namespace zelko {

enum class VarianceHelp { oneWay, twoWay, treatments, sameSubjects, otherSubjects, replicated };

// In the window of the help texts.
void showVarianceHelp(VarianceHelp which);

}  // namespace zelko
