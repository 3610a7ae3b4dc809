#include "voice/names.h"

#include <algorithm>
#include <iterator>
#include <span>

#include "voice/signnames.h"

namespace zelko {

namespace {

// The name, or null; a name may be longer than a character and is compared whole.
const NamedSign* namedSign(std::span<const NamedSign> table, TextView sign) {
  const auto found = std::find_if(table.begin(), table.end(), [&](const NamedSign& row) { return row.sign == sign; });
  return found == table.end() ? nullptr : &*found;
}

bool within(TextView s, TextView first, TextView last) { return s >= first && s <= last; }

bool letterName(TextView s, char16_t first, TextView prefix, Text& out) {
  if (s.size() != 1 || s[0] < first || s[0] > first + 25) return false;
  out = Text(prefix) + Text(kLetterNames[static_cast<std::size_t>(s[0] - first)]);
  return true;
}

// Lower case gets no prefix, only its full-width twin does.
bool halfWidthName(TextView s, Text& out) {
  if (letterName(s, u'A', u"ｵｵﾓｼﾞ", out) || letterName(s, u'a', u"", out)) return true;
  if (const NamedSign* row = namedSign(kHalfWidthKana, s)) {
    out = row->name;
    return true;
  }
  if (!within(s, u"ｱ", u"ﾝ") && s != u"ｦ") return false;
  out = u"ﾊﾝｶｸｶﾀｶﾅ" + Text(s);
  return true;
}

bool fullWidthName(TextView s, Text& out) {
  if (const NamedSign* row = namedSign(kFullWidthSigns, s)) {
    out = row->name;
    return true;
  }
  if (letterName(s, u'Ａ', u"ｾﾞﾝｶｸｵｵﾓｼﾞ", out) || letterName(s, u'ａ', u"ｾﾞﾝｶｸｺﾓｼﾞ", out)) return true;
  if (within(s, u"０", u"９")) {
    out = u"ｾﾞﾝｶｸ " + Text(s);
    return true;
  }
  if (!within(s, u"ア", u"ン") && s != u"ヲ") return false;
  out = u"ｶﾀｶﾅ " + Text(s);
  return true;
}

std::size_t firstDifference(TextView a, TextView b, std::size_t limit) {
  std::size_t i = 0;
  while (i < limit && a[i] == b[i]) ++i;
  return i;
}

}  // namespace

Text charName(TextView s) {
  if (s.empty()) return {};
  Text name;
  if (const NamedSign* row = namedSign(kHalfWidthSymbols, s.substr(0, 1))) name = row->name;
  halfWidthName(s, name);
  fullWidthName(s, name);
  return name.empty() ? Text(s) : name;
}

Text dropChar(TextView text, char16_t ch) {
  Text out;
  std::copy_if(text.begin(), text.end(), std::back_inserter(out), [ch](char16_t c) { return c != ch; });
  return out;
}

std::size_t rinstrS(TextView text, TextView what, std::size_t lowest) {
  const std::size_t at = text.rfind(what);
  if (at == TextView::npos || at + 1 < lowest) return 0;
  return at + 1;
}

Text typedOver(TextView before, TextView after) {
  if (before.size() == after.size()) return {};
  const std::size_t shorter = std::min(before.size(), after.size());
  const std::size_t first = firstDifference(before, after, shorter);
  std::size_t tail = 0;
  while (tail < shorter - first && before[before.size() - 1 - tail] == after[after.size() - 1 - tail]) ++tail;
  const bool replaced = first + tail < shorter;
  return replaced ? Text(after.substr(first, after.size() - tail - first)) : Text();
}

Text diffText(TextView before, TextView after) {
  if (after.size() > before.size()) {
    const std::size_t i = firstDifference(before, after, before.size());
    Text words(after.substr(i, after.size() - before.size()));
    return i < before.size() ? words + u" 挿入" : words;
  }
  if (after.size() < before.size()) {
    const std::size_t i = firstDifference(before, after, after.size());
    return Text(before.substr(i, before.size() - after.size())) + u" 削除";
  }
  const std::size_t i = firstDifference(before, after, after.size());
  std::size_t end = after.size();
  while (end > i && before[end - 1] == after[end - 1]) --end;
  return Text(after.substr(i, end - i)) + u" うわがき";
}

}  // namespace zelko
