// Files that never end, in the place of those that the program reads, and one that is too long to count.
#include <doctest/doctest.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>

#include "platform/files/files.h"
#include "store/rewrite/recovery.h"
#include "store/store_fixture.h"
#include "voice/talk.h"

using namespace zelko;
using namespace zelko::test;

namespace fs = std::filesystem;

TEST_CASE("what never ends is refused like what can't be read") {
  StoreFixture store;
  struct Row {
    const char* story;
    void (*make)(const fs::path& name);
  };
  const Row rows[] = {
      {"a link to zeros", [](const fs::path& name) { fs::create_symlink("/dev/zero", name); }},
      {"a pipe", [](const fs::path& name) { mkfifo(name.c_str(), 0600); }},
      {"a terabyte of nothing",
       [](const fs::path& name) {
         std::ofstream{name};
         fs::resize_file(name, std::uintmax_t{1} << 40);
       }},
  };
  for (const Row& row : rows) {
    CAPTURE(row.story);
    for (const char* file : {"Kt.txt", "SWAP.QQQ", "zlkTalk", "ZLKCLip"}) {
      fs::remove(store.path(file));
      store.table("t.txt", {4}, {"one"});
      fs::remove(store.path(file));
      row.make(store.path(file));
      CHECK(store.open("t.txt") == (std::string_view(file) != "Kt.txt"));
      CHECK_FALSE(interruptedSwap(besideTable(u"")));
      readSpeechSettings();
      CHECK(talkMode == 0);
      Text line;
      if (openInput(3, store.name("ZLKCLip"), kNoBound, 4096) == FileError::none)
        CHECK(readLine(3, line) != FileError::none);
      closeFile(3);
      fs::remove(store.path(file));
    }
  }
}

TEST_CASE("a file with more records than have a number is refused in words") {
  StoreFixture store;
  store.table("t.txt", {4}, {});
  const auto holds = [&](std::uintmax_t records) {
    std::error_code tooLong;
    fs::resize_file(store.path("t.txt"), records * recLen, tooLong);
    REQUIRE_FALSE(tooLong);
    (void)store.dialogs();
    return store.open("t.txt");
  };
  CHECK(holds(2147483646));
  CHECK(recCount() == 2147483646);
  CHECK_FALSE(holds(2147483647));
  CHECK(store.dialogs().back().text == u"記録が2147483646件を超えるﾌｧｲﾙは扱えません");
}
