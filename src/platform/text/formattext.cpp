// Text patterns.
#include <algorithm>

#include "platform/text/format.h"

namespace zelko {
namespace {

bool isPlace(char16_t unit) { return unit == u'@' || unit == u'&'; }
bool isCommand(char16_t unit) { return unit == u'<' || unit == u'>' || unit == u'!'; }

Text inCase(TextView text, TextView pattern) {
  const std::size_t last = pattern.find_last_of(u"<>");
  if (last == TextView::npos) return Text(text);
  return pattern[last] == u'<' ? lowerCase(text) : upperCase(text);
}

}  // namespace

Text formatText(TextView text, TextView pattern) {
  const Text shown = inCase(text, pattern);
  const bool fromLeft = contains(pattern, u"!");
  const auto places = static_cast<std::size_t>(std::ranges::count_if(pattern, isPlace));
  const std::size_t laid = std::min(places, shown.size());
  std::size_t empty = fromLeft ? 0 : places - laid;  // places before the first character
  std::size_t next = fromLeft ? 0 : shown.size() - laid;
  const std::size_t end = next + laid;

  Text result = fromLeft ? Text() : shown.substr(0, next);
  for (const char16_t unit : pattern) {
    if (isPlace(unit)) {
      const bool filled = empty == 0 && next < end;
      if (filled) result += shown[next++];
      if (!filled && unit == u'@') result += u' ';
      if (empty > 0) --empty;
    } else if (!isCommand(unit)) {
      result += unit;
    }
  }
  return fromLeft ? result + shown.substr(end) : result;
}

}  // namespace zelko
