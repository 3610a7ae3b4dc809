// Every analysis on twenty tables against the figures of figures.txt (see figures.R).
#include <doctest/doctest.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <functional>
#include <limits>
#include <map>
#include <random>
#include <sstream>
#include <string>

#include "platform/fault.h"
#include "stats/numbers/anova.h"
#include "stats/numbers/anova2.h"
#include "stats/numbers/anova3.h"
#include "stats/numbers/clustering.h"
#include "stats/numbers/contingency.h"
#include "stats/numbers/covariance.h"
#include "stats/numbers/crosstable.h"
#include "stats/numbers/distances.h"
#include "stats/numbers/distribution.h"
#include "stats/numbers/exact.h"
#include "stats/numbers/factor.h"
#include "stats/numbers/pearson.h"
#include "stats/numbers/scores.h"
#include "stats/numbers/shape.h"
#include "stats/numbers/spearman.h"
#include "stats/numbers/ttest.h"
#include "stats/numbers/utest.h"
#include "stats/numbers/varimax.h"

namespace zelko::numbers {
namespace {

using Figures = std::vector<double>;
using Items = std::vector<Figures>;  // eight columns

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();

// The figures of a refused part are missing.
Figures orMissing(std::size_t count, const std::function<Figures()>& part) {
  try {
    return part();
  } catch (const Fault&) {
    return Figures(count, kNone);
  }
}

void append(Figures& all, const Figures& more) { all.insert(all.end(), more.begin(), more.end()); }

Matrix matrixOf(const Items& items, std::size_t columns, std::size_t rows) {
  Matrix m(static_cast<int>(rows), static_cast<int>(columns));
  for (std::size_t i = 0; i < m.cells.size(); ++i) m.cells[i] = items[i % columns][i / columns];
  return m;
}

std::vector<int> groupsOf(std::size_t n, std::size_t step, std::size_t levels) {
  std::vector<int> groups;
  for (std::size_t i = 0; i < n; ++i) groups.push_back(static_cast<int>(i / step % levels) + 1);
  return groups;
}

// Sums of squares of the rows, then their F.
Figures tableOf(std::initializer_list<AnovaRow> rows) {
  Figures figures;
  for (const AnovaRow& row : rows) figures.push_back(row.ss);
  for (const AnovaRow& row : rows) {
    if (row.hasF == AnovaRow::F::tested) figures.push_back(row.f);
  }
  return figures;
}

Figures spread(const Items& t) {
  Figures figures;
  for (const std::size_t j : {0, 4}) {
    const Spread s = spreadOf(t[j]);
    append(figures, {static_cast<double>(s.n), s.sum, s.mean, s.sd(), s.u(), s.min, s.max});
  }
  return figures;
}

Figures shape(const Items& t) {
  const Shape s = shapeOf(t[2], {});
  return {s.lowerQuartile, s.median, s.upperQuartile, s.skew};
}

Figures classes(const Items& t) {
  const auto [least, most] = std::minmax_element(t[0].begin(), t[0].end());
  const ClassCounts told = classCounts(t[0], classEdges(*least, *most, 7));
  Figures figures(told.begin(), told.begin() + 8);
  for (const int count : exactClassCounts(t[0], *least, *most, 7)) figures.push_back(count);
  return figures;
}

Figures pearsons(const Items& t) {
  Figures figures;
  for (const std::size_t i : {0, 2}) {
    const Figures standard = orMissing(3, [&] {
      const Pearson p = pearson(t[i], t[i + 1], true);
      return Figures{static_cast<double>(p.n), p.r, p.exact};
    });
    const Figures raw = orMissing(1, [&] { return Figures{pearson(t[i], t[i + 1], false).r}; });
    append(figures, {standard[0], raw[0], standard[1], standard[2]});
  }
  return figures;
}

Figures spearmans(const Items& t) {
  const Spearman s = spearman(t[0], t[1]);
  return {static_cast<double>(s.n), s.consistency, s.correctness, s.cr};
}

Figures cross(const Items& t) {
  const CrossTable table = crossTable(t[6], t[7]);
  const CrossTest test = crossTest(table);
  if (test.refusal != CrossTest::Refusal::none) return Figures(6, kNone);
  const FourfoldTest cell = cellTest(table, 2, 1);
  return {test.chi, test.phi, test.p, test.exactP, cell.chi, cell.phi};
}

Figures association(const Items& t) {
  Counts counts{3, 4, {}};
  for (std::size_t i = 0; i < 12; ++i) {
    counts.cells.push_back(1 + static_cast<int>(std::fmod(std::abs(std::floor(t[0][i] - t[0][0])), 50)));
  }
  const ContingencyTest test = nmchiphi(counts);
  return {test.chi, test.c1, test.c2, test.c3, test.exactP, test.p.value()};
}

// Loadings after the most cycles.
Matrix loadings(const Matrix& r, const Figures& h, int cycles, Figures& communalities) {
  FactorExtraction extraction(r, h, 2);
  for (int i = 0; i < cycles; ++i) extraction.cycle(0);
  communalities = extraction.communalities();
  return extraction.loadings();
}

Figures eigenvalues(const Items& t) {
  const Covariance basics = var(matrixOf(t, 6, t[0].size()));
  const Matrix& r = basics.correlation;
  Figures figures = eigenvaluesWith(r, Figures(6, 1.0));
  append(figures, smc(r));
  append(figures, {r(1, 0), basics.covariance(3, 2)});
  return figures;
}

Figures factor(const Items& t) {
  const Matrix data = matrixOf(t, 6, t[0].size());
  const Covariance basics = var(data);
  const Matrix& r = basics.correlation;
  Figures communalities, ignored;
  const Matrix b = loadings(r, maxCorrelations(r), 4, ignored), a = loadings(r, smc(r), 1, communalities);
  Varimax rotation(a, communalities);
  while (!rotation.cycle(1e-14)) {
  }
  Figures figures{std::abs(a(0, 0)), std::abs(a(0, 1)), std::abs(b(0, 0)), std::abs(b(0, 1))};
  for (int i = 0; i < 6; ++i) {
    figures.push_back(std::max(std::abs(rotation.loadings()(i, 0)), std::abs(rotation.loadings()(i, 1))));
  }
  const Matrix scores = factorScores(data, basics, scoreWeights(r, a));
  append(figures, {std::abs(scores(0, 0)), std::abs(scores(0, 1)), reproduced(a, communalities)(0, 1)});
  return figures;
}

Figures distances(const Items& t) {
  const Matrix data = matrixOf(t, 6, t[0].size());
  const Matrix all[] = {yuk(data), stYuk(data), mink(data, 1), mink(data, 3)};
  Figures figures;
  for (const auto& [i, j] : {std::pair{0, 1}, std::pair{6, 2}}) {
    for (const Matrix& d : all) figures.push_back(d(i, j));
  }
  return figures;
}

Figures mahalanobis(const Items& t) { return {maha(matrixOf(t, 6, t[0].size()))(0, 1)}; }

Figures cluster(const Items& t) {
  Items varied;
  for (std::size_t j = 0; j < 6; ++j) {
    const auto end = t[j].begin() + 20;
    if (std::count(t[j].begin(), end, t[j][0]) < 20) varied.push_back(t[j]);
  }
  const Matrix d = stYuk(matrixOf(varied, varied.size(), 20));
  Figures figures;
  for (int method = 1; method <= 7; ++method) {
    Clustering clustering(d, static_cast<Linkage>(method), -0.25);
    clustering.clustring();
    double sum = 0;
    for (const Merge& merge : clustering.merges()) sum += merge.mergeLevel;
    append(figures, {sum, clustering.highestLevel()});
  }
  return figures;
}

Figures oneWays(const Items& t) {
  Items columns(t.begin(), t.begin() + 3);
  const OneWay equal = oneWay(columns);
  columns[1].resize(columns[1].size() - 3);
  columns[2].resize(columns[2].size() - 7);
  const OneWay unequal = oneWay(columns);
  Figures figures = tableOf({equal.between, equal.within});
  append(figures, tableOf({unequal.between, unequal.within}));
  return figures;
}

Figures twoWays(const Items& t) {
  const std::size_t n = t[0].size();
  const TwoWay plain = twoWay(matrixOf(t, 4, n));
  const TwoWay cells = twoWayCells(t[0], groupsOf(n, 1, 2), groupsOf(n, 2, 3));
  Figures figures = tableOf({plain.a, plain.b, plain.error});
  append(figures, tableOf({cells.a, cells.b, cells.ab, cells.error}));
  return figures;
}

Figures threeWays(const Items& t) {
  const std::span<const double> values = std::span(t[1]).first(24);
  const std::vector<int> a = groupsOf(24, 1, 2), b = groupsOf(24, 2, 3), c = groupsOf(24, 6, 4),
                         half = groupsOf(24, 12, 2);
  const ThreeWay one = threeWaySingle(values, a, b, c), two = threeWayReplicated(values, a, b, half);
  const ThreeWay subjects = threeWaySubjects(values, a, b, c);
  Figures figures = tableOf({one.a, one.b, one.c, one.ab, one.ac, one.bc, one.error});
  append(figures, tableOf({two.a, two.b, two.c, two.ab, two.ac, two.bc, two.abc, two.error}));
  append(figures, {subjects.a.f, subjects.b.f, subjects.ab.f});
  return figures;
}

Figures nested(const Items& t) {
  const std::size_t n = t[0].size();
  const ThreeWay split = threeWayNested(matrixOf(t, 3, n), groupsOf(n, 1, 2));
  return {split.a.ss, split.c.ss, split.b.ss, split.ab.ss, split.bc.ss, split.a.f, split.b.f, split.ab.f};
}

Figures twoGroups(const Items& t) {
  // About an origin, as the figures are: means that are typed have lost what a double cannot hold.
  Figures x(t[0].begin(), t[0].begin() + 20), y(t[1].begin(), t[1].begin() + 20);
  for (Figures* group : {&y, &x}) {
    for (double& value : *group) value -= t[0][0];
  }
  const UTest u = uTest(x, y);
  const Spread sx = spreadOf(x), sy = spreadOf(y);
  const TTest test = tTest({sx.mean, sx.sd(), sx.n}, {sy.mean, sy.sd(), sy.n});
  if (!test.hasExactF) return Figures(7, kNone);
  return {u.u, u.cr, test.t, test.exactP, test.F, test.exactF, test.exactFP};
}

Figures marks(const Items& t) {
  ScoreStats stats;
  for (const double x : t[0]) stats.count(x);
  for (const double x : t[0]) stats.spread(x);
  double sum = 0;
  Figures levels(5);
  for (const double x : t[0]) {
    sum += tValue(x, stats.mean(), stats.sd());
    ++levels[static_cast<std::size_t>(fiveLevel(zValue(x, stats.mean(), stats.sd())) - 1)];
  }
  QuestionStats question;
  const double median = shapeOf(t[1], {}).median;
  for (std::size_t i = 0; i < t[0].size(); ++i) question.add(t[1][i] > median, t[2][i]);
  Figures figures{stats.mean(), stats.sd(), sum};
  append(figures, levels);
  figures.push_back(question.discrimination().value_or(kNone));
  return figures;
}

Figures tails(const Items&) {
  Figures figures;
  for (const double q : {0.1, 5.0, 30.0, 90.0, 700.0}) {
    for (const int df : {1, 2, 7, 60, 401}) {
      const Binomial b = binomialExact(df, q / 1000, 9973);
      append(figures, {q, static_cast<double>(df), chiExact(q, df), tExact(q, df), prbF(q, df, 9), prbF(q, 4, df),
                       b.probability, b.sum});
    }
  }
  return figures;
}

Figures chance(const Items&) {
  std::mt19937 generator(7);
  const RandomBits bits = [&] { return static_cast<std::uint32_t>(generator()); };
  constexpr double x[] = {3.1, 4.1, 5.9, 2.6, 5.3, 5.8, 9.7, 9.3, 2.3, 8.4, 6.2, 6.4};
  FourfoldTrials fourfold({10, 10, 10, 10}, 1.62f);
  ContingencyTrials contingency({2, 2, {10, 10, 10, 10}}, 1.62);
  const std::span<const double> all(x);
  Reassignment reassignment(all.first(6), all.subspan(6));
  for (int i = 0; i < 50000; ++i) {
    CHECK(fourfold.once(bits));
    CHECK(contingency.once(bits));
    reassignment.once(bits);
  }
  CHECK(contingency.rate() == doctest::Approx(fourfold.rate()).epsilon(0.03));
  return {fourfold.rate(), reassignment.higher() / 5e4, reassignment.lower() / 5e4};
}

const std::map<std::string, Figures (*)(const Items&)> kAnalyses = {{"spread", spread},
                                                                    {"shape", shape},
                                                                    {"classes", classes},
                                                                    {"pearson", pearsons},
                                                                    {"spearman", spearmans},
                                                                    {"cross", cross},
                                                                    {"association", association},
                                                                    {"eigen", eigenvalues},
                                                                    {"factor", factor},
                                                                    {"distances", distances},
                                                                    {"cluster", cluster},
                                                                    {"oneway", oneWays},
                                                                    {"twoway", twoWays},
                                                                    {"threeway", threeWays},
                                                                    {"nested", nested},
                                                                    {"groups", twoGroups},
                                                                    {"scores", marks},
                                                                    {"mahalanobis", mahalanobis},
                                                                    {"tails", tails},
                                                                    {"chance", chance}};

std::ifstream file(const char* name) {
  return std::ifstream(ZELKO_SOURCE_DIR "/tests/stats/numbers/" + std::string(name));
}

std::vector<Items> tables() {
  std::vector<Items> all(1, Items(8));
  std::ifstream in = file("tables.txt");
  for (std::string line; std::getline(in, line);) {
    std::istringstream cells(line);
    Items items(8);
    std::size_t n = 0, i = 0;
    cells >> n;
    for (double x; cells >> x; ++i) items[i % 8].push_back(x);
    REQUIRE(items[7].size() == n);
    all.push_back(items);
  }
  return all;
}

constexpr double kUncompared = std::numeric_limits<double>::infinity();

double figureOf(const std::string& word) {
  if (word == "NA") return kNone;
  return word == "-" ? kUncompared : std::strtod(word.c_str(), nullptr);
}

struct Tolerance {
  double relative = 0, base = 0;
};

void compare(const Figures& got, const Figures& expected, Tolerance tolerance) {
  REQUIRE(got.size() == expected.size());
  for (std::size_t i = 0; i < got.size(); ++i) {
    CAPTURE(i);
    if (std::isinf(expected[i])) continue;
    const double allowed = tolerance.relative * std::max(std::abs(expected[i]), tolerance.base);
    const bool agrees = std::isnan(expected[i]) ? std::isnan(got[i]) : std::abs(got[i] - expected[i]) <= allowed;
    CHECK_MESSAGE(agrees, got[i], " for ", expected[i], ", apart ", got[i] - expected[i]);
  }
}

}  // namespace

TEST_CASE("every analysis gives the figures of R on every table") {
  const std::vector<Items> items = tables();
  std::map<std::string, Tolerance> tolerances;
  int compared = 0;
  std::ifstream in = file("figures.txt");
  for (std::string line; std::getline(in, line);) {
    std::istringstream words(line);
    std::string word, name;
    words >> word;
    if (word == "#") {
      words >> name;
      words >> tolerances[name].relative >> tolerances[name].base;
      continue;
    }
    const std::size_t table = std::stoul(word);
    Figures expected;
    words >> word;  // the first ";"
    while (words >> name) {
      expected.clear();
      while (words >> word && word != ";") expected.push_back(figureOf(word));
      CAPTURE(table);
      CAPTURE(name);
      compare(orMissing(expected.size(), [&] { return kAnalyses.at(name)(items.at(table)); }), expected,
              tolerances.at(name));
      ++compared;
    }
  }
  CHECK(compared == 18 * 20 + 2);
}

}  // namespace zelko::numbers
