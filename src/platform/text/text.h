// Text in memory: UTF-16 units; positions count units from 1, as the user's messages do.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zelko {

using Text = std::u16string;
using TextView = std::u16string_view;

inline constexpr const char16_t* kLineEnd = u"\r\n";

// Half-width blanks (U+0020) only; full-width blanks, tabs and line ends stay.
Text trimmed(TextView text);
Text trimmedLeft(TextView text);
Text trimmedRight(TextView text);

// Simple case mapping of the Latin letters, half-width and full-width.
Text upperCase(TextView text);
Text lowerCase(TextView text);

// Cuts by position from 1; what lies outside the text is left out, never a fault.
Text left(TextView text, std::size_t count);
Text right(TextView text, std::size_t count);
Text mid(TextView text, std::size_t start, std::size_t count = TextView::npos);

// The position from 1 of the first `what` at or after `start`; 0 where there is none. An empty `what` is found
// at `start` itself, but never in an empty rest.
std::size_t positionOf(TextView text, TextView what, std::size_t start = 1);
bool contains(TextView text, TextView what);
// An empty `what` replaces nothing.
Text replaceAll(TextView text, TextView what, TextView with);

// UTF-8 of the world outside. A byte that is no UTF-8 becomes the lone surrogate U+DC80..U+DCFF and comes
// back as the same byte, so that every file name survives the way in and out. Any other lone surrogate goes out
// as U+FFFD.
Text fromUtf8(std::string_view bytes);
std::string toUtf8(TextView text);

}  // namespace zelko
