// Bytes of Shift-JIS that a conversion to text and back leaves as they are.
#pragma once

#include <string>
#include <string_view>

namespace zelko {

// False where the bytes hold half a character, a pair without a character or one of several codes of a character that
// is not the usual one.
bool survivesConversion(std::string_view bytes);
// What text in Shift-JIS becomes when it is read as text and written again: most often the bytes themselves, which are
// then given as they are; `scratch` holds them where they changed.
std::string_view throughText(std::string_view bytes, std::string& scratch);

// How many bytes at the head are ASCII.
std::size_t asciiPrefix(std::string_view bytes);
inline bool isAscii(std::string_view bytes) { return asciiPrefix(bytes) == bytes.size(); }

}  // namespace zelko
