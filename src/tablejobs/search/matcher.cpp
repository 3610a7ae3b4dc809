#include "tablejobs/search/matcher.h"

#include "platform/text/sjis.h"

namespace zelko {

namespace {}  // namespace

Matcher::Matcher(const SearchTerms& terms)
    : whole_(terms.whole),
      spelling_(terms.spelling),
      wanted_(spelled(asStored(trimmed(terms.what)), spelling_)),
      filter_(whole_ ? trimmed(wanted_) : wanted_, spelling_) {
  // A full-width blank counts as a blank once forms are folded.
  if (whole_) wanted_ = trimmed(wanted_);
}

bool Matcher::hits(TextView cell) const {
  const Text text = spelled(trimmed(cell), spelling_);
  return whole_ ? trimmed(text) == wanted_ : text.find(wanted_) != Text::npos;
}

}  // namespace zelko
