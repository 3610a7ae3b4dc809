// What a user could do next, as a line of a script.
#pragma once

#include <random>
#include <string>

namespace zelko::test {

enum class Manner { anything, onlyLooking };

// A key, a text, a click on a live control of the form that is active, an entry of a menu, a moment of time. A walk
// that only looks presses keys that read and move, and nothing else.
std::string nextLine(Manner manner, std::mt19937& random);

}  // namespace zelko::test
