// Shift-JIS (code page 932) both ways, from a table.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/text.h"

namespace zelko {

// Never fails: a lone lead byte or an unmapped code becomes U+30FB (one for each byte passed over).
Text fromSjis(std::string_view bytes);

// Never fails: a character without a code becomes "?". U+301C, U+2016, U+2212, U+2014 and the other usual
// doubles go to the code of their twin.
std::string toSjis(TextView text);

// What `toSjis(text).size()` would give, without making it: the width of a text in bytes.
std::size_t sjisLength(TextView text);

}  // namespace zelko
