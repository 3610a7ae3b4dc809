#include "stats/variance/designread.h"

#include <algorithm>
#include <cmath>
#include <set>

#include "platform/text/number.h"
#include "platform/text/numcheck.h"
#include "stats/frame/analysis.h"
#include "stats/numbers/anova.h"
#include "store/table/notice.h"

namespace zelko {

namespace {

constexpr TextView kWork = u"分散分析", kCheckData = u"ﾃﾞｰﾀの見直し", kCheckGroups = u"群分けﾃﾞｰﾀの見直し";
constexpr TextView kBlank = u"項目ﾃﾞｰﾀが未記入です。ﾃﾞｰﾀをチェｯｸしなおしてください(";
constexpr TextView kWord = u"項目ﾃﾞｰﾀに数字以外のﾃﾞｰﾀがありました。ﾃﾞｰﾀをチェｯｸしなおしてください(";
constexpr TextView kAfterEnd =
    u"項目ﾃﾞｰﾀの連続が終了してるのに、再度データが記入されています。ﾃﾞｰﾀをチェｯｸしなおしてください(";
constexpr TextView kGroupWord = u"群分け項目ﾃﾞｰﾀに数字以外のﾃﾞｰﾀがありました。ﾃﾞｰﾀをチェｯｸしなおしてください(";
constexpr TextView kGroupTooHigh =
    u"群分け項目ﾃﾞｰﾀに255以上の群番号を示すﾃﾞｰﾀがありました。ﾃﾞｰﾀをチェｯｸしなおしてください(";
constexpr TextView kGroupNotWhole =
    u"群分け項目ﾃﾞｰﾀに1から254までの整数でないﾃﾞｰﾀがありました。ﾃﾞｰﾀをチェｯｸしなおしてください(";
constexpr TextView kCheckAgain = u"ﾃﾞｰﾀをチェｯｸしなおしてください。";
constexpr double kMostGroups = 254;
constexpr const char16_t* kFactors[] = {u"A", u"B", u"C"};

Text place(std::int32_t record, int item) { return u"記録" + decimal(record) + u"項目" + decimal(item) + u")。"; }

void tellData(TextView what, std::int32_t record, int item) {
  tellFailure(Text(what) + place(record, item) + u"なおデータの範囲指定可能です。", kCheckData);
}

void tellGroup(TextView what, std::int32_t record, int item) {
  tellFailure(Text(what) + place(record, item), kCheckGroups);
}

TextView wordOf(const AnalysedCell& cell) { return cell.check == kBlankCell ? kBlank : kWord; }

// --- Cells of a range ----------------------------------------------------------------------------------------

struct CellsRead {
  bool whole = false;
  std::vector<std::vector<AnalysedCell>> columns;
};

CellsRead readCells(const ItemSpan& items) {
  CellsRead read;
  read.columns.resize(static_cast<std::size_t>(items.count()));
  read.whole = readAnalysisRecords(kWork, [&](const WalkedRecord& record) {
    int item = items.first;
    for (auto& column : read.columns) column.push_back(checkedCell(record, item++));
    return true;
  });
  return read;
}

// The values of a column; nothing, told, for a wrong cell.
std::optional<std::vector<double>> valuesOf(const std::vector<AnalysedCell>& cells, int item, bool mayEndEarly) {
  std::vector<double> values;
  bool ended = false;
  std::int32_t record = firstRecord - 1;
  for (const AnalysedCell& cell : cells) {
    ++record;
    const bool isBlank = cell.check == kBlankCell, isEnd = mayEndEarly && (isBlank || (cell.isNumber() && !cell.value));
    const TextView fault = isEnd ? TextView() : !cell.isNumber() ? wordOf(cell) : ended ? kAfterEnd : TextView();
    if (!fault.empty()) return tellData(fault, record, item), std::nullopt;
    ended = ended || isEnd;
    if (!ended) values.push_back(cell.value);
  }
  if (!values.empty()) return values;
  tellData(kBlank, firstRecord, item);
  return std::nullopt;
}

// Of records that were not all read: by the user, or told as a failure.
ReadEnd endOfStopped() {
  const bool byUser = analysisMode == u"BREAK";
  analysisMode.clear();
  return byUser ? ReadEnd::stopped : ReadEnd::refused;
}

// --- Groups --------------------------------------------------------------------------------------------------

// The first thing wrong with the group number in that cell; empty for none.
TextView groupFault(const AnalysedCell& cell) {
  if (!cell.isNumber()) return kGroupWord;
  if (cell.value > kMostGroups) return kGroupTooHigh;
  return cell.value < 1 || cell.value != std::floor(cell.value) ? kGroupNotWhole : TextView();
}

Text levelsTitle(std::size_t factor) {
  return factor == 0 ? Text(u"処理A水準数の見直し") : kFactors[factor] + Text(u"水準数多すぎる");
}

bool levelCountFits(std::size_t factor, int levels) {
  const Text factorWords = u"処理" + Text(kFactors[factor]) + u"の水準数は";
  if (levels > numbers::kLevelLimit) {
    tellFailure(factorWords + decimal(numbers::kLevelLimit) + u"以下にしてください。", levelsTitle(factor));
    return false;
  }
  if (levels < 2) {
    tellFailure(factorWords + u"2以上にしてください。", u"処理" + Text(kFactors[factor]) + u"水準数の見直し");
    return false;
  }
  return true;
}

// Each number below the highest is used, and there are 2 to 99 of them.
bool levelsFit(std::size_t factor, std::int16_t item, const std::vector<int>& groups) {
  const std::set<int> used(groups.begin(), groups.end());
  int missing = 1;
  for (const int level : used) {
    if (level == missing) ++missing;
  }
  if (const int highest = *used.rbegin(); highest >= missing) {
    const auto above = std::find_if(groups.begin(), groups.end(), [=](int level) { return level > missing; });
    const auto record = firstRecord + static_cast<std::int32_t>(above - groups.begin());
    tellGroup(u"群分け項目ﾃﾞｰﾀが連続していません。群番号" + decimal(missing) +
                  u"のﾃﾞｰﾀがありません。ﾃﾞｰﾀをチェｯｸしなおしてください(",
              record, item);
    return false;
  }
  return levelCountFits(factor, static_cast<int>(used.size()));
}

// --- Cells of a design ---------------------------------------------------------------------------------------

Text cellWords(const numbers::CellPlace& cell, std::size_t factors) {
  Text words;
  for (std::size_t factor = 0; factor < factors; ++factor) {
    if (factor > 0) words += u"、";
    words += u"処理" + Text(kFactors[factor]) + u"水準" + decimal(cell[factor]);
  }
  return words + u"のセルに該当するデータが";
}

// Where a factor has not the same levels everywhere; empty where all have.
Text unbalanced(const numbers::CellCounts& counts, std::size_t factors) {
  if (levelsDiffer(counts, 0)) return u"処理A水準数が、処理B水準で異なります。" + Text(kCheckAgain);
  if (levelsDiffer(counts, 1)) {
    const TextView other = factors == 2 ? u"処理A水準で" : u"処理A､又はC水準で";
    return u"処理B水準数が、" + Text(other) + u"異なります。" + Text(kCheckAgain);
  }
  if (factors == 3 && levelsDiffer(counts, 2))
    return u"処理C水準数が、処理A水準､又はB水準でで異なります。" + Text(kCheckAgain);
  return {};
}

struct SizeWords {
  TextView cell, all;
};

SizeWords sizeWords(CellSize size, std::size_t factors) {
  if (factors == 2) return {u"1以下です。", u"処理セル内の被験者数が同じではありません。"};
  if (size == CellSize::one) return {u"1ではありません。", u"処理セル内の被験者数が1ではありません。"};
  return {u"2以上ではありません。", u"処理セル内の被験者数が一定ではありません。"};
}

}  // namespace

ColumnsRead readVarianceColumns(const ItemSpan& items, bool mayEndEarly) {
  ColumnsRead read;
  const CellsRead cells = readCells(items);
  if (!cells.whole) {
    read.end = endOfStopped();
    return read;
  }
  int item = items.first;
  for (const auto& column : cells.columns) {
    auto values = valuesOf(column, item++, mayEndEarly);
    if (!values) return read;
    read.columns.push_back(std::move(*values));
  }
  read.end = ReadEnd::whole;
  return read;
}

MatrixRead readVarianceMatrix(const ItemSpan& items) {
  const ColumnsRead read = readVarianceColumns(items, false);
  if (read.end != ReadEnd::whole) return {read.end, {}};
  numbers::Matrix values(static_cast<int>(read.columns.front().size()), items.count());
  for (int row = 0; row < values.rows; ++row) {
    for (int column = 0; column < values.columns; ++column)
      values(row, column) = read.columns[static_cast<std::size_t>(column)][static_cast<std::size_t>(row)];
  }
  return {ReadEnd::whole, std::move(values)};
}

DesignRead readDesign(const DesignItems& items) {
  DesignRead read;
  bool fits = true;
  const bool whole = readAnalysisRecords(kWork, [&](const WalkedRecord& record) {
    for (int item = items.values.first; item <= items.values.last; ++item) {
      const AnalysedCell cell = checkedCell(record, item);
      if (!cell.isNumber()) return tellData(wordOf(cell), record.number(), item), fits = false;
      read.values.cells.push_back(cell.value);
    }
    for (std::size_t factor = 0; factor < items.groups.size(); ++factor) {
      const AnalysedCell cell = checkedCell(record, items.groups[factor]);
      const TextView fault = groupFault(cell);
      if (!fault.empty()) return tellGroup(fault, record.number(), items.groups[factor]), fits = false;
      read.groups[factor].push_back(static_cast<int>(cell.value));
    }
    ++read.values.rows;
    return true;
  });
  read.values.columns = items.values.count();
  if (!whole) read.end = endOfStopped();
  if (!whole || !fits) return read;
  for (std::size_t factor = 0; factor < items.groups.size(); ++factor) {
    if (!levelsFit(factor, items.groups[factor], read.groups[factor])) return read;
  }
  if (items.values.count() > 1 && !levelCountFits(1, items.values.count())) return read;
  read.end = ReadEnd::whole;
  return read;
}

bool cellsFit(const DesignRead& read, std::size_t factors, CellSize size) {
  const numbers::CellCounts counts = numbers::cellCounts(read.groups[0], read.groups[1], read.groups[2]);
  const SizeWords words = sizeWords(size, factors);
  const Text levels = unbalanced(counts, factors);
  const bool sameEverywhere = !sizesDiffer(counts);
  const auto cell = size == CellSize::one ? firstCellOtherThan(counts, 1) : firstCellBelow(counts, 2);
  if (cell && !(size == CellSize::one && sameEverywhere)) {
    tellFailure(levels + cellWords(*cell, factors) + Text(words.cell) + Text(kCheckAgain),
                levels.empty() ? TextView(u"セル内被験者数のみなおし") : kCheckData);
    return false;
  }
  if (size == CellSize::unequal || (sameEverywhere && !cell)) return true;
  tellFailure(Text(words.all) + Text(kCheckAgain), u"セル内被験者数のみなおし");
  return false;
}

}  // namespace zelko
