// What a search looks for in a cell.
#pragma once

#include <string_view>

#include "platform/text/text.h"
#include "tablejobs/search/bytefilter.h"

namespace zelko {

struct SearchTerms {
  Text what;
  bool whole = false;  // the cell equals it; else the cell contains it
  Spelling spelling;

  bool operator==(const SearchTerms&) const = default;
};

class Matcher {
 public:
  explicit Matcher(const SearchTerms& terms);

  // Blanks at the ends of both are left out of account. An empty text is contained in every cell.
  bool hits(TextView cell) const;
  // False where no cell among these bytes of a record hits; cheap, nothing is converted.
  bool mayHit(std::string_view bytes) const { return filter_.mayHold(bytes); }

 private:
  bool whole_;
  Spelling spelling_;
  Text wanted_;
  ByteFilter filter_;
};

}  // namespace zelko
