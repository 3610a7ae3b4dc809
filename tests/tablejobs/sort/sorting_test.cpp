#include <doctest/doctest.h>

#include <algorithm>

#include "platform/fault.h"
#include "platform/files/ownedfile.h"
#include "store/records/appender.h"
#include "tablejobs/randomtable.h"
#include "tablejobs/sort/otherfilesort.h"
#include "tablejobs/sort/sorting.h"
#include "tablejobs/sort/sorttable.h"
#include "voice/progress.h"

namespace zelko::test {
namespace {

using Records = std::vector<std::string>;

Records cut(const std::string& bytes) {
  Records records;
  for (std::size_t at = 0; at < bytes.size(); at += recLen) records.push_back(bytes.substr(at, recLen));
  return records;
}

// The runs of each further key, sorted by the library.
void sortStupidly(Records& records, const std::vector<int>& widths, int first, int last,
                  const std::vector<SortKey>& keys) {
  const auto key = [&](const std::string& record, int item) { return cellOf(record, widths, item); };
  for (std::size_t k = 0; k < keys.size(); ++k) {
    for (int start = first; start <= last;) {
      int end = start;
      const auto sameRun = [&](int at) {
        return k == 0 || trimmed(key(records[static_cast<std::size_t>(at)], keys[k - 1].item)) ==
                             trimmed(key(records[static_cast<std::size_t>(start)], keys[k - 1].item));
      };
      while (end < last && sameRun(end + 1)) ++end;
      std::stable_sort(records.begin() + start, records.begin() + end + 1, [&](const auto& a, const auto& b) {
        const Text left = key(a, keys[k].item), right = key(b, keys[k].item);
        return keys[k].ascending ? left < right : right < left;
      });
      start = end + 1;
    }
  }
}

// What does not depend on the order of equal keys: the values of the last key in their order.
std::vector<Text> valuesOf(const Records& records, const std::vector<int>& widths, int item) {
  std::vector<Text> values;
  for (const std::string& record : records) values.push_back(cellOf(record, widths, item));
  return values;
}

Records sorted(Records records) {
  std::ranges::sort(records);
  return records;
}

// Record by record, as it is told: the first one that matches goes, a key without one is a blank record.
Records orderStupidly(Records records, const Records& order, const std::vector<int>& widths,
                      const std::vector<int>& orderWidths, const OtherFileOrder& job) {
  const auto keyOf = [&](const std::string& record, const std::vector<int>& cells, int item) {
    const Text key = trimmed(cellOf(record, cells, item));
    return job.caseCounts ? key : upperCase(key);
  };
  const std::string blank = record("");
  const auto begin = records.begin() + job.span.first - 1, end = records.begin() + job.span.last;
  Records made(records.begin(), begin);
  for (const std::string& listed : order) {
    const Text key = keyOf(listed, orderWidths, job.orderItem);
    if (key.empty()) continue;
    const auto found =
        std::find_if(begin, end, [&](const auto& record) { return keyOf(record, widths, job.item) == key; });
    made.push_back(found == end ? blank : *found);
    if (found != end) *found = blank;
  }
  std::copy_if(begin, end, std::back_inserter(made), [&](const auto& record) { return record != blank; });
  made.insert(made.end(), end, records.end());
  return made;
}

TEST_CASE("Sorts by chance against a second program") {
  const StoreFixture store;
  const auto goesOn = [] { return true; };
  for (int run = 0; run < runsOf(150); ++run) {
    CAPTURE(run);
    RandomTable made(static_cast<unsigned>(run));
    made.makeItems(30);
    const std::string bytes = made.records(made.below(41));
    Records expected = cut(bytes);
    const int count = static_cast<int>(expected.size());
    made.write(store, "t.txt", bytes);
    REQUIRE(store.open("t.txt"));
    const int first = made.below(count + 1), last = first + made.below(count - first + 1) - 1;
    std::vector<SortKey> keys;
    for (int key = 0; key <= made.below(3); ++key)
      keys.push_back({made.below(static_cast<int>(made.widths.size())), made.below(2) == 0});

    RecordAppender output;
    REQUIRE(output.create(store.name("out.txt")) == FileError::none);
    REQUIRE(sortInto(output, first + 1, last + 1, keys, goesOn) == JobEnd::done);
    CHECK(store.bytes("t.txt") == bytes);
    REQUIRE(output.finish());
    REQUIRE(sortInPlace(first + 1, last + 1, keys, goesOn) == JobEnd::done);
    const Records done = cut(store.bytes("t.txt"));
    sortStupidly(expected, made.widths, first, last, keys);
    CHECK(valuesOf(done, made.widths, keys.back().item) == valuesOf(expected, made.widths, keys.back().item));
    CHECK(sorted(done) == sorted(expected));
    CHECK(std::equal(done.begin(), done.begin() + first, expected.begin()));
    const Records range(expected.begin() + first, expected.begin() + (last + 1));
    CHECK(sorted(cut(store.bytes("out.txt"))) == sorted(range));
    CHECK(valuesOf(cut(store.bytes("out.txt")), made.widths, keys.back().item) ==
          valuesOf(range, made.widths, keys.back().item));
    output.takeBack();
  }
}

TEST_CASE("Orders by another file against a second program") {
  const StoreFixture store;
  for (int run = 0; run < runsOf(150); ++run) {
    CAPTURE(run);
    RandomTable made(static_cast<unsigned>(run)), other(static_cast<unsigned>(run + 1000000));
    made.makeItems(30);
    other.makeItems(4);
    const std::string bytes = made.records(1 + made.below(40)), order = other.records(other.below(41));
    made.write(store, "t.txt", bytes);
    other.write(store, "o.txt", order);
    REQUIRE(store.open("t.txt"));
    Text error;
    readKFileOther(store.name("o.txt"), {}, error);
    OwnedFile file;
    REQUIRE(file.openToRead(store.name("o.txt"), recLen) == FileError::none);
    OtherFileOrder job{file.number(),
                       other.below(static_cast<int>(other.widths.size())),
                       made.below(static_cast<int>(made.widths.size())),
                       {},
                       made.below(2) == 0};
    const int count = recCount();
    job.span.first = 1 + made.below(count);
    job.span.last = job.span.first + made.below(count - job.span.first + 1);
    OtherOrder counts;
    Progress progress(u"", stepsOfOrder(job));
    REQUIRE(sortAsListed(job, progress, counts) == JobEnd::done);
    const Records expected = orderStupidly(cut(bytes), cut(order), made.widths, other.widths, job);
    CHECK(cut(store.bytes("t.txt")) == expected);
    CHECK(counts.found + counts.notFound + counts.kept + count - job.span.count() == recCount());
  }
}

TEST_CASE("A sort that is stopped leaves every record once, and no work file") {
  const StoreFixture store;
  RandomTable made(7);
  made.widths = {4};
  const std::string bytes = made.records(2000);
  made.write(store, "t.txt", bytes);
  REQUIRE(store.open("t.txt"));
  int left = 20;
  CHECK(makeSafetyCopy([&] { return left-- > 0; }) == JobEnd::done);
  CHECK(sortInPlace(1, 2000, {{0, true}}, [&] { return left-- > 0; }) == JobEnd::stopped);
  CHECK(store.bytes("zlk.$$$") == bytes);
  CHECK(store.bytes("t.txt") != bytes);
  CHECK(sorted(cut(store.bytes("t.txt"))) == sorted(cut(bytes)));
  CHECK(store.files() == std::vector<std::string>{"Kt.txt", "t.txt", "zlk.$$$"});
}

TEST_CASE("A range that ends beyond a 16-bit position is a fault before a byte changes") {
  const StoreFixture store;
  RandomTable made(8);
  made.widths = {2};
  const std::string bytes = made.records(32769);
  made.write(store, "t.txt", bytes);
  REQUIRE(store.open("t.txt"));
  const auto goesOn = [] { return true; };
  CHECK_THROWS_AS(sortInPlace(32000, 32768, {{0, true}}, goesOn), Fault);
  CHECK(store.bytes("t.txt") == bytes);
  CHECK(sortInPlace(1, 32767, {{0, false}}, goesOn) == JobEnd::done);
  CHECK(sortInPlace(32768, 32769, {{0, true}}, goesOn) == JobEnd::done);  // two records need no position
}

TEST_CASE("The table of sort keys is checked row by row") {
  itemCount = 12;
  std::vector<SortKey> keys;
  const auto check = [&](std::vector<SortRow> rows) { return checkSortTable(rows, keys).message; };
  CHECK(check({{u"", u""}}) == u"キー項目無記入");
  CHECK(check({{u"1", u"A"}, {u"", u"D"}}) == u"キー項目無記入");
  CHECK(check({{u"1", u"A"}, {u"", u""}, {u"2", u"D"}}) == u"キー項目無記入");
  CHECK(check({{u"-1", u"A"}}) == u"キー項目数字以外使用");
  CHECK(check({{u"13", u"A"}}) == u"無い項目番号を指定");
  CHECK(check({{u"99999999999", u"A"}}) == u"無い項目番号を指定");
  CHECK(check({{u"1", u"B"}}) == u"A D 以外の記入");
  REQUIRE(check({{u"１２", u"d"}, {u"0", u"Ａ"}, {u" ", u""}}).empty());
  REQUIRE(keys.size() == 2);
  CHECK((keys[0].item == 12 && !keys[0].ascending && keys[1].item == 0 && keys[1].ascending));
}

}  // namespace
}  // namespace zelko::test
