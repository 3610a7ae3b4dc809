#include "stats/frame/datamatrix.h"

#include "stats/frame/analysis.h"
#include "stats/numbers/limits.h"

namespace zelko {

DataMatrix readDataMatrix(const std::vector<std::int16_t>& items, TextView analysis, TestedCells tested,
                          std::optional<std::size_t> most) {
  DataMatrix read;
  const auto records = static_cast<std::size_t>(lastRecord - firstRecord + 1);
  if (most) numbers::requireAtMost(records, *most, analysis, u"記録");
  read.data.columns = static_cast<int>(items.size());
  read.data.cells.reserve(records * items.size());
  const bool all = readAnalysisRecords(analysis, [&](const WalkedRecord& record) {
    for (int column = 0; column < read.data.columns; ++column) {
      const bool isRead = tested == TestedCells::all || column < read.data.rows;
      const int item = items[static_cast<std::size_t>(column)];
      const AnalysedCell cell = isRead ? checkedCell(record, item) : AnalysedCell();
      if (!cell.isNumber()) {
        read.bad = BadCell{record.number(), item, cell.check};
        return false;
      }
      read.data.cells.push_back(cell.value);
    }
    ++read.data.rows;
    return true;
  });
  read.whole = all && !read.bad;
  return read;
}

}  // namespace zelko
