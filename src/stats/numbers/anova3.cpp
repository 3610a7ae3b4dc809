#include "stats/numbers/anova3.h"

#include <array>
#include <bit>
#include <cmath>
#include <vector>

#include "platform/fault.h"
#include "stats/numbers/cells.h"
#include "stats/numbers/limits.h"

namespace zelko::numbers {

namespace {

constexpr const char16_t* kName = u"3元配置分散分析";
constexpr unsigned kA = 1, kB = 2, kC = 4;

using Groups = std::span<const int>;

// The effects of three crossed factors with equal cells. A set of factors is a mask of kA, kB, kC.
class Crossed {
 public:
  Crossed(std::span<const double> values, Groups a, Groups b, Groups c)
      : counts_(cellCounts(a, b, c)), about_(centred(values)) {
    requireAtMost(values.size(), kAnovaRowLimit, kName, u"データ数(行数)");
    if (counts_.n.empty() || firstCellBelow(counts_, 1) || sizesDiffer(counts_)) stop(kName, kSubscript);
    std::array<std::vector<double>, 8> sums;
    for (unsigned mask = 0; mask < 8; ++mask) sums[mask].resize(counts_.n.size());
    for (std::size_t i = 0; i < values.size(); ++i) {
      for (unsigned mask = 0; mask < 8; ++mask) sums[mask][place(mask, {a[i], b[i], c[i]})] += about_.values[i];
    }
    for (std::size_t i = 0; i < values.size(); ++i) {
      const double mean = sums[7][place(7, {a[i], b[i], c[i]})] / counts_.n[0];
      within_ += std::pow(about_.values[i] - mean, 2);
    }
    for (unsigned mask = 0; mask < 8; ++mask) squares_[mask] = effect(sums, mask);
  }

  AnovaRow row(unsigned mask) const {
    int df = 1;
    for (unsigned factor = 0; factor < 3; ++factor) df *= mask >> factor & 1 ? counts_.levels[factor] - 1 : 1;
    return anovaRow(squares_[mask], df, about_.resolution);
  }
  AnovaRow within() const {
    return anovaRow(within_, static_cast<int>(about_.values.size() - counts_.n.size()), about_.resolution);
  }
  // All rows but those that differ between the designs.
  ThreeWay table() const {
    ThreeWay result;
    result.a = row(kA);
    result.b = row(kB);
    result.c = row(kC);
    result.ab = row(kA | kB);
    result.ac = row(kA | kC);
    result.bc = row(kB | kC);
    result.total = anovaRow(about_.total, static_cast<int>(about_.values.size()) - 1, about_.resolution);
    return result;
  }

 private:
  // Where the total of the levels of those factors stands, the others at level 1.
  int place(unsigned mask, CellPlace cell) const {
    return counts_.index(mask & kA ? cell[0] : 1, mask & kB ? cell[1] : 1, mask & kC ? cell[2] : 1);
  }

  // What the mean of a cell's levels has beyond the means of fewer of them, squared and summed over all values.
  double effect(const std::array<std::vector<double>, 8>& sums, unsigned mask) const {
    double squares = 0;
    const auto [a, b, c] = counts_.levels;
    for (int i = 0; i < a * b * c; ++i) {
      const CellPlace cell{i / (b * c) + 1, i / c % b + 1, i % c + 1};
      double beyond = 0;
      for (unsigned part = 0; part < 8; ++part) {
        if ((part & ~mask) != 0) continue;
        const double mean = sums[part][place(part, cell)] / valuesIn(part);
        beyond += std::popcount(mask ^ part) % 2 == 0 ? mean : -mean;
      }
      squares += beyond * beyond;
    }
    return squares * counts_.n[0];
  }

  double valuesIn(unsigned mask) const {
    double n = counts_.n[0];
    for (unsigned factor = 0; factor < 3; ++factor) n *= mask >> factor & 1 ? 1 : counts_.levels[factor];
    return n;
  }

  CellCounts counts_;
  Centred about_;
  double within_ = 0;
  std::array<double, 8> squares_{};
};

}  // namespace

ThreeWay threeWaySingle(std::span<const double> values, Groups a, Groups b, Groups c) {
  const Crossed design(values, a, b, c);
  ThreeWay result = design.table();
  result.error = design.row(kA | kB | kC);
  for (AnovaRow* effect : {&result.a, &result.b, &result.c, &result.ab, &result.ac, &result.bc}) {
    testAgainst(*effect, result.error);
  }
  return result;
}

ThreeWay threeWayReplicated(std::span<const double> values, Groups a, Groups b, Groups c) {
  const Crossed design(values, a, b, c);
  ThreeWay result = design.table();
  result.abc = design.row(kA | kB | kC);
  result.error = design.within();
  for (AnovaRow* effect : {&result.a, &result.b, &result.c, &result.ab, &result.ac, &result.bc, &result.abc}) {
    testAgainst(*effect, result.error);
  }
  return result;
}

ThreeWay threeWaySubjects(std::span<const double> values, Groups a, Groups b, Groups subject) {
  const Crossed design(values, a, b, subject);
  ThreeWay result = design.table();
  result.error = design.row(kA | kB | kC);
  testAgainst(result.a, result.ac);
  testAgainst(result.b, result.bc);
  testAgainst(result.ab, result.error);
  return result;
}

ThreeWay threeWayNested(const Matrix& values, Groups a) {
  requireAtMost(static_cast<std::size_t>(values.rows), kAnovaRowLimit, kName, u"データ数(行数)");
  const std::vector<int> one(a.size(), 1);
  const CellCounts counts = cellCounts(a, one);
  if (counts.n.empty() || firstCellBelow(counts, 1)) stop(kName, kSubscript);
  const Centred about = centred(values.cells);
  const int groups = counts.levels[0], levels = values.columns;

  Matrix cell(groups, levels);
  std::vector<double> subject(a.size()), group(static_cast<std::size_t>(groups)),
      level(static_cast<std::size_t>(levels));
  for (int i = 0; i < values.rows; ++i) {
    for (int j = 0; j < levels; ++j) {
      const double x = about.values[static_cast<std::size_t>(i) * levels + j];
      const int g = a[i] - 1, n = counts.n[g];
      cell(g, j) += x / n;
      subject[i] += x / levels;
      group[g] += x / n / levels;
      level[j] += x / values.rows;
    }
  }
  double ssA = 0, ssB = 0, ssC = 0, ssAB = 0, ssBC = 0;
  for (int i = 0; i < values.rows; ++i) {
    const int g = a[i] - 1;
    for (int j = 0; j < levels; ++j) {
      const double x = about.values[static_cast<std::size_t>(i) * levels + j];
      ssA += std::pow(group[g], 2);
      ssB += std::pow(level[j], 2);
      ssC += std::pow(subject[i] - group[g], 2);
      ssAB += std::pow(cell(g, j) - group[g] - level[j], 2);
      ssBC += std::pow(x - cell(g, j) - subject[i] + group[g], 2);
    }
  }
  const int subjects = values.rows - groups;
  ThreeWay result;
  result.a = anovaRow(ssA, groups - 1, about.resolution);
  result.b = anovaRow(ssB, levels - 1, about.resolution);
  result.c = anovaRow(ssC, subjects, about.resolution);
  result.ab = anovaRow(ssAB, (groups - 1) * (levels - 1), about.resolution);
  result.bc = anovaRow(ssBC, subjects * (levels - 1), about.resolution);
  result.total = anovaRow(about.total, static_cast<int>(about.values.size()) - 1, about.resolution);
  testAgainst(result.a, result.c);
  testAgainst(result.b, result.bc);
  testAgainst(result.ab, result.bc);
  return result;
}

}  // namespace zelko::numbers
