// What the five probability calculators make of their boxes, apart from the form.
#pragma once

#include <array>

#include "platform/text/text.h"

namespace zelko {

enum class Calculator { normal, t, F, chiSquare, binomial };

struct CalculatorBoxes {
  std::array<Text, 3> values;  // Text1 to Text3, as typed
  bool raw = false;            // the normal one: Text1 is a raw score
};

struct Calculation {
  Text line;    // Label1; empty where there is no result
  Text z;       // Label3: the z of a raw score
  Text spoken;  // the result as a sentence, with the exact value where the line is off
  // What is wrong with a box, to be told when the user is done typing; empty where nothing is, or a box is blank.
  Text fault, faultTitle;
  int faultBox = 0;  // 0 to 2
};

// A number beyond the range of the arithmetic gives no line, and no fault.
Calculation calculate(Calculator kind, const CalculatorBoxes& boxes);

}  // namespace zelko
