// Rounds over random tables, beside a program that looks at every cell in its order.
#include <doctest/doctest.h>

#include <random>
#include <set>

#include "platform/text/sjis.h"
#include "store/store_fixture.h"
#include "tablejobs/randomtable.h"
#include "tablejobs/search/search.h"

using namespace zelko;
using namespace zelko::test;

namespace {

std::mt19937 random_;
int any(int below) { return static_cast<int>(random_() % static_cast<unsigned>(below)); }

std::string anyBytes(int most) {
  constexpr std::string_view kPieces[] = {" ", "a", "A", "\x83\x5C", "\\", "\xB1", "\x83\x41", "\x93\x8C", "\x81", "1"};
  std::string out;
  while (static_cast<int>(out.size()) < most) out += kPieces[any(std::size(kPieces))];
  return out.substr(0, static_cast<std::size_t>(most));
}

// All cells of the table from the one behind the cursor round to the cursor's, and of them those that hit.
std::vector<CellAt> hitsInOrder(const SearchSettings& settings, int count, const std::string& file) {
  std::vector<CellAt> hits;
  CellAt at = {curRec, curItem};
  for (int left = settings.way.allItems ? count * (itemCount + 1) : count; left > 0; --left) {
    at = steppedOff(at, settings.way, count);
    const auto item = static_cast<std::size_t>(settings.way.allItems ? at.item : settings.way.item);
    const std::size_t from =
        static_cast<std::size_t>(at.record - 1) * 256 + static_cast<std::size_t>(itemStart[item] - 1);
    Text cell = trimmed(fromSjis(file.substr(from, static_cast<std::size_t>(itemWidth[item]))));
    Text what = settings.terms.what;
    if (!settings.terms.spelling.caseCounts) cell = upperCase(cell), what = upperCase(what);
    const bool hit = settings.terms.whole ? cell == what : cell.find(what) != Text::npos;
    if (hit) hits.push_back({at.record, static_cast<std::int16_t>(item)});
  }
  return hits;
}

}  // namespace

TEST_CASE("a round finds every cell that a look at all of them finds, in its order, and ends where it began") {
  random_.seed(doctest::getContextOptions()->rand_seed);  // -rs=N: other tables
  StoreFixture store;
  std::size_t found = 0;
  const int rounds = runsOf(2500);
  for (int round = 0; round < rounds; ++round) {
    CAPTURE(round);
    const int items = any(30) + 1, count = any(40) + 1;
    std::vector<int> widths;
    for (int i = 0; i < items; ++i) widths.push_back(any(8) + 1);
    std::vector<std::string> records;
    for (int i = 0; i < count; ++i) records.push_back(anyBytes(254));
    store.table("t.txt", widths, records);
    REQUIRE(store.open("t.txt"));
    SearchSettings settings;
    settings.terms = {trimmed(fromSjis(anyBytes(any(3) + 1))), any(3) == 0, {any(2) == 0, false}};
    settings.way = {any(2) == 0, static_cast<std::int16_t>(any(items)), any(2) == 0};
    curRec = any(count) + 1;
    curItem = static_cast<std::int16_t>(any(items));
    const std::vector<CellAt> expected = hitsInOrder(settings, count, store.bytes("t.txt"));
    const CellAt start = {curRec, curItem};
    SearchRound search;
    std::vector<CellAt> hits;
    for (;;) {
      const Scan scan = search.next(settings, {}, [](CellAt) { return true; });
      if (scan.end == ScanEnd::cameRound) CHECK(scan.at == start);
      if (scan.end != ScanEnd::hit) break;
      hits.push_back(scan.at);
      curRec = scan.at.record;
      curItem = scan.at.item;
      if (!search.isOpen()) break;  // the start cell itself
    }
    CHECK(hits == expected);
    found += hits.size();
    const auto inOrder = std::set<CellAt>(expected.begin(), expected.end());
    const HitCount counted = countCells(Matcher(settings.terms), settings.way, {curRec, curItem}, {});
    CHECK(counted.all == static_cast<std::int64_t>(inOrder.size()));
    CHECK(counted.before == std::distance(inOrder.begin(), inOrder.lower_bound({curRec, curItem})));
  }
  CHECK(found > 8 * static_cast<std::size_t>(rounds));
}
