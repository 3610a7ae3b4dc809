// The walk over records and the appender, each beside a plain vector of records.
#include "store/records/walk.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <random>

#include "platform/fault.h"
#include "platform/files/files.h"
#include "store/records/appender.h"
#include "store/store_fixture.h"
#include "store/store_host.h"

using namespace zelko;
using namespace zelko::test;

namespace {

using Records = std::vector<std::string>;

std::string joined(const Records& records) {
  std::string all;
  for (const std::string& cells : records) all += record(cells);
  return all;
}

Records numbered(int count) {
  Records records;
  for (int i = 1; i <= count; ++i) records.push_back(std::to_string(i));
  for (std::string& cells : records) cells.resize(6, ' ');
  return records;
}

}  // namespace

TEST_CASE("walks of every length and direction visit, change and lengthen like a vector of records") {
  StoreFixture store;
  store.table("t.txt", {6, 3, 3}, {}, {2});
  std::mt19937 random(7);
  const auto any = [&random](int below) { return static_cast<int>(random() % static_cast<unsigned>(below)); };
  for (int round = 0; round < 60; ++round) {
    CAPTURE(round);
    const int count = any(3) == 0 ? any(5) : any(3000);
    Records model = numbered(count);
    store.write("t.txt", joined(model) + std::string(static_cast<std::size_t>(any(3)), 't'));
    REQUIRE(store.open("t.txt"));
    const Walk walk{.first = any(count + 1) + 1, .last = any(count + 40), .towardsHead = any(3) == 0};
    const bool lengthens = !walk.towardsHead && any(2) == 0 && walk.first <= count + 1;
    const int last = lengthens ? walk.last : std::min(walk.last, count), every = any(9) + 1;
    std::vector<int> visited, expected;
    for (int number = walk.first; number <= last; ++number) expected.push_back(number);
    if (walk.towardsHead) std::reverse(expected.begin(), expected.end());
    Walk changing = walk;
    changing.lengthens = lengthens;
    const WalkEnd end = changeRecords(changing, [&](ChangedRecord& it) {
      visited.push_back(it.number());
      if (it.number() % every == 0) it.setCell(2, it.number() % 2 ? u"東" : u"7");
      if (any(500) == 0) CHECK(it.store());
      return true;
    });
    CHECK(end == WalkEnd::done);
    CHECK(visited == expected);
    for (const int number : expected) {
      if (number > static_cast<int>(model.size())) model.resize(static_cast<std::size_t>(number), "");
      if (number % every) continue;
      std::string& cells = model[static_cast<std::size_t>(number - 1)];
      cells.resize(9, ' ');
      cells += number % 2 ? " \x93\x8c" : "  7";
    }
    const std::string bytes = store.bytes("t.txt");
    CHECK(bytes.substr(0, model.size() * 256) == joined(model));
    visited.clear();
    CHECK(walkRecords(walk, [&](const WalkedRecord& it) {
            visited.push_back(it.number());
            CHECK(it.data() == record(model[static_cast<std::size_t>(it.number() - 1)]).substr(0, 254));
            return it.number() != walk.first + 20;
          }) == (static_cast<int>(expected.size()) > 20 ? WalkEnd::left : WalkEnd::done));
  }
}

TEST_CASE("what a walk changed is on the disk before events run, before a question, and where the callback faults") {
  StoreFixture store;
  store.table("t.txt", {6}, numbered(100));
  REQUIRE(store.open("t.txt"));
  const auto mark = [](ChangedRecord& it) { it.setCell(0, u"x"); };
  int passes = 0;
  duringEvents([&] {
    const std::string bytes = store.bytes("t.txt");
    CHECK(std::count(bytes.begin(), bytes.end(), 'x') == passes++);
  });
  CHECK(changeRecords({.last = 100}, [&](ChangedRecord& it) {
          mark(it);
          return true;
        }) == WalkEnd::done);
  duringEvents({});
  CHECK_THROWS_AS(changeRecords({.last = 100},
                                [&](ChangedRecord& it) {
                                  it.setCell(0, u"y");
                                  if (it.number() == 50) throw Fault{kOverflow};
                                  return true;
                                }),
                  Fault);
  const std::string bytes = store.bytes("t.txt");
  CHECK(std::count(bytes.begin(), bytes.end(), 'y') == 50);
}

TEST_CASE("what another program writes beside the changed cells of a walk stays") {
  StoreFixture store;
  store.table("t.txt", {6, 3}, numbered(20));
  REQUIRE(store.open("t.txt"));
  CHECK(changeRecords({.last = 20}, [&](ChangedRecord& it) {
          if (it.number() == 5) {
            std::string bytes = store.bytes("t.txt");
            bytes.replace(4 * 256 + 6, 3, "OTH");
            store.write("t.txt", bytes);
          }
          it.setCell(0, u"mine");
          return true;
        }) == WalkEnd::done);
  CHECK(store.bytes("t.txt").substr(4 * 256, 9) == "mine  OTH");
}

TEST_CASE("a walk that cannot write tells it once, and leaves whole records") {
  StoreFixture store;
  store.table("t.txt", {6}, numbered(30));
  REQUIRE(store.open("t.txt"));
  const auto change = [](ChangedRecord& it) {
    it.setCell(0, u"new");
    return true;
  };
  SUBCASE("read-only") {
    setReadOnly(store.name("t.txt"), true);
    CHECK(changeRecords({.last = 30}, change) == WalkEnd::failed);
    CHECK(store.dialogs().size() == 1);
    CHECK(store.bytes("t.txt") == joined(numbered(30)));
  }
  SUBCASE("a full disk") {
    const FullDisk full(40 * 256 + 100);
    CHECK(changeRecords({.first = 31, .last = 60, .lengthens = true}, change) == WalkEnd::failed);
    CHECK(store.dialogs().size() == 1);
    CHECK(store.bytes("t.txt") == joined(numbered(30)) + joined(Records(10, "new")));
  }
}

TEST_CASE("an appender takes back exactly what it wrote") {
  StoreFixture store;
  const std::string before = record("one") + "a short tail";
  struct Row {
    const char* story;
    bool there;
    std::size_t room;  // bytes that the disk takes
    int records;
    bool keeps;
  };
  for (const Row& row :
       {Row{"behind records, kept", true, 1 << 24, 3000, true},
        Row{"behind records, given up", true, 1 << 24, 3000, false},
        Row{"behind records, the disk full", true, 300000, 3000, true},
        Row{"behind records, full at once", true, 300, 2, true}, Row{"a new file, kept", false, 1 << 24, 2, true},
        Row{"a new file, given up", false, 1 << 24, 3000, false},
        Row{"a new file, the disk full", false, 300, 2, true}}) {
    CAPTURE(row.story);
    std::filesystem::remove(store.path("out.txt"));
    if (row.there) store.write("out.txt", before);
    bool whole = true;
    {
      const FullDisk full(row.room);
      RecordAppender output;
      REQUIRE(output.open(store.name("out.txt")) == FileError::none);
      for (int i = 0; i < row.records; ++i) whole = output.append("new") && whole;
      whole = output.finish() && whole;
      if (whole && row.keeps) output.keep();
    }
    CHECK(whole == (row.room > 1 << 20));
    const std::string kept =
        (row.there ? record("one") : "") + joined(Records(static_cast<std::size_t>(row.records), "new"));
    if (whole && row.keeps)
      CHECK(store.bytes("out.txt") == kept);
    else
      CHECK(store.bytes("out.txt") == (row.there ? before : ""));
    CHECK(std::filesystem::exists(store.path("out.txt")) == (row.there || (whole && row.keeps)));
  }
  store.write("out.txt", before);
  CHECK(RecordAppender().create(store.name("out.txt")) == FileError::alreadyExists);
}
