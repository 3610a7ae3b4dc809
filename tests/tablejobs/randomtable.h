// Small tables of cells that are easily damaged, made by chance, and how many of them a test goes through.
#pragma once

#include <random>

#include "store/store_fixture.h"

namespace zelko::test {

// ZELKO_RUNS in the environment, else `usual`.
int runsOf(int usual);

class RandomTable {
 public:
  explicit RandomTable(unsigned seed) : chance_(seed) {}

  int below(int limit) { return static_cast<int>(chance_() % static_cast<unsigned>(limit)); }
  // 1 to `most` items with widths that fit into a record, some of them right-justified.
  void makeItems(int most);
  // Blanks, digits, both widths, half characters, quotes and commas; few of them, so that many are equal.
  std::string cell(int width);
  std::string records(int count);
  // A table of that name beside the others.
  void write(const StoreFixture& store, std::string_view file, const std::string& records) const;

  std::vector<int> widths, right;

 private:
  std::mt19937 chance_;
};

// The cell of a record as the program shows it, by another way.
Text cellOf(const std::string& record, const std::vector<int>& widths, int item);

}  // namespace zelko::test
