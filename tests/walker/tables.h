// Random tables for a walk: what users have, and what breaks readers.
#pragma once

#include <filesystem>
#include <random>

namespace zelko::test {

// Two tables, "t.txt" and "名簿.txt": one to twelve items of 1 to 60 bytes, none to forty records of blanks, digits,
// kana, half kana and halves of characters.
void makeRandomTables(const std::filesystem::path& folder, std::mt19937& random);

}  // namespace zelko::test
