// The rule by which every output file gets its name.
#pragma once

#include "platform/text/text.h"

namespace zelko {

enum class NameStep {
  noName,    // nothing but blanks where the name should be
  extended,  // ".txt" was put behind what was typed: it has to be confirmed
  settled,
};

// One press of the run button with `typed` in the box. `typed` becomes what the box shows then; `fullName` is set where
// the name is settled. A name without its own folder goes into `folder`.
NameStep settleName(TextView folder, Text& typed, Text& fullName);

// "_ZELKO" put before the extension of a name.
Text convertedName(TextView source);

}  // namespace zelko
