#include "tablejobs/replace/kanatables.h"

#include "platform/text/width.h"

namespace zelko {

namespace {

constexpr TextView kHalf = u"ｱｲｳｴｵｶｷｸｹｺｻｼｽｾｿﾀﾁﾂﾃﾄﾅﾆﾇﾈﾉﾊﾋﾌﾍﾎﾏﾐﾑﾒﾓﾔﾕﾖﾗﾘﾙﾚﾛﾜｦﾝｧｨｩｪｫｯｬｭｮ";
constexpr TextView kFull =
    u"アイウエオカキクケコサシスセソタチツテトナニヌネノハヒフヘホマミムメモヤユヨラリルレロワヲンァィゥェォッャュョ";
static_assert(kHalf.size() == kFull.size());

// The voiced kana, and the half-width ones that stand in front of the mark.
constexpr TextView kVoiced = u"ガギグゲゴザジズゼゾダヂヅデドバビブベボ";
constexpr TextView kPlain = u"ｶｷｸｹｺｻｼｽｾｿﾀﾁﾂﾃﾄﾊﾋﾌﾍﾎ";
static_assert(kVoiced.size() == kPlain.size());

// What toHalfWidth narrows, the other way round.
char16_t widened(char16_t ch) {
  static const Text signs = u"＞＜＝／＋＊［］．＾＠｜（）？！：；，＃％＆＿￥　「」、。・",
                    narrow = toHalfWidth(signs);
  if (ch == u'-') return u'ー';
  if ((ch >= u'0' && ch <= u'9') || (ch >= u'A' && ch <= u'Z') || (ch >= u'a' && ch <= u'z')) {
    return static_cast<char16_t>(ch + (u'０' - u'0'));
  }
  const std::size_t at = narrow.find(ch);
  return at == Text::npos ? ch : signs[at];
}

}  // namespace

Text toHalfKana(TextView text) {
  Text result;
  for (const char16_t ch : text) {
    const std::size_t voiced = kVoiced.find(ch), plain = kFull.find(ch);
    if (voiced != TextView::npos) {
      result += kPlain[voiced];
      result += ch == u'デ' ? u"ﾞﾞ" : u"ﾞ";
    } else if (plain != TextView::npos) {
      result += kHalf[plain];
      if (ch == u'ム') result += u' ';
    } else {
      result += ch;
    }
  }
  return result;
}

Text toFullKana(TextView text) {
  Text result;
  for (const char16_t ch : text) {
    const std::size_t at = kHalf.find(ch);
    result += at == TextView::npos ? ch : kFull[at];
    if (ch == u'ﾑ') result += u' ';
  }
  return result;
}

Text toFullWidth(TextView text) {
  Text result = trimmed(text);
  for (char16_t& ch : result) ch = widened(ch);
  return result;
}

}  // namespace zelko
