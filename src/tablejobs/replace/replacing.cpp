#include "tablejobs/replace/replacing.h"

#include "platform/text/sjis.h"

namespace zelko {

namespace {

Text folded(const ReplaceRule& rule, TextView text) { return rule.caseCounts ? Text(text) : upperCase(text); }

}  // namespace

bool ReplaceRule::changesNothing() const { return folded(*this, search) == folded(*this, with); }

bool isHit(const ReplaceRule& rule, TextView cell) {
  const Text sought = folded(rule, rule.search), held = folded(rule, cell);
  if (rule.equal) return held == sought;
  return sought.empty() ? rule.wholeCell : contains(held, sought);
}

std::string replaceCell(const ReplaceRule& rule, std::string_view cell) {
  const std::string with = toSjis(rule.with);
  const Text sought = folded(rule, rule.search);
  if (rule.wholeCell || rule.equal || sought.empty()) return with;
  const Text held = folded(rule, fromSjis(cell));
  const auto starts = characterStarts(cell);
  std::string result;
  std::size_t at = 0;
  for (std::size_t found = held.find(sought); found != Text::npos; found = held.find(sought, at)) {
    result += cell.substr(starts[at], starts[found] - starts[at]);
    result += with;
    at = found + sought.size();
  }
  return result.append(cell.substr(starts[at]));
}

}  // namespace zelko
