#include "stats/frame/columns.h"

#include "stats/frame/analysis.h"

namespace zelko {

std::optional<ItemColumns> readColumns(const std::vector<std::int16_t>& items, TextView work) {
  ItemColumns columns;
  for (const std::int16_t item : items) columns[item].reserve(static_cast<std::size_t>(lastRecord - firstRecord + 1));
  const bool isWhole = readAnalysisRecords(work, [&](const WalkedRecord& record) {
    for (auto& [item, values] : columns) values.push_back(leadingNumber(record, item));
    return true;
  });
  if (!isWhole) return std::nullopt;
  return columns;
}

}  // namespace zelko
