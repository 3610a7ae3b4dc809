#include "fuzz/target.h"

#include <cstdio>
#include <cstdlib>

namespace zelko::test {

std::vector<FuzzTarget>& fuzzTargets() {
  static std::vector<FuzzTarget> targets;
  return targets;
}

void require(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "%s\n", what);
  std::abort();
}

}  // namespace zelko::test
