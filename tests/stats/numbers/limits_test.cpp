// Where an analysis refuses or faults, and the system's own figures that are not the textbook's.
#include <doctest/doctest.h>

#include <cmath>
#include <functional>

#include "platform/fault.h"
#include "stats/numbers/analyses.h"

namespace zelko::numbers {
namespace {

using Values = std::vector<double>;

Values rising(std::size_t n) {
  Values values;
  for (std::size_t i = 1; i <= n; ++i) values.push_back(static_cast<double>(i));
  return values;
}

std::u16string faultOf(const std::function<void()>& run) {
  try {
    run();
  } catch (const Fault& fault) {
    return fault.text;
  }
  return u"";
}

Matrix square(int n, Values cells) {
  Matrix m(n, n);
  m.cells = std::move(cells);
  return m;
}

}  // namespace

TEST_CASE("an analysis runs at its limit, and beyond it stops with a sentence that tells the limit") {
  using Run = void (*)(std::size_t);
  const std::pair<std::size_t, Run> rows[] = {
      {1200, [](std::size_t n) { frequencies(std::vector<std::u16string>(n)); }},
      {15000, requireDistribution},
      {2000, requireGroupDistribution},
      {1000, [](std::size_t n) { pearson(rising(n), rising(n), false); }},
      {1001, [](std::size_t n) { spearman(rising(n), rising(n)); }},
      {200, [](std::size_t n) { Clustering(yuk(Matrix(static_cast<int>(n), 3)), Linkage::ward, 0).clustring(); }},
      {600,
       [](std::size_t n) {
         oneWay(std::array{rising(n), rising(2)});
       }},
      {600, [](std::size_t n) { threeWayNested(Matrix(static_cast<int>(n), 2), std::vector<int>(n, 1)); }},
      {500, [](std::size_t n) { uTest(rising(n), rising(2)); }},
      {1000, [](std::size_t n) { Reassignment(rising(n - 2), rising(2)); }},
      {32767, [](std::size_t n) { crossTable(Values(n, 1.0), Values(n, 45.0)); }},
  };
  for (const auto& [limit, run] : rows) {
    CAPTURE(limit);
    CHECK(faultOf([&, run = run, limit = limit] { run(limit); }) == u"");
    CHECK(faultOf([&, run = run, limit = limit] { run(limit + 1); }) != u"");
  }
  CHECK(faultOf([] { yuk(Matrix(201, 3)); }) ==
        u"クラスタ分析：記録は200までです。インデックスが有効範囲にありません。");
}

TEST_CASE("numeric faults") {
  const Matrix ones = square(3, Values(9, 1.0));
  const std::function<void()> rows[] = {
      [] {
        pearson(Values{46341, 2}, Values{1, 2}, false);
      },  // a product beyond 32 bits
      [] {
        pearson(Values{3e9, 2}, Values{1, 2}, true);
      },
      [] {
        spearman(Values{5, 5, 5}, Values{1, 2, 3});
      },
      [] {
        spearman(Values{1e39, 5, 5}, Values{1, 2, 3});
      },
      [] { classEdges(0, 1e41, 15); },
      [] { crossTable(Values{1}, Values{-1}); },
      [] { chiP(10, 400); },
      [&] { smc(ones); },
      [&] { stYuk(ones); },
      [&] { maha(ones); },
      [&] { mink(ones, 0); },
      [&] {
        FactorExtraction(ones, Values{1, 1, 1}, 4);
      },
      [&] {
        FactorExtraction(ones, Values{-1, -1, -1}, 3).cycle(0);
      },  // negative eigenvalues
      [] {
        threeWaySingle(Values{1, 2, 3}, std::vector{1, 2, 1}, std::vector{1, 1, 2}, std::vector{1, 1, 1});
      },
      [] { tValue(1e6, 0, 1); },
  };
  for (const auto& row : rows) {
    CAPTURE(&row - rows);
    CHECK(faultOf(row) != u"");
  }
}

TEST_CASE("the system's own procedures keep their constants and their slips") {
  CHECK(norm(0) == 0.5);
  CHECK(norm(-2.7) == doctest::Approx(normalTail(2.7)).epsilon(1e-5));
  CHECK(prbT(2, 1) == 1 - 0.63661977 * std::atan(2.0));
  for (const int v : {2, 3, 4, 9, 30, 32767}) CHECK(prbT(-2.5, v) == doctest::Approx(tExact(2.5, v)).epsilon(1e-6));
  CHECK(paulF(4.1, 3, 12) == doctest::Approx(prbF(4.1, 3, 12)).epsilon(0.02));
  CHECK(chiP(29, 1) == doctest::Approx(chiExact(29, 1)).epsilon(1e-2));
  CHECK_FALSE(sameToFourDigits(chiP(100, 1), chiExact(100, 1)));
  CHECK(Bp(5, 0.5, 10).sum == doctest::Approx(binomialExact(5, 0.5, 10).sum));
  CHECK(Bp(5000, 0.5, 10000).probability == 0);  // the first term is below the range of a double
  CHECK(binomialExact(0, 0, 10000).probability == 1);

  // chisq.test(matrix(c(5, 20, 10, 8), 2))$statistic; from 6 on nothing is corrected
  CHECK(fourfoldTest({5, 10, 20, 8}, Yates::whereFew).chi == doctest::Approx(4.36421561));
  CHECK(fourfoldTest({6, 10, 8, 20}, Yates::whereFew).chi == fourfoldTest({6, 10, 8, 20}, Yates::never).chi);
  CHECK(fourfoldTest({5, 0, 8, 20}, Yates::whereFew).empty);
  CHECK_FALSE(nmchiphi({2, 2, {0, 0, 3, 4}}).valid);
  CHECK_FALSE(FourfoldTrials({1, 0, 0, 0}, 0).once([] { return 0u; }));

  const TTest same = tTest({3, 0, 5}, {3, 0, 5});
  CHECK_FALSE(same.hasT);
  CHECK(tTest({3, 2, 5}, {3, 0, 9}).F == 2 / 0.00001);
  CHECK(tTest({3, 2, 5}, {3, 1, 9}).numeratorDf == 8);  // n2 - 1, though group 1 has the larger SD
  CHECK_FALSE(tTest({3, 2, 1}, {3, 1, 9}).computed);
  const UTest equal = uTest(Values{4, 4}, Values{4, 4, 4});
  CHECK(equal.cr == 0);
  CHECK(equal.bound == 0);
  CHECK(uTest(rising(20), Values(20, 30.0)).bound == 0.0005);
}

TEST_CASE("texts are listed by code, above 31 and below the mark") {
  const std::u16string cells[] = {u"b", u"10 ", u"ﾟ", u"10", u"b", u"￥5", u"\u001f"};
  const Frequencies result = frequencies(cells);
  std::u16string listed;
  for (const Frequency& row : result.listed) listed += u"[" + row.text + u"]" + static_cast<char16_t>(u'0' + row.count);
  CHECK(listed == u"[10]1[10 ]1[b]2");
  CHECK(result.hidden.size() == 2);
  CHECK(barLength(1, 16) == 2);  // 2.5 signs: half to even
}

TEST_CASE("clusters: zeros first, nothing from 10000 on, the code of a pair, the order of the leaves") {
  Clustering clustering(square(4, {0, 4, 9999, 0, 4, 0, 4, 2e4, 9999, 4, 0, 3e4, 0, 2e4, 3e4, 0}), Linkage::complete,
                        0);
  clustering.clustring();
  REQUIRE(clustering.merges().size() == 2);  // 1-4 at 0, 2-3 at 4, then 30000 is left
  CHECK(clustering.merges()[0].mergeCode == 256 + 4);
  CHECK(dendrogram(4, clustering.merges()).leaves == std::vector{1, 4, 2, 3});
  CHECK(dendrogram(4, clustering.merges()).joints[1].right == 4);

  Matrix far = square(200, Values(40000, 50.0));
  far(198, 199) = far(199, 198) = 1;
  Clustering last(far, Linkage::single, 0);
  CHECK(last.choose());
  CHECK(last.merges()[0].mergeCode == 199 * 256 + 200 - 65536);
}

TEST_CASE("cells that are uneven are found, an error of rounding alone is none, levels and shapes have their borders") {
  const std::vector<int> a{1, 1, 2, 2, 2}, b{1, 2, 1, 2, 2};
  CHECK(firstCellOtherThan(cellCounts(a, b), 1) == CellPlace{2, 2, 1});
  CHECK(sizesDiffer(cellCounts(a, b)));
  CHECK_FALSE(levelsDiffer(cellCounts(a, b), 0));
  CHECK(levelsDiffer(cellCounts(a, std::vector<int>{1, 2, 1, 1, 1}), 1));

  Matrix additive(3, 3);
  for (int i = 0; i < 9; ++i) additive.cells[i] = 1000 + 0.1 * (i % 3) + 0.7 * (i / 3);
  CHECK(twoWay(additive).a.hasF == AnovaRow::F::impossible);
  CHECK(twoWay(additive).a.ss == doctest::Approx(0.06));

  std::string levels;
  for (const double z : {-1.6, -1.5, -0.5, 0.0, 0.5, 1.5}) levels += std::to_string(fiveLevel(z));
  CHECK(levels == "123345");
  CHECK(tValue(0, 60, 10) == -10);
  CHECK(shapeOf({}, std::vector<float>{1, 9, 30, 8, 2, 9, 25, 24, 3}).peaks == std::vector{3, 7});
  CHECK(shapeOf({}, std::vector<float>{4, 5, 4, 5, 4, 5}).peaks.size() == 1);
}

}  // namespace zelko::numbers
