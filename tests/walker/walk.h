// One walk: the whole program in a process and a folder of its own.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "walker/choices.h"

namespace zelko::test {

struct WalkPlan {
  unsigned seed = 1;  // of the tables and of what is done
  Manner manner = Manner::anything;
  int actions = 300;
  // Plays these lines in place of random ones; those that can't be played where they stand are passed over.
  std::optional<std::vector<std::string>> lines = {};
};

struct Walked {
  std::vector<std::string> lines;  // as far as they came
  std::string find;                // the rule that was broken, or how the process ended; empty for none
};

// wireProgram() must have run. The folder is gone afterwards, whatever happened.
Walked walk(const WalkPlan& plan);

// The walk with as few lines as still end in the same find.
WalkPlan minimised(WalkPlan plan, const Walked& walked);

}  // namespace zelko::test
