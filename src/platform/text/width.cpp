#include "platform/text/width.h"

namespace zelko {

namespace {

constexpr TextView kSigns = u"＞＜＝／＋＊［］．＾＠｜－（）？！：；，＃％＆＿￥　「」、。・";
constexpr TextView kNarrow = u"><=/+*[].^@|-()?!:;,#%&_\\ ｢｣､｡･";
static_assert(kSigns.size() == kNarrow.size());

char16_t narrow(char16_t ch) {
  constexpr char16_t kShift = 0xFF10 - u'0';
  const bool digit = ch >= u'０' && ch <= u'９', capital = ch >= u'Ａ' && ch <= u'Ｚ',
             small = ch >= u'ａ' && ch <= u'ｚ';
  if (digit || capital || small) return static_cast<char16_t>(ch - kShift);
  const std::size_t at = kSigns.find(ch);
  return at == TextView::npos ? ch : kNarrow[at];
}

}  // namespace

Text toHalfWidth(TextView text) {
  Text result(text);
  for (char16_t& ch : result) ch = narrow(ch);
  return result;
}

Text removeBlanks(TextView text) {
  Text result(text);
  std::erase_if(result, [](char16_t ch) { return ch == u' ' || ch == u'　'; });
  return result;
}

}  // namespace zelko
