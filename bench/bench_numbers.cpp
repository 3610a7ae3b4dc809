// The arithmetic of the analyses on 1,000 records against its limits of CPU, and beside it the same in a session of R
// with its start, as a user has it (where R is installed). The simulations stand beside a plain loop with the same
// generator.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <random>
#include <string>

#include "bench_table.h"
#include "stats/numbers/anova2.h"
#include "stats/numbers/anova3.h"
#include "stats/numbers/contingency.h"
#include "stats/numbers/crosstable.h"
#include "stats/numbers/dendrogram.h"
#include "stats/numbers/distances.h"
#include "stats/numbers/distribution.h"
#include "stats/numbers/factor.h"
#include "stats/numbers/frequencies.h"
#include "stats/numbers/moments.h"
#include "stats/numbers/pearson.h"
#include "stats/numbers/shape.h"
#include "stats/numbers/spearman.h"
#include "stats/numbers/utest.h"
#include "stats/numbers/varimax.h"

namespace {

using namespace zelko::numbers;
using namespace zelko::bench;
using Values = std::vector<double>;

constexpr int kRecords = 1000, kItems = 30, kObjects = 200, kTrials = 10000;

std::mt19937 generator(1);
double kept;  // results end here, so that nothing is left out

struct Data {
  Matrix records{kRecords, kItems};
  std::vector<Values> columns{kItems, Values(kRecords)};
  Matrix objects{kObjects, 10};
  Data() {
    std::normal_distribution<double> normal;
    for (int i = 0; i < kRecords; ++i) {
      const double common[] = {normal(generator), normal(generator), normal(generator)};
      for (int j = 0; j < kItems; ++j) {
        const double x = 50 + std::round(10 * common[j % 3] + 10 * normal(generator));
        records(i, j) = columns[static_cast<std::size_t>(j)][static_cast<std::size_t>(i)] = x;
        if (i < kObjects && j < 10) objects(i, j) = x / 10;
      }
    }
  }
};

std::vector<int> groups(std::size_t n, std::size_t step, std::size_t levels) {
  std::vector<int> result;
  for (std::size_t i = 0; i < n; ++i) result.push_back(static_cast<int>(i / step % levels) + 1);
  return result;
}

double milliseconds(const std::function<void()>& run) {
  double best = 1e9;
  for (int i = 0; i < 5; ++i) {
    const double start = cpuSeconds();
    run();
    best = std::min(best, (cpuSeconds() - start) * 1000);
  }
  return best;
}

// Wall milliseconds of a session of R on the same records; 0 where there is no R.
double inR(const std::string& file, const std::string& expression) {
  const std::string command = "Rscript -e \"v <- as.matrix(read.table('" + file + "')); o <- v[1:200, 1:10] / 10; " +
                              expression + "\" >/dev/null 2>&1";
  const double start = wallSeconds();
  return std::system(command.c_str()) == 0 ? (wallSeconds() - start) * 1000 : 0;
}

struct Job {
  const char* name;
  double limit;  // milliseconds
  std::function<void(const Data&)> run;
  const char* r;
};

void factorAnalysis(const Data& data) {
  const Covariance basics = var(data.records);
  FactorExtraction extraction(basics.correlation, smc(basics.correlation), 3);
  for (int i = 0; i < 10 && !extraction.cycle(0.001); ++i) {
  }
  Varimax rotation(extraction.loadings(), extraction.communalities());
  while (!rotation.cycle(0.00001)) {
  }
  kept = factorScores(data.records, basics, scoreWeights(basics.correlation, rotation.loadings()))(0, 0);
}

void clusterAnalysis(const Data& data) {
  Clustering clustering(stYuk(data.objects), Linkage::ward, 0);
  clustering.clustring();
  kept = dendrogram(kObjects, clustering.merges()).joints.back().level;
}

const Job kJobs[] = {
    {"distribution,15000", 50,
     [](const Data& d) {
       const std::span<const double> all = std::span(d.records.cells).first(15000);
       kept = shapeOf(all, classCounts(all, classEdges(0, 100, 15))).skew;
     },
     "hist(v[1:500,], plot = FALSE); summary(c(v[1:500,]))"},
    {"frequencies", 20,
     [](const Data& d) {
       std::vector<std::u16string> texts;
       for (const double x : d.columns[0])
         texts.push_back(std::u16string(8, static_cast<char16_t>(u'0' + static_cast<int>(x) % 60)));
       kept = static_cast<double>(frequencies(texts).listed.size());
     },
     "table(v[,1])"},
    {"Pearson, 30 x 30", 20,
     [](const Data& d) {
       for (const Values& x : d.columns) {
         for (const Values& y : d.columns) kept = pearson(x, y, true).r;
       }
     },
     "cor(v)"},
    {"Spearman, a pair", 20, [](const Data& d) { kept = spearman(d.columns[0], d.columns[1]).consistency; },
     "cor(v[,1], v[,2], method = 'spearman')"},
    {"cross table", 20,
     [](const Data& d) {
       Values few = d.columns[0], many = d.columns[1];
       for (double& x : few) x = std::floor(std::clamp(x, 10.0, 59.0) / 10);
       for (double& x : many) x = std::floor(std::clamp(x, 10.0, 99.0) / 10);
       const CrossTable table = crossTable(few, many);
       kept = crossTest(table).chi + cellTest(table, 1, 1).chi;
     },
     "chisq.test(table(v[,1] %/% 10, v[,2] %/% 10))"},
    {"factors, 30 items", 50, factorAnalysis,
     "f <- eigen(cor(v))[[2]][,1:3]; varimax(f); scale(v) %*% solve(cor(v), f)"},
    {"clusters, 200", 100, clusterAnalysis, "hclust(dist(scale(o))^2, 'ward.D')"},
    {"one-way, 30 x 600", 20,
     [](const Data& d) {
       std::vector<Values> columns = d.columns;
       for (Values& column : columns) column.resize(600);
       kept = oneWay(columns).between.f;
     },
     "x <- v[1:600,]; anova(lm(x[TRUE] ~ factor(col(x))))"},
    {"two-way, 1000 x 4", 20,
     [](const Data& d) {
       Matrix four(kRecords, 4);
       for (int i = 0; i < kRecords * 4; ++i) four.cells[static_cast<std::size_t>(i)] = d.records(i / 4, i % 4);
       kept = twoWay(four).a.f + twoWayCells(d.columns[0], groups(1000, 1, 5), groups(1000, 5, 20)).ab.f;
     },
     "x <- v[,1:4]; anova(lm(v[,1] ~ factor(rep(1:5, 200)) * factor(rep(1:20, each = 5, 10))))"},
    {"three-way, 600", 20,
     [](const Data& d) {
       const std::span<const double> y = std::span(d.columns[0]).first(600);
       kept = threeWayReplicated(y, groups(600, 1, 3), groups(600, 3, 4), groups(600, 12, 5)).abc.f;
     },
     "anova(lm(v[1:600,1] ~ gl(3, 1, 600) * gl(4, 3, 600) * gl(5, 12, 600)))"},
    {"U test, 500 + 500", 20,
     [](const Data& d) { kept = uTest(std::span(d.columns[0]).first(500), std::span(d.columns[0]).last(500)).cr; },
     "wilcox.test(v[1:500,1], v[501:1000,1])"},
};

void analyses(const Data& data) {
  const std::string file = "/tmp/bench_numbers.txt";
  std::ofstream out(file);
  for (int i = 0; i < kRecords; ++i) {
    for (const double x : data.records.row(i)) out << x << ' ';
    out << '\n';
  }
  out.close();
  for (const Job& job : kJobs) {
    const double time = milliseconds([&] { job.run(data); });
    std::printf("%-18s %8.3f ms, ratio to the limit %.3f; a session of R %.0f ms\n", job.name, time, time / job.limit,
                inR(file, job.r));
  }
  std::remove(file.c_str());
}

// The loops that a plain program has: no class, no callable, the generator itself.
int plainFourfold(int n) {
  int hits = 0;
  for (int trial = 0; trial < kTrials; ++trial) {
    int cells[4] = {};
    for (int i = 0; i < n; ++i) ++cells[generator() >> 30];
    const double a = cells[0], b = cells[1], c = cells[2], d = cells[3];
    hits += n * (a * d - b * c) * (a * d - b * c) / ((a + b) * (a + c) * (b + d) * (c + d)) > 1.5;
  }
  return hits;
}

int plainTable(int rows, int columns, int n) {
  int hits = 0;
  for (int trial = 0; trial < kTrials; ++trial) {
    int cells[100] = {};
    double rowSums[10] = {}, columnSums[10] = {}, sum = 0;
    for (int i = 0; i < n; ++i) ++cells[(generator() >> 8) * static_cast<std::uint64_t>(rows * columns) >> 24];
    for (int i = 0; i < rows * columns; ++i) {
      rowSums[i / columns] += cells[i];
      columnSums[i % columns] += cells[i];
    }
    for (int i = 0; i < rows * columns; ++i)
      sum += cells[i] * cells[i] / (rowSums[i / columns] * columnSums[i % columns]);
    hits += n * std::abs(sum - 1) > 20;
  }
  return hits;
}

int plainShuffles(Values values) {
  int higher = 0;
  for (int trial = 0; trial < kTrials; ++trial) {
    for (std::size_t k = values.size(); k >= 1; --k) {
      std::swap(values[(generator() >> 8) * static_cast<std::uint64_t>(k) >> 24], values[k - 1]);
    }
    double sum = 0;
    for (std::size_t i = 0; i < 500; ++i) sum += values[i];
    higher += sum > 25000;
  }
  return higher;
}

void beside(const char* name, const std::function<void()>& ours, const std::function<void()>& plain) {
  const double time = milliseconds(ours), bare = milliseconds(plain);
  std::printf("%-18s %8.1f ms, a plain loop %.1f ms, ratio %.2f (limit 2)\n", name, time, bare, time / bare);
}

void simulations(const Data& data) {
  const RandomBits bits = [] { return static_cast<std::uint32_t>(generator()); };
  const std::span<const double> all(data.columns[0]);
  beside(
      "2 x 2, N 1000",
      [&] {
        FourfoldTrials trials({250, 250, 250, 250}, 1.5f);
        for (int i = 0; i < kTrials; ++i) trials.once(bits);
        kept = trials.hits();
      },
      [] { kept = plainFourfold(1000); });
  beside(
      "5 x 4, N 1000",
      [&] {
        ContingencyTrials trials({5, 4, std::vector<int>(20, 50)}, 20);
        for (int i = 0; i < kTrials; ++i) trials.once(bits);
        kept = trials.hits();
      },
      [] { kept = plainTable(5, 4, 1000); });
  beside(
      "reassign, 1000",
      [&] {
        Reassignment reassignment(all.first(500), all.last(500));
        for (int i = 0; i < kTrials; ++i) reassignment.once(bits);
        kept = reassignment.higher();
      },
      [&] { kept = plainShuffles(data.columns[0]); });
}

}  // namespace

int main() {
  const Data data;
  analyses(data);
  simulations(data);
}
