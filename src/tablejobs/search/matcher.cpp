#include "tablejobs/search/matcher.h"

#include "platform/text/sjis.h"

namespace zelko {

// A full-width blank counts as a blank once forms are folded: so the ends are trimmed again.
Matcher::Matcher(const SearchTerms& terms)
    : whole_(terms.whole),
      spelling_(terms.spelling),
      wanted_(trimmed(spelled(asStored(trimmed(terms.what)), spelling_))),
      filter_(wanted_, spelling_) {}

bool Matcher::hits(TextView cell) const {
  const Text text = spelled(trimmed(cell), spelling_);
  return whole_ ? trimmed(text) == wanted_ : text.find(wanted_) != Text::npos;
}

}  // namespace zelko
