// A figure as a label or a sentence shows it: the ordinary number text, with a zero before a bare point.
#pragma once

#include "platform/text/text.h"

namespace zelko {

Text plainNumber(double value);
Text plainNumber(float value);
// The same for the ear: at most four places.
Text saidNumber(double value);

}  // namespace zelko
