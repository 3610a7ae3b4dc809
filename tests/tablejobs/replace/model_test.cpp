// Replacement and conversion against a stupid second program: random tables, broken characters among them, all bytes
// and counts compared.
#include <doctest/doctest.h>

#include <cstdlib>
#include <random>

#include "fixture.h"
#include "platform/text/number.h"
#include "platform/text/sjis.h"
#include "store/table/itemfile.h"
#include "tablejobs/replace/cellrun.h"
#include "tablejobs/replace/conversions.h"
#include "tablejobs/replace/replacing.h"

using namespace zelko;

namespace {

using Random = std::mt19937;

int upTo(Random& random, int highest) { return std::uniform_int_distribution(0, highest)(random); }

std::string someBytes(Random& random, int pieces) {
  static const char* const kPieces[] = {"a",        "A",    "b",        "ab",       " ",    "  ",   "1",       "-",
                                        "\x83\x80", "\xd1", "\x82\x60", "\x83\x5c", "\x5c", "\x81", "\xee\xe0"};
  std::string bytes;
  for (int i = upTo(random, pieces); i > 0; --i) bytes += kPieces[upTo(random, std::size(kPieces) - 1)];
  return bytes;
}

struct Table {
  std::vector<int> widths, right;
  std::vector<std::string> records;
};

Table someTable(Random& random) {
  Table table;
  for (int i = upTo(random, 7); i >= 0; --i) table.widths.push_back(1 + upTo(random, 11));
  for (int i = 0; i < static_cast<int>(table.widths.size()); ++i) {
    if (upTo(random, 2) == 0) table.right.push_back(i);
  }
  for (int r = upTo(random, 12); r > 0; --r) table.records.push_back(someBytes(random, 60).substr(0, 100));
  return table;
}

// The second program: strings, no blocks, no shapes.
struct Second {
  bool right(int item) const { return std::count(table.right.begin(), table.right.end(), item) != 0; }

  // `change` as the first program has it; the number of cells that it changed.
  int run(int first, int last, const std::vector<int>& items,
          const std::function<std::optional<std::string>(std::string_view)>& change) {
    int changed = 0;
    for (int r = first; r <= last; ++r) {
      for (int item : items) changed += cell(whole[static_cast<std::size_t>(r - 1)], item, change) ? 1 : 0;
    }
    return changed;
  }

  bool cell(std::string& record, int item, const std::function<std::optional<std::string>(std::string_view)>& change) {
    std::size_t start = 0, width = static_cast<std::size_t>(table.widths[static_cast<std::size_t>(item)]);
    for (int i = 0; i < item; ++i) start += static_cast<std::size_t>(table.widths[static_cast<std::size_t>(i)]);
    std::string old = record.substr(start, width);
    while (!old.empty() && old.back() == ' ') old.pop_back();
    while (right(item) && !old.empty() && old.front() == ' ') old.erase(0, 1);
    auto now = change(old);
    if (!now) return false;
    while (now->size() > width) now->erase(right(item) ? 0 : now->size() - 1, 1);
    while (now->size() < width) now->insert(right(item) ? 0 : now->size(), 1, ' ');
    record.replace(start, width, *now);
    if (item + 1 == static_cast<int>(table.widths.size()))
      record.replace(start + width, 254 - start - width, 254 - start - width, ' ');
    return true;
  }

  const Table& table;
  std::vector<std::string> whole;
};

std::string joined(const std::vector<std::string>& records) {
  std::string all;
  for (const std::string& record : records) all += record;
  return all;
}

void write(Fixture& fixture, const Table& table, const std::string& bytes) {
  std::vector<ItemOfTable> items;
  for (std::size_t i = 0; i < table.widths.size(); ++i) {
    const bool right = std::count(table.right.begin(), table.right.end(), static_cast<int>(i)) != 0;
    items.push_back({decimal(static_cast<int>(i)), table.widths[i], right ? u'R' : u'L'});
  }
  fixture.makeTable(u"t", items, {});
  writeBytes(fixture.folder() / "t.txt", bytes);
}

}  // namespace

TEST_CASE("replace: runs over random tables do what a stupid second program does") {
  const char* wanted = std::getenv("ZELKO_RUNS");
  Fixture fixture;
  for (int run = 0; run < (wanted ? std::atoi(wanted) : 300); ++run) {
    CAPTURE(run);
    Random random(static_cast<unsigned>(run));
    const Table table = someTable(random);
    Second second{table, {}};
    for (std::string bytes : table.records) {
      bytes.resize(254, ' ');
      second.whole.push_back(bytes + "\r\n");
    }
    write(fixture, table, joined(second.whole));

    const ReplaceRule rule{.search = fromSjis(someBytes(random, 2)),
                           .with = fromSjis(someBytes(random, 3)),
                           .equal = upTo(random, 3) == 0,
                           .caseCounts = upTo(random, 1) == 0,
                           .wholeCell = upTo(random, 3) == 0};
    const Conversions kinds{.removeBlanks = upTo(random, 1) == 0,
                            .upperCase = upTo(random, 1) == 0,
                            .fullWidth = upTo(random, 1) == 0,
                            .fullKana = upTo(random, 1) == 0,
                            .halfKana = upTo(random, 1) == 0};
    const bool converts = upTo(random, 1) == 0;
    CellRun job;
    job.change = [&](std::string_view cell) -> std::optional<std::string> {
      const Text old = fromSjis(cell);
      if (converts) return converted(kinds, old) == old ? std::nullopt : std::optional(toSjis(converted(kinds, old)));
      return isHit(rule, trimmed(old)) ? std::optional(replaceCell(rule, cell)) : std::nullopt;
    };
    const int count = static_cast<int>(table.records.size());
    const int first = 1 + upTo(random, std::max(count - 1, 0)), last = upTo(random, count);
    for (int i = upTo(random, static_cast<int>(table.widths.size()) - 1); i >= 0; --i)
      job.scope.items.insert(job.scope.items.begin(), i);
    job.scope.first = first;
    job.scope.last = last;
    job.scope.backward = upTo(random, 1) == 0;

    CellRunResult result;
    Text error;
    fixture.run([&] {
      openTable(fromUtf8((fixture.folder() / "t.txt").string()), error);
      result = runOverCells(job);
    });
    CHECK(error.empty());
    const int changed = second.run(first, last, job.scope.items, job.change);
    CHECK(result.changed == changed);
    CHECK_FALSE(result.failed);
    REQUIRE(readBytes(fixture.folder() / "t.txt") == joined(second.whole));
  }
}
