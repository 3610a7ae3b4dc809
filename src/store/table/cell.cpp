// Cells: cut out of a row and put into it, by bytes.
#include <algorithm>

#include "platform/fault.h"
#include "platform/text/sjis.h"
#include "store/records/records.h"
#include "store/records/recordshape.h"

namespace zelko {

namespace {

CellPlace placeOf(int item) {
  if (item < 0 || item >= kMaxItems) throw Fault{kSubscript};
  const auto at = static_cast<std::size_t>(item);
  return {itemStart[at], itemWidth[at], itemLR[at], item == itemCount};
}

}  // namespace

void computeItemStart() {
  itemStart[0] = 1;
  // One beyond the last item too: its start is where the rest of the record begins.
  for (std::size_t i = 1; i < kMaxItems && i <= static_cast<std::size_t>(itemCount) + 1; ++i)
    itemStart[i] = static_cast<std::int16_t>(itemStart[i - 1] + itemWidth[i - 1]);
}

Text cellOfRow(const CacheRow& row, int item) { return cellText({row.data(), row.size()}, placeOf(item)); }

std::string paddedCell(TextView text, int width, TextView alignment) {
  return paddedBytes(toSjis(text), width, alignment == u"R");
}

std::string paddedBytes(std::string_view bytes, int width, bool right) {
  const auto wanted = static_cast<std::size_t>(std::max(width, 0));
  if (!right) return std::string(bytes.substr(0, wanted)) + std::string(wanted - std::min(wanted, bytes.size()), ' ');
  if (bytes.size() > wanted) return std::string(bytes.substr(bytes.size() - wanted));
  return std::string(wanted - bytes.size(), ' ') + std::string(bytes);
}

void setCell(CacheRow& row, int item, TextView text) { putCell(row.data(), placeOf(item), text); }

}  // namespace zelko
