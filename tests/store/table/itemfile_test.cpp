// What makes an item file readable, what the user is told where it is not, and how it is written.
#include <doctest/doctest.h>

#include "platform/files/files.h"
#include "platform/text/sjis.h"
#include "store/store_fixture.h"

using namespace zelko;
using namespace zelko::test;

namespace {

const Text kBad = u"項目ﾌｧｲﾙ読込エラー";
const Text kBroken = u"項目挿入不可能";
const Text kTooWide = u"ﾌｧｲﾙ長エラー";
const Text kNoTable = u"Zelkoﾌｧｲﾙでないか、項目設定を記述したﾌｧｲﾙが不良です";

Text titleOf(const std::vector<Dialog>& dialogs) { return dialogs.empty() ? Text() : dialogs.front().title; }

std::string oneItem(std::string_view firstLine, std::string_view width = "2000 '6") {
  return std::string(firstLine) + "\r\n1000 'ID,L\r\n" + std::string(width) + "\r\n";
}

std::string withSum(int sum) { return itemFileText({100, sum - 100}); }

}  // namespace

TEST_CASE("an item file opens, or its own message is told") {
  struct Row {
    const char* story;
    std::string text;
    Text title;  // empty: opens
  };
  const std::string name100k(100000, 'x');
  const Row rows[] = {
      {"as it is written", itemFileText({6, 20, 5}), u""},
      {"CR only", itemFileText({6, 20, 5}, {}, "\r"), u""},
      {"LF only", itemFileText({6, 20, 5}, {}, "\n"), u""},
      {"no line end at the end", oneItem("100  ',,,0").substr(0, oneItem("100  ',,,0").size() - 2), u""},
      {"the ID item alone", oneItem("100  ',,,0"), u""},
      {"254 items and the ID item", itemFileText(std::vector<int>(255, 1)), u""},
      {"255 items and the ID item", itemFileText(std::vector<int>(256, 1)), kBad},
      {"negative count", oneItem("100  ',,,-1"), kBad},
      {"count without a number", oneItem("100  ',,,many"), u""},
      {"count beyond 16 bits", oneItem("100  ',,,32768"), kBroken},
      {"count beyond any number", oneItem("100  ',,,1E999"), kBroken},
      {"count of 100,000 digits", oneItem("100  ',,," + std::string(100000, '9')), kBroken},
      {"value below 100", oneItem("99   ',,,0"), kBad},
      {"apostrophe too late", oneItem("100   ',,,0"), kBad},
      {"an apostrophe before the one at 6", oneItem("100 '',,,0"), kBad},
      {"value beyond 16 bits", oneItem("99999',,,0"), u""},
      {"value beyond any number", oneItem("9E999',,,0"), kBroken},
      {"a count of more items than lines", oneItem("100  ',,,1"), kBroken},
      {"empty", "", kBroken},
      {"one long line", name100k, kBroken},
      {"a name of 100,000 characters", "100  ',,,0\r\n1000 '" + name100k + ",L\r\n2000 '6\r\n", u""},
      {"a memo of 100,000 characters", oneItem("100  '," + name100k + ",,0"), u""},
      {"width without a number", oneItem("100  ',,,0", "2000 'six"), u""},
      {"width missing in its line", oneItem("100  ',,,0", "2000"), u""},
      {"width beyond 16 bits", oneItem("100  ',,,0", "2000 '32768"), kBroken},
      {"width beyond any number", oneItem("100  ',,,0", "2000 '9E999"), kBroken},
      {"width above a record", oneItem("100  ',,,0", "2000 '257"), kTooWide},
      {"sum 0", itemFileText({0, 0}), u""},
      {"sum 256", withSum(256), u""},
      {"sum 257", withSum(257), kTooWide},
      {"sum beyond 16 bits", itemFileText({32767, 32767, 32767}), kTooWide},
      {"a lead byte at the end of a name", "100  ',,,0\r\n1000 'ID\x81,L\r\n2000 '6\r\n", u""},
  };
  for (const Row& row : rows) {
    CAPTURE(row.story);
    StoreFixture store;
    store.write("t.txt", record("A"));
    store.write("Kt.txt", row.text);
    const bool opened = store.open("t.txt");
    const auto dialogs = store.dialogs();
    CHECK(opened == row.title.empty());
    CHECK(titleOf(dialogs) == row.title);
    CHECK(store.beeps() == static_cast<int>(dialogs.size()));
    if (!dialogs.empty())
      CHECK(dialogs.front().text == (row.title == kTooWide ? u"256文字ﾌｧｲﾙでありません." : kNoTable));
    CHECK(isOpen(1) == opened);
    CHECK_FALSE(isOpen(2));
  }
}

TEST_CASE("an item file cut off at any byte is told or opens, and what was open keeps its description") {
  StoreFixture store;
  store.table("old.txt", {7, 9}, {"old"});
  const std::string whole = itemFileText({6, 20, 5}, {2});
  const std::size_t lastLine = whole.rfind("2002");
  for (std::size_t length = 0; length < whole.size(); ++length) {
    CAPTURE(length);
    REQUIRE(store.open("old.txt"));
    store.write("t.txt", record("A"));
    store.write("Kt.txt", whole.substr(0, length));
    const bool opened = store.open("t.txt");
    CHECK(opened == store.dialogs().empty());
    if (length <= lastLine) CHECK_FALSE(opened);
    if (opened) continue;
    CHECK(docPath == store.name("old.txt"));
    CHECK(itemCount == 1);
    CHECK(itemWidth[1] == 9);
    CHECK_FALSE(isOpen(1));
    CHECK(reopenData());
  }
}

TEST_CASE("a failure leaves the data files alone: nothing comes into being") {
  StoreFixture store;
  CHECK_FALSE(store.open("none.txt"));
  CHECK(store.dialogs() == std::vector<Dialog>{{kBroken, kNoTable}});
  CHECK(store.files().empty());
  store.write("Kfolder", itemFileText({6}));
  std::filesystem::create_directory(store.path("folder"));
  CHECK_FALSE(store.open("folder"));
  CHECK(store.dialogs().size() == 1);
  CHECK(docPath.empty());
}

TEST_CASE("names of tables, and their item files in any case") {
  const std::string longest(250, 'n');
  struct Row {
    const char* story;
    std::string table, item;
  };
  const Row rows[] = {
      {"capital", "t.txt", "Kt.txt"},
      {"all other", "Abc.txt", "kABC.TXT"},
      {"blanks", " my table .txt", "K my table .txt"},
      {"full-width", "名簿　表ソ.txt", "k名簿　表ソ.TXT"},
      {"leading minus", "-rf.txt", "K-rf.txt"},
      {"a colon", "a:b.txt", "Ka:b.txt"},
      {"255 bytes with the K", longest + ".txt", "K" + longest + ".txt"},
  };
  for (const Row& row : rows) {
    CAPTURE(row.story);
    StoreFixture store;
    store.write(row.table, record("A"));
    store.write(row.item, itemFileText({6}));
    Text error;
    openTable(fromUtf8(row.table), error);
    REQUIRE(error.empty());
    CHECK(docDrive.empty());
    CHECK(docPath == store.name(row.table));
    tableMemo = u"new";
    CHECK(writeKFile(docPath, docDrive));
    CHECK(store.files().size() == 2);
    CHECK(store.bytes(row.item).starts_with("100  ',new,,0\r\n"));
  }
  StoreFixture store;
  store.write(longest + "nn.txt", "");  // 255 bytes: no room for a K
  CHECK_FALSE(store.open(longest + "nn.txt"));
  CHECK(store.dialogs().size() == 1);
}

TEST_CASE("the documented example opens, and comes back byte for byte") {
  StoreFixture store;
  const std::filesystem::path example = ZELKO_SOURCE_DIR "/tests/data/table-format";
  for (const auto& entry : std::filesystem::directory_iterator(example))
    std::filesystem::copy(entry.path(), store.path(entry.path().filename().string()));
  const std::string item = store.bytes("K会員名簿.txt"), data = store.bytes("会員名簿.txt");
  REQUIRE(store.open("会員名簿.txt"));
  CHECK(tableMemo == u"会員名簿");
  CHECK(recCount() == 3);
  CHECK(trimmed(cellAt(3, 1)) == u"十河　ソノ子");
  CHECK(cellAt(1, 2) == u"   85");
  for (int i = 0; i <= itemCount; ++i) setCell(currentRow(), i, trimmed(cellOfRow(currentRow(), i)));
  CHECK(flushRec());
  CHECK(writeKFile(docPath, docDrive));
  CHECK(store.bytes("K会員名簿.txt") == item);
  CHECK(store.bytes("会員名簿.txt") == data);
}
