#include "stats/variance/variancetable.h"

#include <cmath>

#include "platform/text/format.h"
#include "platform/text/number.h"
#include "platform/text/sjis.h"
#include "stats/frame/figures.h"

namespace zelko {

namespace {

using F = numbers::AnovaRow::F;

constexpr TextView kColumns[] = {u"変動因", u"平方和(SS)", u"自由度(df)", u"平均平方(MS)", u"F"};
constexpr TextView kImpossible = u"検定できない";

// Where the columns of the report begin, in half-width characters: below the names of its head line.
struct ReportShape {
  TextView heading, columns;
  std::array<std::size_t, kVarianceColumns> starts;
};

constexpr ReportShape kCalculation = {
    u"----------------------------分散分析表-----------------------------------------------------",
    u"変動因　  　　　　平方和　　　自由度　平均平方　　　　　　　　　　　F　　　",
    {0, 18, 30, 38, 68}};
constexpr ReportShape kFigures = {u"----------------------------分散分析表-----------------------------------------",
                                  u"変動因　  　　       　  平方和　   　　自由度   　 平均平方     　　　　F　　　",
                                  {0, 25, 40, 52, 73}};
constexpr std::size_t kRule = 90, kRuleBeforeTotal = 85;

// Four decimals and no zeros behind them; what is smaller keeps four digits.
Text shortNumber(double value) {
  const bool isTiny = value != 0 && std::abs(value) < 0.001;
  return plainDecimal(format(value, isTiny ? u"0.###E+00" : u"0.####"));
}

// How figures are written: SS, degrees of freedom, MS and F.
struct Figures {
  Text (*ss)(double);
  Text (*df)(double);
  Text (*ms)(double);
};

constexpr Figures kGridFigures = {shortNumber, shortNumber, shortNumber};
constexpr Figures kPlainGridFigures = {[](double value) { return format(value, u"#####0.0000"); },
                                       [](double value) { return format(value, u"#####0"); },
                                       [](double value) { return format(value, u"#####0.0000"); }};
constexpr Figures kReportFigures = {[](double value) { return format(value, u"#######.000"); },
                                    [](double value) { return value == 0 ? Text(u"0") : format(value, u"####"); },
                                    [](double value) { return format(value, u"#####.000#"); }};

Text meanSquare(const VarianceRow& row, VarianceLayout layout, const Figures& write) {
  if (row.isTotal || row.figures.df <= 0) return {};
  const Text ms = write.ms(row.figures.ms);
  if (layout == VarianceLayout::figures) return ms;
  return write.ss(row.figures.ss) + u"/" + write.df(row.figures.df) + u"=" + ms;
}

Text ratio(const VarianceRow& row, VarianceLayout layout, const Figures& write) {
  const numbers::AnovaRow& figures = row.figures;
  if (figures.hasF == F::none) return {};
  if (figures.hasF == F::impossible) return Text(kImpossible);
  const Text f = write.ms(figures.f);
  if (!row.fWords.empty()) return f + Text(row.fWords);
  if (layout == VarianceLayout::figures) return f;
  return write.ms(figures.ms) + u"/" + write.ms(figures.denominator) + u"=" + f;
}

std::array<Text, kVarianceColumns> cells(const VarianceRow& row, VarianceLayout layout, const Figures& write) {
  return {gridName(row), write.ss(row.figures.ss), write.df(row.figures.df), meanSquare(row, layout, write),
          ratio(row, layout, write)};
}

// Cells below the names of their columns; one that is too wide moves the others on.
Text reportLine(const VarianceRow& row, VarianceLayout layout, const ReportShape& shape) {
  auto texts = cells(row, layout, kReportFigures);
  texts[0] = Text(row.name);
  Text line;
  for (std::size_t col = 0; col < texts.size(); ++col) {
    if (texts[col].empty()) continue;
    const std::size_t width = sjisLength(line);
    if (width < shape.starts[col])
      line += Text(shape.starts[col] - width, u' ');
    else if (col > 0 && line.back() != u' ' && line.back() != u'　')
      line += u' ';
    line += texts[col];
  }
  return line;
}

}  // namespace

TextView varianceColumn(int col) { return kColumns[col]; }

Text gridName(const VarianceRow& row) {
  if (!row.gridName.empty()) return Text(row.gridName);
  Text name(row.name);
  const auto first = name.find_first_not_of(u" 　"), last = name.find_last_not_of(u" 　");
  return name.substr(first, last - first + 1);
}

std::array<Text, kVarianceColumns> gridCells(const VarianceRow& row, VarianceLayout layout) {
  auto texts = cells(row, layout, layout == VarianceLayout::figures ? kPlainGridFigures : kGridFigures);
  texts[2] += Text(row.dfWords);
  return texts;
}

Text resultSentence(const VarianceResult& result) {
  Text said = result.spokenTitle;
  for (const VarianceRow& row : result.rows) {
    const numbers::AnovaRow& figures = row.figures;
    if (figures.hasF == F::none) continue;
    said += u"。" + gridName(row);
    if (figures.hasF == F::impossible)
      said += u"わ" + Text(kImpossible);
    else
      said += u"のF値は｡" + shortNumber(figures.f) + u"｡自由度｡" + decimal(figures.df) + u"と" +
              decimal(figures.denominatorDf);
  }
  return said;
}

std::vector<Text> reportTable(const VarianceResult& result) {
  const bool calculates = result.layout == VarianceLayout::calculation;
  const ReportShape& shape = calculates ? kCalculation : kFigures;
  std::vector<Text> lines = result.about;
  for (const Text& line : {Text(shape.heading), Text(shape.columns), Text(kRule, u'-')}) lines.push_back(line);
  for (const VarianceRow& row : result.rows) {
    if (row.isTotal) lines.push_back(Text(kRuleBeforeTotal, u'-'));
    lines.push_back(reportLine(row, result.layout, shape));
  }
  lines.push_back(Text(kRule, u'-'));
  if (!result.denominators.empty()) lines.push_back(Text(result.denominators));
  return lines;
}

}  // namespace zelko
