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

#include "platform/fault.h"
#include "stats/numbers/analyses.h"

namespace zelko::numbers {
namespace {

using Figures = std::vector<double>;
using Items = std::vector<Figures>;  // eight columns

constexpr double kMissing = std::numeric_limits<double>::quiet_NaN();
constexpr double kUncompared = std::numeric_limits<double>::infinity();

Figures operator+(Figures all, const Figures& more) {
  all.insert(all.end(), more.begin(), more.end());
  return all;
}

// The figures of a refused part are missing.
Figures orMissing(std::size_t count, const std::function<Figures()>& part) {
  try {
    return part();
  } catch (const Fault&) {
    return Figures(count, kMissing);
  }
}

Matrix matrixOf(const Items& items, std::size_t columns, std::size_t rows) {
  Matrix m(static_cast<int>(rows), static_cast<int>(columns));
  for (std::size_t i = 0; i < m.cells.size(); ++i) m.cells[i] = items[i % columns][i / columns];
  return m;
}

Matrix allItems(const Items& t) { return matrixOf(t, 6, t[0].size()); }

std::vector<int> groupsOf(std::size_t n, std::size_t step, std::size_t levels) {
  std::vector<int> groups;
  for (std::size_t i = 0; i < n; ++i) groups.push_back(static_cast<int>(i / step % levels) + 1);
  return groups;
}

// Sums of squares of the rows, then their F.
Figures tableOf(std::initializer_list<AnovaRow> rows) {
  Figures squares, fs;
  for (const AnovaRow& row : rows) {
    squares.push_back(row.ss);
    if (row.hasF == AnovaRow::F::tested) fs.push_back(row.f);
  }
  return squares + fs;
}

Figures pearsonFigures(const Figures& x, const Figures& y) {
  const Figures standard = orMissing(3, [&] {
    const Pearson p = pearson(x, y, true);
    return Figures{1.0 * p.n, p.r, p.exact};
  });
  const Figures raw = orMissing(1, [&] { return Figures{pearson(x, y, false).r}; });
  return {standard[0], raw[0], standard[1], standard[2]};
}

FactorExtraction extracted(const Matrix& r, const Figures& h, int cycles) {
  FactorExtraction extraction(r, h, 2);
  for (int i = 0; i < cycles; ++i) extraction.cycle(0);
  return extraction;
}

Figures clusterFigures(const Items& t) {
  Items varied;
  for (std::size_t j = 0; j < 6; ++j) {
    if (std::count(t[j].begin(), t[j].begin() + 20, t[j][0]) < 20) varied.push_back(t[j]);
  }
  const Matrix d = stYuk(matrixOf(varied, varied.size(), 20));
  Figures figures;
  for (int method = 1; method <= 7; ++method) {
    Clustering clustering(d, static_cast<Linkage>(method), -0.25);
    clustering.clustring();
    double sum = 0;
    for (const Merge& merge : clustering.merges()) sum += merge.mergeLevel;
    figures = figures + Figures{sum, clustering.highestLevel()};
  }
  return figures;
}

Figures scoreFigures(const Items& t) {
  const Spread s = spreadOf(t[0]);
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
  return Figures{1.0 * s.n, s.sum, stats.mean(), stats.sd(), s.u(), s.min, stats.max(), sum} + levels +
         Figures{question.discrimination().value_or(kMissing)};
}

Figures chanceFigures() {
  std::mt19937 generator(7);
  const RandomBits bits = [&] { return static_cast<std::uint32_t>(generator()); };
  const Figures x{3.1, 4.1, 5.9, 2.6, 5.3, 5.8, 9.7, 9.3, 2.3, 8.4, 6.2, 6.4};
  FourfoldTrials fourfold({10, 10, 10, 10}, 1.62f);
  ContingencyTrials contingency({2, 2, {10, 10, 10, 10}}, 1.62);
  Reassignment reassignment{std::span(x).first(6), std::span(x).subspan(6)};
  bool went = true;
  for (int i = 0; i < 50000; ++i) {
    went = fourfold.once(bits) && contingency.once(bits) && went;
    reassignment.once(bits);
  }
  CHECK(went);
  return {fourfold.rate(), contingency.rate(), reassignment.higher() / 5e4, reassignment.lower() / 5e4};
}

const std::map<std::string, Figures (*)(const Items&)> kAnalyses = {
    {"shape",
     [](const Items& t) {
       const Shape s = shapeOf(t[2], {});
       const auto [least, most] = std::minmax_element(t[0].begin(), t[0].end());
       const ClassCounts own = classCounts(t[0], classEdges(*least, *most, 7));
       const std::vector<int> exact = exactClassCounts(t[0], *least, *most, 7);
       return Figures{s.lowerQuartile, s.median, s.upperQuartile, s.skew} + Figures(own.begin(), own.begin() + 8) +
              Figures(exact.begin(), exact.end());
     }},
    {"pearson", [](const Items& t) { return pearsonFigures(t[0], t[1]) + pearsonFigures(t[2], t[3]); }},
    {"spearman",
     [](const Items& t) {
       const Spearman s = spearman(t[0], t[1]);
       return Figures{1.0 * s.n, s.consistency, s.correctness, s.cr};
     }},
    {"cross",
     [](const Items& t) {
       const CrossTable table = crossTable(t[6], t[7]);
       const CrossTest test = crossTest(table);
       if (test.refusal != CrossTest::Refusal::none) return Figures(10, kMissing);
       const FourfoldTest cell = cellTest(table, 2, 1);
       Counts counts{table.rows, table.columns, {}};
       for (int i = 0; i < table.rows * table.columns; ++i) {
         counts.cells.push_back(table.tbl[i / table.columns + 1][i % table.columns + 1]);
       }
       const ContingencyTest typed = nmchiphi(counts);
       return Figures{test.chi, test.phi,  test.p,   test.exactP, cell.chi,
                      cell.phi, typed.chi, typed.c1, typed.c2,    typed.c3};
     }},
    {"eigen",
     [](const Items& t) {
       const Covariance basics = var(allItems(t));
       const Matrix& r = basics.correlation;
       return eigenvaluesWith(r, Figures(6, 1.0)) + smc(r) + Figures{r(1, 0), basics.covariance(3, 2)};
     }},
    {"factor",
     [](const Items& t) {
       const Covariance basics = var(allItems(t));
       const Matrix& r = basics.correlation;
       const FactorExtraction single = extracted(r, smc(r), 1), iterated = extracted(r, maxCorrelations(r), 4);
       const Matrix &a = single.loadings(), &b = iterated.loadings();
       Varimax rotation(a, single.communalities());
       while (!rotation.cycle(1e-14)) {
       }
       Figures figures{a(0, 0), a(0, 1), b(0, 0), b(0, 1)};
       for (int i = 0; i < 6; ++i) {
         const auto row = rotation.loadings().row(i);
         figures.push_back(std::max(std::abs(row[0]), std::abs(row[1])));
       }
       const Matrix scores = factorScores(allItems(t), basics, scoreWeights(r, a));
       for (double& loading : figures) loading = std::abs(loading);
       return figures + Figures{std::abs(scores(0, 0)), std::abs(scores(0, 1)),
                                reproduced(a, single.communalities())(0, 1), maha(allItems(t))(0, 1)};
     }},
    {"distances",
     [](const Items& t) {
       const Matrix x = allItems(t), all[] = {yuk(x), stYuk(x), mink(x, 1), mink(x, 3)};
       Figures figures;
       for (const Matrix& d : all) figures = figures + Figures{d(0, 1), d(6, 2)};
       return figures;
     }},
    {"cluster", clusterFigures},
    {"anova",
     [](const Items& t) {
       Items columns(t.begin(), t.begin() + 3);
       const OneWay equal = oneWay(columns);
       columns[1].resize(columns[1].size() - 3);
       columns[2].resize(columns[2].size() - 7);
       const OneWay unequal = oneWay(columns);
       const std::size_t n = t[0].size();
       const TwoWay plain = twoWay(matrixOf(t, 4, n));
       const TwoWay cells = twoWayCells(t[0], groupsOf(n, 1, 2), groupsOf(n, 2, 3));
       const ThreeWay split = threeWayNested(matrixOf(t, 3, n), groupsOf(n, 1, 2));
       return tableOf({equal.between, equal.within}) + tableOf({unequal.between, unequal.within}) +
              tableOf({plain.a, plain.b, plain.error}) + tableOf({cells.a, cells.b, cells.ab, cells.error}) +
              tableOf({split.a, split.b, split.ab, split.c, split.bc});
     }},
    {"threeway",
     [](const Items& t) {
       const Figures y(t[1].begin(), t[1].begin() + 24);
       const auto a = groupsOf(24, 1, 2), b = groupsOf(24, 2, 3), c = groupsOf(24, 6, 4), half = groupsOf(24, 12, 2);
       const ThreeWay one = threeWaySingle(y, a, b, c), two = threeWayReplicated(y, a, b, half);
       const ThreeWay subjects = threeWaySubjects(y, a, b, c);
       return tableOf({one.a, one.b, one.c, one.ab, one.ac, one.bc, one.error}) +
              tableOf({two.a, two.b, two.c, two.ab, two.ac, two.bc, two.abc, two.error}) +
              Figures{subjects.a.f, subjects.b.f, subjects.ab.f};
     }},
    {"groups",
     [](const Items& t) {
       // About an origin, as the figures are: means that are typed have lost what a double cannot hold.
       Figures x(t[0].begin(), t[0].begin() + 20), y(t[1].begin(), t[1].begin() + 20);
       for (double& value : y) value -= t[0][0];
       for (double& value : x) value -= t[0][0];
       const UTest u = uTest(x, y);
       const Spread sx = spreadOf(x), sy = spreadOf(y);
       const TTest test = tTest({sx.mean, sx.sd(), sx.n}, {sy.mean, sy.sd(), sy.n});
       return Figures{u.u, u.cr, test.t, test.exactP, test.F, test.exactF, test.exactFP};
     }},
    {"scores", scoreFigures},
    {"tails",
     [](const Items&) {
       Figures figures;
       for (const double q : {0.1, 5.0, 30.0, 90.0, 700.0}) {
         for (const int df : {1, 2, 7, 60, 401}) {
           const Binomial b = binomialExact(df, q / 1000, 9973);
           figures = figures + Figures{q, 1.0 * df, chiExact(q, df), tExact(q, df), prbF(q, df, 9), prbF(q, 4, df)};
           figures = figures + Figures{b.probability, b.sum};
         }
       }
       return figures;
     }},
    {"chance", [](const Items&) { return chanceFigures(); }}};

std::ifstream file(const char* name) {
  return std::ifstream(ZELKO_SOURCE_DIR "/tests/stats/numbers/" + std::string(name));
}

std::vector<Items> tables() {
  std::vector<Items> all(2, Items(8));  // table 0 is empty, and one lies beyond the last
  std::ifstream in = file("tables.txt");
  for (std::string line; std::getline(in, line); all.emplace_back(8)) {
    std::istringstream cells(line);
    std::size_t n = 0, i = 0;
    cells >> n;
    for (double x; cells >> x; ++i) all.back()[i % 8].push_back(x);
    REQUIRE(all.back()[7].size() == n);
  }
  return all;
}

// Apart at most by the first of the tolerance, relative to the expected figure or to the second.
void compare(const Figures& got, const Figures& expected, std::pair<double, double> tolerance) {
  REQUIRE(got.size() == expected.size());
  for (std::size_t i = 0; i < got.size(); ++i) {
    CAPTURE(i);
    const double allowed = tolerance.first * std::max(std::abs(expected[i]), tolerance.second);
    const bool agrees = std::isnan(expected[i]) ? std::isnan(got[i]) : std::abs(got[i] - expected[i]) <= allowed;
    CHECK_MESSAGE((agrees || expected[i] == kUncompared), got[i], " for ", expected[i], ", apart ",
                  got[i] - expected[i]);
  }
}

}  // namespace

TEST_CASE("every analysis gives the figures of R on every table") {
  const std::vector<Items> items = tables();
  std::map<std::string, std::pair<double, double>> tolerances;
  int compared = 0;
  std::ifstream in = file("figures.txt");
  for (std::string line, table, word; std::getline(in, line);) {
    std::istringstream words(line);
    words >> table >> word;
    if (table == "#") {
      words >> tolerances[word].first >> tolerances[word].second;
      continue;
    }
    for (std::string name; words >> name; ++compared) {
      CAPTURE(table);
      CAPTURE(name);
      Figures expected;
      while (words >> word && word != ";") {
        expected.push_back(word == "NA" ? kMissing : word == "-" ? kUncompared : std::strtod(word.c_str(), nullptr));
      }
      const auto run = [&] { return kAnalyses.at(name)(items.at(std::stoul(table))); };
      compare(orMissing(expected.size(), run), expected, tolerances.at(name));
    }
  }
  CHECK(compared == 12 * 20 + 2);
}

}  // namespace zelko::numbers
