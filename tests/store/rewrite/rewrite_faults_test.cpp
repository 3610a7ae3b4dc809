// Rewrites on a machine that fails: killed at any moment, refused at any call, a full disk, something in the way.
#include <doctest/doctest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>

#include "platform/files/files.h"
#include "store/rewrite/file_calls.h"
#include "store/rewrite/recovery.h"
#include "store/rewrite/rewrite.h"
#include "store/rewrite/rewrite_model.h"
#include "store/store_fixture.h"

using namespace zelko;
using namespace zelko::test;

namespace {

const Operation kOperations[] = {
    {What::insert, 0, 0, 1, 2}, {What::erase, 0, 3},        {What::move, 2, 2, 0},     {What::insertItems, 0, 0, 1, 2},
    {What::eraseItems, 1, 1},   {What::moveItems, 2, 2, 0}, {What::width, 1, 0, 0, 3}, {What::align, 2},
};

// The two files of a table as they stand.
struct Files {
  std::string data, items;
  bool operator==(const Files&) const = default;
};

Files filesOf(const StoreFixture& store) { return {store.bytes("t.txt"), store.bytes("Kt.txt")}; }

Files startFiles() { return {sampleTable(4, 3).bytes(), itemFileText({3, 4, 5}, {1})}; }

void restart(const StoreFixture& store) {
  closeAll();
  for (const std::string& file : store.files()) std::filesystem::remove_all(store.path(file));
  store.write("t.txt", startFiles().data);
  store.write("Kt.txt", startFiles().items);
  REQUIRE(store.open("t.txt"));
  (void)store.dialogs();
}

RewriteEnd run(const Operation& op) {
  const Task task = taskOf(op, itemsOnDisk(), recCount());
  return rewriteTable(task.plan, task.itemsChange ? &task.items : nullptr, [](std::int64_t) { return true; });
}

Files rewritten(const StoreFixture& store, const Operation& op) {
  restart(store);
  REQUIRE(run(op) == RewriteEnd::done);
  return filesOf(store);
}

// True where the process was killed in front of that call, false where it had no such call left.
bool killedAt(int call, const Operation& op) {
  const pid_t child = fork();
  REQUIRE(child >= 0);
  if (child == 0) {
    dieAtCall(call);
    run(op);
    _exit(0);
  }
  int status = 0;
  REQUIRE(waitpid(child, &status, 0) == child);
  REQUIRE(WIFEXITED(status));
  return WEXITSTATUS(status) == kKilled;
}

}  // namespace

TEST_CASE(
    "killed in front of any call: the old table or the new one, or an offer that brings the new one; no work file "
    "stays") {
  StoreFixture store;
  int swaps = 0;
  for (const Operation& op : kOperations) {
    CAPTURE(static_cast<int>(op.what));
    const Files after = rewritten(store, op), before = startFiles();
    int call = 1;
    for (;; ++call) {
      restart(store);
      closeAll();
      REQUIRE(store.open("t.txt"));
      const bool killed = killedAt(call, op);
      closeAll();
      if (!killed) break;
      CAPTURE(call);
      const Files left = filesOf(store);
      const bool isWhole = left == before || left == after;
      // Who says no keeps everything, and is asked again where the table is not whole.
      store.answerQuestions(kNo);
      CHECK(store.open("t.txt") == isWhole);
      CHECK(filesOf(store) == left);
      store.answerQuestions(kYes);
      resetRecovery();
      REQUIRE(store.open("t.txt"));
      swaps += isWhole ? 0 : 1;
      CHECK(filesOf(store) == (isWhole ? left : after));
      CHECK(run({What::insert, 0, 0, 0, 1}) == RewriteEnd::done);
      CHECK(store.files() == std::vector<std::string>{"Kt.txt", "t.txt"});
    }
    CHECK(call > 5);
  }
  CHECK(swaps >= 4);
}

TEST_CASE("what stands in the way of a rewrite leaves the table as it was") {
  StoreFixture store;
  for (const char* inTheWay : {"WORK.QQQ", "KWORK.QQQ", "SWAP.QQQ"}) {
    restart(store);
    std::filesystem::create_directory(store.path(inTheWay));
    CHECK(run({What::eraseItems, 1, 1}) == RewriteEnd::failed);
    CHECK(filesOf(store) == startFiles());
    CHECK(itemCount == 2);
    CHECK(recCount() == 4);
    CHECK(store.files() == std::vector<std::string>(inTheWay < std::string("Kt.txt")
                                                        ? std::vector<std::string>{inTheWay, "Kt.txt", "t.txt"}
                                                        : std::vector<std::string>{"Kt.txt", inTheWay, "t.txt"}));
  }
  restart(store);
  setReadOnly(store.name("Kt.txt"), true);
  CHECK(run({What::width, 0, 0, 0, 1}) == RewriteEnd::failed);
  CHECK(run({What::move, 0, 0, 2}) == RewriteEnd::done);
  restart(store);
  {
    const FullDisk full(700);
    CHECK(run({What::insert, 0, 0, 0, 1}) == RewriteEnd::failed);
  }
  CHECK(filesOf(store) == startFiles());
  CHECK(store.files() == std::vector<std::string>{"Kt.txt", "t.txt"});
}

TEST_CASE("an interrupted swap of another table is offered when its neighbour opens and when it is rewritten") {
  StoreFixture store;
  const Operation op{What::width, 1, 0, 0, 3};
  const Files after = rewritten(store, op);
  restart(store);
  for (int call = 1; filesOf(store).data != after.data || filesOf(store).items == after.items; ++call) {
    restart(store);
    REQUIRE(killedAt(call, op));
  }
  closeAll();
  const Files left = filesOf(store);
  store.table("u.txt", {4}, {"u"});
  store.answerQuestions(kNo);
  REQUIRE(store.open("u.txt"));
  CHECK(store.dialogs().size() == 1);
  CHECK(run({What::insert, 0, 0, 0, 1}) == RewriteEnd::refused);
  CHECK(store.dialogs().size() == 2);
  CHECK(filesOf(store) == left);
  CHECK(store.bytes("u.txt") == record("u"));
  store.answerQuestions(kYes);
  REQUIRE(run({What::insert, 0, 0, 0, 1}) == RewriteEnd::done);
  CHECK(filesOf(store) == after);
  CHECK(store.bytes("u.txt") == record("") + record("u"));
}

// What somebody else puts into a folder, before the user opens a table there, says yes to everything and rewrites it.
TEST_CASE("a prepared folder changes no file but those of the table") {
  namespace fs = std::filesystem;
  StoreFixture store;
  const auto prepare = [&](const std::string& data, const std::string& items) {
    const Swap swap{store.name("d/"), fromUtf8(data), fromUtf8(items), *markOfFile(store.name("d/WORK.QQQ")),
                    *markOfFile(store.name("d/KWORK.QQQ"))};
    REQUIRE(noteSwap(swap));
  };
  const std::string rewrittenData = rewritten(store, {What::eraseItems, 1, 1}).data;
  const std::string outside = store.path("victim").string(), victim = record("mine");
  struct Row {
    std::string data, items;              // that the note names
    std::vector<std::string> links = {};  // of these names, to the victim
    const char* link = "../victim";
  };
  const Row rows[] = {
      {outside, ""},
      {"../victim", ""},
      {"gone.txt", "../victim"},
      {"gone.txt", outside},
      {"gone.txt", "own.conf"},
      {"../new", ""},
      {"new.txt", "", {"new.txt"}, "../new"},
      {"gone.txt", "Kgone.txt", {"Kgone.txt"}},
      {"t.txt", "Kt.txt"},
      {"", "", {"WORK.QQQ", "KWORK.QQQ", "SWAP.QQQ", "KSAVE.QQQ"}},
      {"", "", {"WORK.QQQ", "KWORK.QQQ", "SWAP.QQQ", "KSAVE.QQQ"}, "../new"},
  };
  for (const Row& row : rows) {
    CAPTURE(row.data);
    CAPTURE(row.items);
    closeAll();
    fs::remove_all(store.path("d"));
    fs::create_directory(store.path("d"));
    store.write("victim", victim);
    store.write("d/own.conf", victim);
    store.write("d/t.txt", startFiles().data);
    store.write("d/Kt.txt", startFiles().items);
    if (!row.data.empty()) {
      store.write("d/WORK.QQQ", record("theirs"));
      store.write("d/KWORK.QQQ", itemFileText({9}));
      prepare(row.data, row.items);
    }
    for (const std::string& name : row.links) fs::create_symlink(row.link, store.path("d/" + name));
    store.answerQuestions(kYes);
    REQUIRE(store.open("d/t.txt"));
    CHECK(run({What::eraseItems, 1, 1}) == RewriteEnd::done);
    CHECK(writeKFile(docPath, docDrive));
    CHECK(store.bytes("d/t.txt") == rewrittenData);
    CHECK(store.bytes("victim") == victim);
    CHECK(store.bytes("d/own.conf") == victim);
    CHECK_FALSE(fs::exists(store.path("new")));
  }
}

TEST_CASE("a rewrite keeps the permissions of the files and the link that leads to one") {
  StoreFixture store;
  store.table("far.txt", {3, 4, 5}, {"one", "two"});
  std::filesystem::create_directory(store.path("d"));
  std::filesystem::rename(store.path("far.txt"), store.path("d/far.txt"));
  std::filesystem::rename(store.path("Kfar.txt"), store.path("Kt.txt"));
  std::filesystem::create_symlink("d/far.txt", store.path("t.txt"));
  std::filesystem::permissions(store.path("d/far.txt"), std::filesystem::perms{0600});
  REQUIRE(store.open("t.txt"));
  REQUIRE(run({What::erase, 0, 0}) == RewriteEnd::done);
  CHECK(std::filesystem::is_symlink(store.path("t.txt")));
  CHECK(store.bytes("d/far.txt") == record("two"));
  CHECK(std::filesystem::status(store.path("d/far.txt")).permissions() == std::filesystem::perms{0600});
}
