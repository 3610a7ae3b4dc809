// Any bytes as a script: understood, or refused with the number of the line.
#include <algorithm>

#include "fuzz/target.h"
#include "platform/headless/script.h"

namespace zelko::test {
namespace {

void checkScript(std::string_view bytes) {
  const auto lines = 1 + static_cast<int>(std::count(bytes.begin(), bytes.end(), '\n'));
  try {
    for (const Action& action : parseScript(bytes))
      require(action.line >= 1 && action.line <= lines, "an action's line");
  } catch (const ScriptError& error) {
    require(error.line >= 1 && error.line <= lines && !error.reason.empty(), "a refusal without its line");
  }
}

const bool added = addFuzzTarget({"script",
                                  {"\n", " ", ".", "(", "later 2 ", "key ", "Ctrl+", "\\", "\xED\xA0\x80",
                                   "\xF0\x9F\x98\x80", "99999999999", "-", "port COM"},
                                  checkScript});

}  // namespace
}  // namespace zelko::test
