// The factor analysis of one set of data, from the statistics to the scores: it asks, computes and reports by turns.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/text/text.h"
#include "stats/factor/factorquestions.h"
#include "stats/factor/factortables.h"
#include "stats/frame/run.h"
#include "stats/numbers/factor.h"
#include "stats/numbers/varimax.h"

namespace zelko {

class FactorSolution {
 public:
  // data: a row a record, a column one of the items, none of them constant.
  FactorSolution(AnalysisRun& run, const numbers::Matrix& data, const numbers::Covariance& basics,
                 const std::vector<std::int16_t>& items)
      : run_(run), data_(data), basics_(basics), items_(items) {}

  // False where the user stopped it, at a question or while it computed. A limit of the arithmetic is a fault.
  bool solve();
  // The number of factors, and of each what it explains and the item that it loads most.
  Text spokenFigures() const;
  // The items behind "X(01)" and the numbers of the loadings.
  CellNames cellNames() const;

 private:
  bool chooseCommunalities();
  bool chooseFactors();
  bool extract();
  bool rotate();
  bool scores();
  void reportExtraction(const LoadingMethod& method, int cycles);

  AnalysisRun& run_;
  const numbers::Matrix& data_;
  const numbers::Covariance& basics_;
  const std::vector<std::int16_t>& items_;
  std::vector<double> communalities_;
  std::size_t scoresFrom_ = 0;  // of the report: the numbers of its rows are cases from there on
  Text label_;                  // what stands in the diagonal
  int factors_ = 0;
  bool settled_ = true;  // the iteration ended by its bound
  numbers::Matrix loadings_;
};

}  // namespace zelko
