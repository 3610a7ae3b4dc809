#include "tablejobs/replace/codetable.h"

namespace zelko {

Text CodeTable::folded(TextView text) const { return caseCounts_ ? trimmed(text) : upperCase(trimmed(text)); }

void CodeTable::add(TextView key, TextView result) {
  Text sought = folded(key);
  if (!sought.empty()) results_.try_emplace(std::move(sought), trimmed(result));
}

const Text* CodeTable::find(TextView cell) const {
  const auto found = results_.find(folded(cell));
  return found == results_.end() ? nullptr : &found->second;
}

}  // namespace zelko
