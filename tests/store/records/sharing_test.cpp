// Another program on the same table: what it writes is never undone without a question, and walking writes nothing.
#include <doctest/doctest.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "store/store_fixture.h"
#include "store/table/readonly.h"

using namespace zelko;
using namespace zelko::test;

namespace {

const Text kChanged = u"他のﾌﾟﾛｸﾞﾗﾑによる変更";

// Another program, as the disk sees it: into the file, or in its place.
void elsewhere(const StoreFixture& store, const std::string& bytes, bool replaces) {
  store.write(replaces ? "new" : "t.txt", bytes);
  if (replaces) std::filesystem::rename(store.path("new"), store.path("t.txt"));
}

}  // namespace

TEST_CASE("walking alone writes nothing: no line end into a file of another shape, no other time of change") {
  StoreFixture store;
  const std::string bytes = std::string(256, 'a') + std::string(256, 'b') + std::string(256, 'c');
  store.write("t.txt", bytes);
  store.write("Kt.txt", itemFileText({6, 6}));
  const timespec long_ago[2] = {{1000, 0}, {1000, 0}};
  ::utimensat(AT_FDCWD, store.path("t.txt").c_str(), long_ago, 0);
  REQUIRE(store.open("t.txt"));
  for (curRec = 1; curRec <= 3; ++curRec) {
    loadCache(curRec);
    CHECK(flushRec());
  }
  struct stat status {};
  ::stat(store.path("t.txt").c_str(), &status);
  CHECK(status.st_mtim.tv_sec == 1000);
  CHECK(store.bytes("t.txt") == bytes);
  // Nor is what another program does to a record that the cursor stands on undone.
  curRec = 2;
  loadCache(curRec);
  store.write("t.txt", record("one") + record("theirs") + record("three"));
  CHECK(flushRec());
  CHECK(store.bytes("t.txt").substr(256, 256) == record("theirs"));
  CHECK(store.dialogs().empty());
}

TEST_CASE("a record that another program changed, or whose file it replaced, is asked about") {
  struct Row {
    const char* story;
    std::vector<std::string> theirs;
    std::int32_t record;
    std::vector<std::string> ours;  // where ours is stored
  };
  const Row rows[] = {
      {"another cell of the record", {"1  THEIRS", "2"}, 1, {"me THEIRS", "2"}},
      {"the same cell", {"YOUother", "2"}, 1, {"me other", "2"}},
      {"a record behind the last one, where our new line is", {"1  other", "2", "THEIRS"}, 3, {"1  other", "2", "me"}},
      {"records taken away behind the end", {"1"}, 2, {"1", "me"}},
      {"no record of them left", {}, 2, {"", "me"}},
  };
  for (const Row& row : rows)
    for (const bool replaces : {false, true})
      for (const std::int16_t answer : {kYes, kNo, kCancel}) {
        CAPTURE(row.story);
        CAPTURE(replaces);
        CAPTURE(answer);
        StoreFixture store;
        store.table("t.txt", {3, 10}, {"1  other", "2"});
        REQUIRE(store.open("t.txt"));
        curRec = row.record;
        loadCache(curRec);
        setCell(currentRow(), 0, u"me");
        std::string theirs, ours;
        for (const std::string& cells : row.theirs) theirs += record(cells);
        for (const std::string& cells : row.ours) ours += record(cells);
        elsewhere(store, theirs, replaces);
        store.answerQuestions(answer);
        CHECK(flushRec() == (answer != kCancel));
        CHECK(storeWasHeldBack() == (answer == kCancel));
        const std::vector<Dialog> told = store.dialogs();
        REQUIRE(told.size() == 1);
        CHECK(told.front().title == kChanged);
        CHECK(store.bytes("t.txt") == (answer == kYes ? ours : theirs));
        if (answer != kCancel) CHECK(curRec <= recCount() + 1);
        // Asked once: what was settled is settled, what was held back is asked again.
        CHECK(flushRec() == (answer != kCancel));
        CHECK(store.dialogs().size() == (answer == kCancel ? 1 : 0));
      }
}

TEST_CASE("a rewrite of a table that another program replaced asks first") {
  for (const std::int16_t answer : {kYes, kNo, kCancel}) {
    StoreFixture store;
    store.table("t.txt", {3}, {"1", "2"});
    REQUIRE(store.open("t.txt"));
    elsewhere(store, record("theirs"), true);
    store.answerQuestions(answer);
    CHECK(refusedAsReadOnly() == (answer != kYes));
    CHECK(store.dialogs().front().title == kChanged);
    CHECK(recCount() == (answer == kNo ? 1 : 2));
  }
}

TEST_CASE("the second program on a table is asked at its opening, and the lock goes with the first") {
  for (const std::int16_t answer : {kYes, kNo, kCancel}) {
    CAPTURE(answer);
    StoreFixture store;
    store.table("t.txt", {3}, {"1", "2"});
    store.table("other.txt", {3}, {"x"});
    const int other = ::open(store.path("t.txt").c_str(), O_RDWR);
    REQUIRE(::flock(other, LOCK_EX | LOCK_NB) == 0);
    store.answerQuestions(answer);
    CHECK(store.open("t.txt") == (answer != kCancel));
    CHECK(store.dialogs().size() == 1);
    CHECK(tableIsReadOnly() == (answer == kNo));
    if (answer == kNo) {
      setCell(currentRow(), 0, u"me");
      CHECK_FALSE(flushRec());
      CHECK(store.dialogs().front().title == u"書き込み禁止の注意");
      store.answerQuestions(kYes);
      toggleReadOnly();
      CHECK_FALSE(tableIsReadOnly());
      CHECK(flushRec());
    }
    ::close(other);
    REQUIRE(store.open("other.txt"));
    store.dialogs();
    // Our own lock stands while the table is open, and is no question to ourselves.
    REQUIRE(store.open("t.txt"));
    REQUIRE(store.open("t.txt"));
    CHECK(store.dialogs().empty());
    const int third = ::open(store.path("t.txt").c_str(), O_RDWR);
    CHECK(::flock(third, LOCK_EX | LOCK_NB) != 0);
    REQUIRE(store.open("other.txt"));
    CHECK(::flock(third, LOCK_EX | LOCK_NB) == 0);
    ::close(third);
  }
}
