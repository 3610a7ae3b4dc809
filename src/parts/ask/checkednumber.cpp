#include "parts/ask/checkednumber.h"

#include "parts/ask/typed.h"
#include "platform/text/numcheck.h"

namespace zelko {

std::optional<double> checkedNumber(TextView typed) {
  const Text code = typedCode(typed);
  const auto value = typedVal(code);
  if (!value || (*value == 0 && numCheck(code) != 0)) return std::nullopt;
  return value;
}

}  // namespace zelko
