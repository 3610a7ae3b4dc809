// A cell written anew through a format pattern.
#pragma once

#include <optional>

#include "platform/text/daytime.h"
#include "platform/text/text.h"

namespace zelko {

enum class FormatKind { number, text, date };

// The trimmed cell through the pattern; nothing for a cell that is blank or not wholly readable: "12abc" is no number.
// A time alone is readable where the pattern tells no date.
std::optional<Text> formattedCell(FormatKind kind, TextView cell, TextView pattern);

// What the pattern makes of a sample (a number, some letters, or `now`). Nothing where the pattern is not usable: an
// open quote, a "\" at the end, or one of a number or date in which nothing of the value stands, for it would write the
// same over every cell.
std::optional<Text> formatSample(FormatKind kind, TextView pattern, const DateTime& now);

}  // namespace zelko
