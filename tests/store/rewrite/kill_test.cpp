// A program that is killed while it edits: every record is the old one or the new one, and so is the item file.
#include <doctest/doctest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <random>

#include "store/store_fixture.h"

using namespace zelko;
using namespace zelko::test;

namespace {

constexpr std::int32_t kRecords = 50;

// Fills record after record, the new line too, with one letter, and writes the letter into the memo.
[[noreturn]] void editForEver() {
  for (char16_t letter = u'a';; letter = letter == u'z' ? u'a' : static_cast<char16_t>(letter + 1)) {
    for (std::int32_t number = 1; number <= recCount() + 1 && number <= kRecords; ++number) {
      curRec = number;
      loadCache(number);
      setCell(currentRow(), 0, Text(kDataBytes, letter));
      flushRec();
    }
    tableMemo = Text(2000, letter);
    writeKFile(docPath, docDrive);
  }
}

bool isOneLetter(std::string_view text) { return text.find_first_not_of(text.front()) == std::string_view::npos; }

}  // namespace

TEST_CASE("a kill leaves whole records and a whole item file") {
  StoreFixture store;
  std::mt19937 random(3);
  bool grew = false, memoWritten = false;
  for (int round = 0; round < 60; ++round) {
    store.table("t.txt", {254}, {std::string(254, 'A')});
    REQUIRE(store.open("t.txt"));
    const pid_t child = fork();
    if (child == 0) editForEver();
    usleep(static_cast<useconds_t>(random() % 4000));
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);

    const std::string data = store.bytes("t.txt");
    REQUIRE(data.size() % recLen == 0);
    for (std::size_t at = 0; at < data.size(); at += recLen) {
      CHECK(isOneLetter(std::string_view(data).substr(at, kDataBytes)));
      CHECK(data.substr(at + kDataBytes, 2) == "\r\n");
    }
    REQUIRE(store.open("t.txt"));
    CHECK((tableMemo == u"memo" || tableMemo == Text(2000, tableMemo.front())));
    grew = grew || recCount() > 1;
    memoWritten = memoWritten || tableMemo != u"memo";
  }
  // Else the kills came too early to show anything.
  CHECK(grew);
  CHECK(memoWritten);
}
