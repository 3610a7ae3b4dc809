#include "stats/frame/cellkinds.h"

#include <algorithm>

#include "platform/text/numcheck.h"
#include "stats/frame/analysis.h"

namespace zelko {

namespace {

std::optional<CellKind> kindOf(const AnalysedCell& cell) {
  if (cell.check == kBlankCell) return CellKind::blank;
  if (cell.check > 0) return CellKind::word;
  if (cell.value == 0) return CellKind::zero;
  return std::nullopt;
}

}  // namespace

std::int32_t ItemCells::firstOfAny() const {
  std::int32_t earliest = 0;
  for (const std::int32_t record : first) {
    if (record != 0 && (earliest == 0 || record < earliest)) earliest = record;
  }
  return earliest;
}

TextView cellKindName(CellKind kind) {
  constexpr std::array<TextView, kCellKinds> kNames{u"ﾌﾞﾗﾝｸ", u"文字", u"0"};
  return kNames[static_cast<std::size_t>(kind)];
}

std::optional<std::vector<ItemCells>> countCells(const std::vector<std::int16_t>& items) {
  std::vector<ItemCells> all(items.size());
  std::transform(items.begin(), items.end(), all.begin(), [](std::int16_t item) {
    ItemCells cells;
    cells.item = item;
    return cells;
  });
  const Text before = analysisMode;
  const bool whole = readAnalysisRecords(u"ﾃﾞｰﾀの確認", [&](const WalkedRecord& record) {
    for (ItemCells& cells : all) {
      ++cells.records;
      const auto kind = kindOf(checkedCell(record, cells.item));
      if (!kind) continue;
      const auto k = static_cast<std::size_t>(*kind);
      ++cells.counts[k];
      if (cells.first[k] == 0) cells.first[k] = record.number();
    }
    return true;
  });
  analysisMode = before;
  if (!whole) return std::nullopt;
  return all;
}

}  // namespace zelko
