#include "editor/rewrites/realign.h"

#include "editor/show/showcell.h"
#include "store/records/records.h"
#include "store/rewrite/rewrite.h"
#include "store/table/cursor.h"
#include "store/table/notice.h"
#include "store/table/table.h"

namespace zelko {

Text alignmentLetter(TextView typed) {
  Text letter = upperCase(trimmed(typed));
  constexpr char16_t kWideA = u'Ａ', kWideZ = u'Ｚ';
  for (char16_t& ch : letter) {
    if (ch >= kWideA && ch <= kWideZ) ch = static_cast<char16_t>(ch - kWideA + u'A');
  }
  return letter;
}

void realignItem(std::int16_t item, TextView letter) {
  flushRec();
  const auto i = static_cast<std::size_t>(item);
  std::vector<ItemLine> items = itemsOnDisk();
  items[i].alignment = letter;
  const RewritePlan plan{{{1, recCount()}}, {realigned(items, item, letter)}};
  const RewriteEnd end = rewriteTable(plan, &items, [](std::int64_t) { return true; });
  if (end == RewriteEnd::failed) tellWriteError();
  loadCache(curRec);
  dispAll(curItem);
  showCell(static_cast<float>(curRec), curItem, u"", u"");
}

}  // namespace zelko
