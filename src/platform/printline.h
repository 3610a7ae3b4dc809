// One print line: pieces joined by ";" (adjacent) or "," (next zone of 14 columns).
#pragma once

#include "platform/text.h"

namespace zelko {

class PrintLine {
 public:
  PrintLine& text(TextView piece);
  PrintLine& number(double value);  // the text form with one blank behind it
  PrintLine& zone();                // a comma: always moves on to the next zone
  const Text& line() const { return line_; }

 private:
  Text line_;
};

// A double quote, the text as it stands, a double quote.
Text quotedField(TextView text);

}  // namespace zelko
