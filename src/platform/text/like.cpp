// Pattern match.
#include "platform/fault.h"
#include "platform/text/format.h"

namespace zelko {
namespace {

bool isIn(char16_t unit, TextView list) {
  for (std::size_t i = 0; i < list.size(); ++i) {
    const bool isRange = i + 2 < list.size() && list[i + 1] == u'-';
    const char16_t last = list[isRange ? i + 2 : i];
    if (unit >= list[i] && unit <= last) return true;
    if (isRange) i += 2;
  }
  return false;
}

// What stands between the brackets of the list that begins at `at`.
TextView listAt(TextView pattern, std::size_t at) {
  const std::size_t end = pattern.find(u']', at);
  if (end == TextView::npos) throw Fault{kBadPattern};
  return pattern.substr(at + 1, end - at - 1);
}

bool isNegated(TextView list) { return list.size() > 1 && list[0] == u'!'; }

void checkList(TextView list) {
  if (isNegated(list)) list.remove_prefix(1);
  for (std::size_t i = 0; i + 2 < list.size(); ++i) {
    if (list[i + 1] != u'-') continue;
    if (list[i] > list[i + 2]) throw Fault{kBadPattern};
    i += 2;
  }
}

// Beforehand and whole, so that a bad pattern does not depend on how far a text happens to match.
void checkPattern(TextView pattern) {
  for (std::size_t at = 0; (at = pattern.find(u'[', at)) != TextView::npos;) {
    const TextView list = listAt(pattern, at);
    checkList(list);
    at += list.size() + 2;
  }
}

bool matchesOne(char16_t unit, TextView pattern, std::size_t at) {
  switch (pattern[at]) {
    case u'?':
      return true;
    case u'#':
      return unit >= u'0' && unit <= u'9';
    case u'[': {
      const TextView list = listAt(pattern, at);
      return isNegated(list) ? !isIn(unit, list.substr(1)) : isIn(unit, list);
    }
    default:
      return unit == pattern[at];
  }
}

std::size_t skipEmptyLists(TextView pattern, std::size_t at) {
  while (pattern.substr(at, 2) == u"[]") at += 2;
  return at;
}

std::size_t next(TextView pattern, std::size_t at) {
  return skipEmptyLists(pattern, pattern[at] == u'[' ? at + listAt(pattern, at).size() + 2 : at + 1);
}

}  // namespace

bool likeMatch(TextView text, TextView pattern) {
  checkPattern(pattern);
  std::size_t at = skipEmptyLists(pattern, 0);
  std::size_t unit = 0;
  std::size_t star = TextView::npos;  // behind the last "*"
  std::size_t starUnit = 0;           // where its run ends
  while (unit < text.size()) {
    if (at < pattern.size() && pattern[at] == u'*') {
      star = at = next(pattern, at);
      starUnit = unit;
    } else if (at < pattern.size() && matchesOne(text[unit], pattern, at)) {
      at = next(pattern, at);
      ++unit;
    } else if (star != TextView::npos) {
      at = star;
      unit = ++starUnit;
    } else {
      return false;
    }
  }
  while (at < pattern.size() && pattern[at] == u'*') at = next(pattern, at);
  return at == pattern.size();
}

}  // namespace zelko
