#include "stats/crosstable/tablelines.h"

#include <algorithm>

namespace zelko {

Text rightAligned(TextView text, std::size_t columns) {
  const Text cell = trimmedLeft(text);
  return Text(columns - std::min(columns, cell.size()), u' ') + cell;
}

Text barred(TextView text, std::size_t columns) { return rightAligned(text, columns) + u"|"; }

Text repeated(TextView piece, std::size_t times) {
  Text line;
  for (std::size_t i = 0; i < times; ++i) line += piece;
  return line;
}

}  // namespace zelko
