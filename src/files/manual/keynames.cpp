#include "files/manual/keynames.h"

#include "speech/plain.h"

namespace zelko {

namespace {

struct Prefix {
  TextView said, written;
};

constexpr Prefix kPrefixes[] = {
    {u"ｱﾙﾄﾌﾟﾗｽ", u"Alt+"},
    {u"ｱﾙﾄﾌﾟﾗｽｼﾀﾔｼﾞﾙｼ", u"Alt+"},
    {u"ｱﾙﾄﾌﾟﾗｽｳｴﾔｼﾞﾙｼ", u"Alt+"},
    {u"ｼﾌﾄﾌﾟﾗｽｺﾝﾄﾛｰﾙ", u"Shift+Ctrl+"},
    {u"ｺﾝﾄﾛｰﾙﾌﾟﾗｽ", u"Ctrl+"},
    {u"ｺﾝﾄﾛｰﾙﾌﾟﾗｽ　", u"Ctrl+"},
    {u"ｼﾌﾄﾌﾟﾗｽ", u"Shift+"},
    {u"ﾌｧﾝｸｼｮﾝ", u""},
    {u"", u""},
};

// "pageDown", also in full width: the letters half-width and the first one a capital.
Text writtenKey(TextView key) {
  Text out = plainSpelling(key);
  if (!out.empty() && out[0] >= u'a' && out[0] <= u'z') out[0] = static_cast<char16_t>(out[0] - u'a' + u'A');
  return out;
}

}  // namespace

Text readableKey(TextView prefix, TextView key) {
  for (const Prefix& row : kPrefixes) {
    if (row.said == prefix) return Text(row.written) + writtenKey(key);
  }
  return u"Ctrl+" + writtenKey(key) + u"（" + readableWords(prefix) + u"）";
}

Text readableWords(TextView text) {
  constexpr TextView kHalf = u"｡｢｣､･", kFull = u"。「」、・";
  Text out;
  for (const char16_t c : text) {
    const std::size_t sign = kHalf.find(c);
    // The hyphen of the captions stands for the long mark behind kana.
    if (c == u'-' && !out.empty() && isHalfWidthKana(out.back()))
      out += u'ｰ';
    else
      out += sign == TextView::npos ? c : kFull[sign];
  }
  return fullWidthKana(out);
}

Text readableCaption(TextView caption) {
  Text out;
  for (const char16_t c : caption) {
    if (c != u'&') out += c;
  }
  while (out.ends_with(u' ')) out.pop_back();
  return readableWords(out);
}

}  // namespace zelko
