// All rewrites against a store of another make, in memory and on disk.
#include "store/rewrite/rewrite.h"

#include <doctest/doctest.h>

#include <cstring>
#include <random>

#include "platform/files/files.h"
#include "store/rewrite/rewrite_model.h"
#include "store/store_fixture.h"

using namespace zelko;
using namespace zelko::test;

namespace {

bool always(std::int64_t) { return true; }

// The engine over a string.
struct InMemory {
  std::string bytes;
  std::vector<ItemLine> items;

  void apply(const Operation& op) {
    const Task task = taskOf(op, items, static_cast<std::int32_t>(bytes.size() / 256));
    std::string made;
    const auto read = [this](std::int64_t first, std::size_t count, char* out) {
      return bytes.copy(out, count * 256, static_cast<std::size_t>(first) * 256) == count * 256;
    };
    const auto write = [&made](std::string_view records) {
      made += records;
      return true;
    };
    REQUIRE(rewriteRecords(task.plan, read, write, always) == RewriteEnd::done);
    bytes = made;
    items = task.items;
  }
};

// The engine over the open table.
struct OnDisk {
  const StoreFixture& store;

  void apply(const Operation& op) {
    const Task task = taskOf(op, itemsOnDisk(), recCount());
    REQUIRE(rewriteTable(task.plan, task.itemsChange ? &task.items : nullptr, always) == RewriteEnd::done);
  }
};

void start(const StoreFixture& store, const Model& model) {
  closeAll();
  std::vector<int> widths, right;
  for (std::size_t i = 0; i < model.items.size(); ++i) {
    widths.push_back(model.items[i].width);
    if (model.items[i].alignment == u"R") right.push_back(static_cast<int>(i));
  }
  store.write("t.txt", model.bytes());
  store.write("Kt.txt", itemFileText(widths, right));
  REQUIRE(store.open("t.txt"));
}

// One check for a comparison that is made hundreds of thousands of times.
bool same(const std::vector<ItemLine>& a, const std::vector<ItemLine>& b) {
  return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](const ItemLine& x, const ItemLine& y) {
           return x.width == y.width && x.alignment == y.alignment;
         });
}

void tryAll(const Model& model, const InMemory& store, int depth) {
  if (depth == 0) return;
  for (const Operation& op : edgeOperations(model)) {
    Model wanted = model;
    InMemory got = store;
    wanted.apply(op);
    got.apply(op);
    if (got.bytes != wanted.bytes() || !same(got.items, wanted.items)) {
      FAIL_CHECK("operation " << static_cast<int>(op.what) << " at depth " << depth);
      return;
    }
    tryAll(wanted, got, depth - 1);
  }
}

Operation anyOperation(std::mt19937& random) {
  const auto below = [&random](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
  return {static_cast<What>(below(8)), below(6), below(6), below(7), below(7) - 3};
}

}  // namespace

TEST_CASE("three rewrites in a row, in every order, give what a plain store gives") {
  for (int records = 0; records <= 4; ++records) {
    for (int items = 1; items <= 4; ++items) {
      const Model model = sampleTable(records, items);
      tryAll(model, {model.bytes(), model.items}, 3);
    }
  }
}

TEST_CASE("the same on disk: data file, item file and description agree after each step, and nothing is left over") {
  StoreFixture store;
  std::mt19937 random(7);
  for (int sequence = 0; sequence < 60; ++sequence) {
    Model model = sampleTable(sequence % 5, 1 + sequence % 4);
    start(store, model);
    for (int steps = 0; steps < 30;) {
      const Operation op = anyOperation(random);
      if (!model.allows(op)) continue;
      ++steps;
      model.apply(op);
      OnDisk{store}.apply(op);
      TableDescription onDisk;
      REQUIRE(readDescription(store.name("Kt.txt"), onDisk) == ReadResult::ok);
      const bool agree = store.bytes("t.txt") == model.bytes() && same(itemsOnDisk(), model.items) &&
                         same(onDisk.items, model.items) && onDisk.memo == u"memo" &&
                         recCount() == static_cast<std::int32_t>(model.records.size());
      if (!agree) FAIL("sequence " << sequence << " step " << steps << " operation " << static_cast<int>(op.what));
    }
  }
  CHECK(store.files() == std::vector<std::string>{"Kt.txt", "t.txt"});
}

TEST_CASE("cells that reach over the line end never carry it into a record") {
  StoreFixture store;
  store.table("t.txt", {2, 250, 4}, {"ab" + std::string(250, 'm') + "yz"}, {2});
  REQUIRE(store.open("t.txt"));
  OnDisk{store}.apply({What::eraseItems, 1, 1});
  CHECK(store.bytes("t.txt") == record("ab  yz"));
  store.table("t.txt", {2, 252}, {"ab" + std::string(252, 'm')});
  REQUIRE(store.open("t.txt"));
  OnDisk{store}.apply({What::width, 0, 0, 0, 2});
  CHECK(store.bytes("t.txt") == record("ab  " + std::string(250, 'm')));
}

TEST_CASE("a stop at any record leaves the table and no work file") {
  StoreFixture store;
  const Model model = sampleTable(4, 3);
  start(store, model);
  const std::string before = store.bytes("t.txt"), items = store.bytes("Kt.txt");
  for (const Operation& op :
       {Operation{What::insert, 0, 0, 2, 3}, Operation{What::move, 0, 0, 3}, Operation{What::eraseItems, 1, 1}}) {
    const Task task = taskOf(op, itemsOnDisk(), recCount());
    for (std::int64_t at = 1; at <= recordsOf(task.plan); ++at) {
      const auto stop = [at](std::int64_t done) { return done < at; };
      CHECK(rewriteTable(task.plan, task.itemsChange ? &task.items : nullptr, stop) == RewriteEnd::stopped);
      CHECK(store.bytes("t.txt") == before);
      CHECK(store.bytes("Kt.txt") == items);
      CHECK(store.files() == std::vector<std::string>{"Kt.txt", "t.txt"});
      CHECK(recCount() == 4);
    }
  }
}

TEST_CASE("a table of many blocks is asked about at its first and last records and often enough in between") {
  StoreFixture store;
  store.table("t.txt", {5, 249}, std::vector<std::string>(20000, "12345x"));
  REQUIRE(store.open("t.txt"));
  std::vector<std::int64_t> asked;
  const auto note = [&asked](std::int64_t done) {
    asked.push_back(done);
    return true;
  };
  REQUIRE(rewriteTable({stretchesWithInserted(20000, 10001, 3), {}}, nullptr, note) == RewriteEnd::done);
  CHECK(asked.front() == 1);
  CHECK(asked.back() == 20003);
  for (std::size_t i = 1; i < asked.size(); ++i) CHECK(asked[i] - asked[i - 1] <= 256);
  const std::string half = [] {
    std::string all;
    for (int i = 0; i < 10000; ++i) all += record("12345x");
    return all;
  }();
  CHECK(store.bytes("t.txt") == half + record("") + record("") + record("") + half);
}
