#include "tablejobs/replace/codetable.h"

#include "platform/text/sjis.h"

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

const std::optional<std::string>& CodesOfBytes::find(std::string_view cell) {
  constexpr std::size_t kMostKnown = 1 << 14;
  if (const auto known = known_.find(cell); known != known_.end()) return known->second;
  const Text* result = codes_.find(fromSjis(cell));
  last_ = result ? std::optional(toSjis(*result)) : std::nullopt;
  return known_.size() < kMostKnown ? known_.emplace(cell, last_).first->second : last_;
}

}  // namespace zelko
