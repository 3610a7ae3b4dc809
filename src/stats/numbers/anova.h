// One-way analysis of variance, and the rows that all designs share. Sums of squares are taken about the means, errors
// of replicated designs within their groups; a sum below the resolution of the values themselves is 0.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace zelko::numbers {

inline constexpr std::size_t kAnovaRowLimit = 600;
inline constexpr int kLevelLimit = 99;

struct AnovaRow {
  enum class F { none, tested, impossible };  // impossible: the denominator is 0

  bool present = false;  // the design has this source
  double ss = 0;
  int df = 0;
  double ms = 0;  // 0 where df is 0
  F hasF = F::none;
  double f = 0;
  double denominator = 0;  // the mean square under F
  int denominatorDf = 0;
};

struct OneWay {
  AnovaRow between, within, total;
};

// One column a group, sizes may differ. More than 600 rows: a subscript fault; two values and more, none of the columns
// empty.
OneWay oneWay(std::span<const std::vector<double>> columns);

// What the designs build their rows with: the values about their mean, and the sum of squares that their last digits
// make.
struct Centred {
  std::vector<double> values;
  double total = 0;  // sum of squares
  double resolution = 0;
};
Centred centred(std::span<const double> values);

// Where the resolution is not passed the sum of squares is 0.
AnovaRow anovaRow(double ss, int df, double resolution);
// F against that row, impossible where its mean square is 0.
void testAgainst(AnovaRow& effect, const AnovaRow& error);

}  // namespace zelko::numbers
