// One kind of foreign bytes, and what the program promises about them. A target is one file, NAME_target.cpp, with a
// folder of inputs, tests/corpus/NAME; being linked it stands in the table.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zelko::test {

struct FuzzTarget {
  std::string name;
  std::vector<std::string> pieces;  // what a mutation likes to put in
  // Ends the process where the program breaks its word; the sanitizers see the rest.
  void (*check)(std::string_view bytes);
};

std::vector<FuzzTarget>& fuzzTargets();
inline bool addFuzzTarget(FuzzTarget target) { return fuzzTargets().push_back(std::move(target)), true; }

// Says what was broken and aborts, unless it holds.
void require(bool holds, const char* what);

}  // namespace zelko::test
