#include "stats/correlation/serialitems.h"

namespace zelko {

Text chkSerial(const std::vector<std::int16_t>& marked, int lastItem) {
  if (marked.empty()) return u"項目番号がチェックされていません";
  const int first = marked.front(), last = marked.back();
  if (last - first + 1 != static_cast<int>(marked.size())) return u"項目指定は連続していなければなりません。";
  const int behind = last < lastItem ? last + 1 : lastItem;
  return behind - first < 4 ? Text(u"変数の数が3以下です") : Text();
}

}  // namespace zelko
