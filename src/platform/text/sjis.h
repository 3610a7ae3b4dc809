// Shift-JIS (code page 932) both ways, from a table.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "platform/text/text.h"

namespace zelko {

// Never fails: U+30FB stands for a byte or a pair without a character (80, A0, FD..FF, a lead byte at the end,
// a pair that is not assigned). A lead byte in front of a byte that cannot be a trail byte is replaced alone,
// and that byte is read anew, so that a line end or a comma behind half a character is never swallowed.
Text fromSjis(std::string_view bytes);

// Where each character of fromSjis(bytes) begins, and behind the last one the length: one more than there are
// characters.
std::vector<std::size_t> characterStarts(std::string_view bytes);
// Never fails: a character without a code becomes "?", also one that takes two units. Of several codes for one
// character the usual one is chosen (JIS first, then row 13, then FA..FC, never ED and EE). U+301C, U+2016,
// U+2212, U+2014, U+00A2, U+00A3, U+00A5, U+00AC and U+203E go to the code of their twin.
std::string toSjis(TextView text);

// The text as a file would give it back: of two characters with one code the usual one; what has no code stays.
Text asStored(TextView typed);
// What `toSjis(text).size()` would give, without making it: the width of a text in bytes.
std::size_t sjisLength(TextView text);

}  // namespace zelko
