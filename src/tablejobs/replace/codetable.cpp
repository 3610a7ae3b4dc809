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

CodesOfBytes::CodesOfBytes(const CodeTable& codes) : codes_(codes) {
  for (const auto& [key, result] : codes.results()) {
    const std::string bytes = toSjis(key);
    if (isPlain(bytes) && fromSjis(bytes) == key) plain_.emplace(bytes, toSjis(result));
  }
}

bool CodesOfBytes::isPlain(std::string_view cell) {
  const std::size_t first = cell.find_first_not_of(' ');
  if (first == std::string_view::npos) return false;
  folded_.assign(cell.substr(first, cell.find_last_not_of(' ') + 1 - first));
  for (char& byte : folded_) {
    const auto code = static_cast<unsigned char>(byte);
    if (code < 0x20 || code > 0xDF || (code > 0x7E && code < 0xA1)) return false;
    if (!codes_.caseCounts() && code >= 'a' && code <= 'z') byte = static_cast<char>(code - 0x20);
  }
  return true;
}

const std::optional<std::string>& CodesOfBytes::find(std::string_view cell) {
  if (isPlain(cell)) {
    const auto plain = plain_.find(folded_);
    if (plain != plain_.end()) return plain->second;
    last_.reset();
    return last_;
  }
  constexpr std::size_t kMostKnown = 1 << 14;
  if (const auto known = known_.find(cell); known != known_.end()) return known->second;
  const Text* result = codes_.find(fromSjis(cell));
  last_ = result ? std::optional(toSjis(*result)) : std::nullopt;
  return known_.size() < kMostKnown ? known_.emplace(cell, last_).first->second : last_;
}

}  // namespace zelko
