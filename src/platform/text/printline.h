// One print line: pieces joined by ";" (adjacent) or "," (next zone of 14 columns).
#pragma once

#include <concepts>
#include <cstddef>

#include "platform/text/number.h"
#include "platform/text/text.h"

namespace zelko {

class PrintLine {
 public:
  PrintLine& text(TextView piece);
  // The text form with one blank behind it.
  PrintLine& number(double value) { return bare(str(value)); }
  PrintLine& number(float value) { return bare(str(value)); }
  PrintLine& number(std::integral auto value) { return bare(str(static_cast<std::int64_t>(value))); }
  // A comma: always moves on to the next zone. A column is a Shift-JIS byte.
  PrintLine& zone();
  // Without a line end.
  const Text& line() const { return line_; }

 private:
  PrintLine& bare(TextView numberText) { return text(numberText).text(u" "); }

  Text line_;
  std::size_t columns_ = 0;
};

// A double quote, the text as it stands, a double quote.
Text quotedField(TextView text);

}  // namespace zelko
