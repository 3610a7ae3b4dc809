// Cells: cut out of a row and put into it, by bytes.
#include <algorithm>

#include "platform/fault.h"
#include "platform/text/sjis.h"
#include "store/records/records.h"

namespace zelko {

namespace {

struct Span {
  std::size_t start = 0;  // from 0
  std::size_t length = 0;
};

// Where the cell lies, never outside the row: widths that sum to more than a record are cut at its end.
Span spanOf(int item) {
  if (item < 0 || item >= kMaxItems) throw Fault{kSubscript};
  const auto at = static_cast<std::size_t>(item);
  const int start = std::clamp(itemStart[at] - 1, 0, int{recLen});
  const int length = std::clamp(int{itemWidth[at]}, 0, recLen - start);
  return {static_cast<std::size_t>(start), static_cast<std::size_t>(length)};
}

}  // namespace

void computeItemStart() {
  itemStart[0] = 1;
  // One beyond the last item too: its start is where the rest of the record begins.
  for (std::size_t i = 1; i < kMaxItems && i <= static_cast<std::size_t>(itemCount) + 1; ++i)
    itemStart[i] = static_cast<std::int16_t>(itemStart[i - 1] + itemWidth[i - 1]);
}

Text cellOfRow(const CacheRow& row, int item) {
  const Span span = spanOf(item);
  const std::size_t end = span.start + span.length;
  const bool holdsLineEnd = end > kDataBytes && row[kDataBytes] == '\r' && row[kDataBytes + 1] == '\n';
  if (!holdsLineEnd) return fromSjis({row.data() + span.start, span.length});
  const std::size_t cut = std::max<std::size_t>(span.start, kDataBytes);
  return fromSjis({row.data() + span.start, cut - span.start}) + Text(end - cut, u' ');
}

Text cellOfCur(int item) { return cellOfRow(recCache[1], item); }

std::string paddedCell(TextView text, int width, TextView alignment) {
  std::string bytes = toSjis(text);
  const auto wanted = static_cast<std::size_t>(std::max(width, 0));
  if (alignment == u"R") {
    if (bytes.size() > wanted) return bytes.substr(bytes.size() - wanted);
    return std::string(wanted - bytes.size(), ' ') + bytes;
  }
  bytes.resize(wanted, ' ');
  return bytes;
}

void setCell(CacheRow& row, int item, TextView text) {
  const Span span = spanOf(item);
  const auto at = static_cast<std::size_t>(item);
  const std::string cell = paddedCell(text, itemWidth[at], itemLR[at]);
  const auto behind = std::copy_n(cell.begin(), span.length, row.begin() + static_cast<std::ptrdiff_t>(span.start));
  const auto dataEnd = row.begin() + kDataBytes;
  if (item == itemCount && behind < dataEnd) std::fill(behind, dataEnd, ' ');
}

}  // namespace zelko
