// A table of an analysis of variance as it is seen, said and written: plain data of any of the eight designs.
#pragma once

#include <array>
#include <vector>

#include "platform/text/text.h"
#include "stats/numbers/anova.h"

namespace zelko {

enum class VarianceLayout {
  calculation,  // cells show how their figure came about, as one goes through it by hand
  figures,      // figures alone: the designs with three factors
};

struct VarianceRow {
  TextView name;      // in the report, with the blanks that part it from the figures
  TextView gridName;  // in the grid and in sentences; empty: `name` without its blanks
  numbers::AnovaRow figures;
  bool isTotal = false;
  TextView dfWords = {};  // behind the degrees of freedom
  TextView fWords = {};   // behind F, in place of the calculation in front of it
};

struct VarianceResult {
  VarianceLayout layout = VarianceLayout::calculation;
  Text title;               // heads the report
  Text spokenTitle;         // begins the sentence of the result
  std::vector<Text> about;  // lines of the report: what was analysed
  std::vector<VarianceRow> rows;
  TextView denominators = {};  // ends the report: what F was divided by
};

inline constexpr int kVarianceColumns = 5;
// "変動因", "平方和(SS)", "自由度(df)", "平均平方(MS)", "F".
TextView varianceColumn(int col);

Text gridName(const VarianceRow& row);
// The row as it stands in the grid.
std::array<Text, kVarianceColumns> gridCells(const VarianceRow& row, VarianceLayout layout);

// Each tested source with F and both degrees of freedom.
Text resultSentence(const VarianceResult& result);

// The report, without its head: what was analysed, the table, its last line.
std::vector<Text> reportTable(const VarianceResult& result);

}  // namespace zelko
