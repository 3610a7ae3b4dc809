// The plain driver of a fuzz check: the committed inputs, each cut off at every byte, and mutations of them.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace zelko::test {

// The arguments are the folder of the inputs and the number of mutations; `pieces` are what a mutation likes to put in.
// Gives the exit status.
int runCorpus(int argc, char** argv, std::span<const std::string> pieces, void (*check)(std::string_view));

}  // namespace zelko::test
