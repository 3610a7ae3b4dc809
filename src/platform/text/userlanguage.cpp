#include "platform/text/userlanguage.h"

#include <cstdlib>
#include <string_view>

namespace zelko {

bool userReadsJapanese() {
  for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    const char* value = std::getenv(name);
    if (value && *value) return std::string_view(value).starts_with("ja");
  }
  return false;
}

}  // namespace zelko
