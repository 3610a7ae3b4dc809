// Numbers and codes as a person types them: half or full width, with blanks around them. Nothing here faults.
#pragma once

#include <cstdint>
#include <optional>

#include "platform/text/text.h"

namespace zelko {

// In half width, without blanks at its ends: what every typed number and code goes through first.
Text typedCode(TextView typed);

// The whole text as a decimal number (sign, digits, point, exponent); nullopt for anything else and for what no double
// can hold.
std::optional<double> typedNumber(TextView typed);
// The whole text as digits with or without a sign, within the limits.
std::optional<std::int32_t> typedWhole(TextView typed, std::int32_t lowest, std::int32_t highest);
// The number of an item of the open table, `lowest` to the last one.
std::optional<std::int16_t> typedItem(TextView typed, std::int16_t lowest = 0);
// One of `letters` (capitals), in whatever case and width it was typed.
std::optional<char16_t> typedLetter(TextView typed, TextView letters);

// As val, for texts that are read that way, in the width they have; nullopt where the number is beyond a double.
std::optional<double> typedVal(TextView typed);

}  // namespace zelko
