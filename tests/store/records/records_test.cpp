// Records, cells and the cache around the cursor.
#include <doctest/doctest.h>

#include <random>

#include "platform/files/files.h"
#include "store/store_fixture.h"

using namespace zelko;
using namespace zelko::test;

namespace {

std::string_view cacheRow(int i) { return rowBytes(recCache[static_cast<std::size_t>(i + 2)]); }
std::string dataOf(std::string_view cells) { return record(cells).substr(0, kDataBytes); }

// The step down of the editor, as far as the store knows it.
void goTo(std::int32_t target) {
  flushRec();
  if (target == recCount() + 1 && target - cacheBase < cacheSize) {
    curRec = target;
    setRow(currentRow(), blankRec);
  }
  curRec = target;
  loadCache(curRec);
}

}  // namespace

TEST_CASE("flushRec stores what the row holds, and nothing blank beyond the count") {
  struct Row {
    const char* story;
    std::int32_t record;
    std::string cells, file;
  };
  const std::string one = record("one"), two = record("two");
  const Row rows[] = {
      {"new line left blank", 3, dataOf(""), one + two},
      {"new line outside the file", 3, slashRec, one + two},
      {"new line with text", 3, dataOf("new"), one + two + record("new")},
      {"record blanked", 1, dataOf(""), record("") + two},
      {"record of slashes", 2, slashRec, one + slashRec + "\r\n"},
  };
  for (const Row& row : rows) {
    CAPTURE(row.story);
    StoreFixture store;
    store.table("t.txt", {6}, {"one", "two"});
    REQUIRE(store.open("t.txt"));
    curRec = row.record;
    setRow(currentRow(), row.cells);
    CHECK(flushRec());
    CHECK(store.bytes("t.txt") == row.file);
  }
}

TEST_CASE("a cell is padded or cut by bytes") {
  struct Row {
    Text text, alignment;
    int width;
    std::string bytes;
  };
  const Row rows[] = {
      {u"12", u"L", 5, "12   "},
      {u"12", u"R", 5, "   12"},
      {u"123456", u"L", 5, "12345"},
      {u"123456", u"R", 5, "23456"},
      {u"東表", u"L", 3, "\x93\x8c\x95"},
      {u"東表", u"R", 3, "\x8c\x95\x5c"},
      {u"ｱ", u"L", 2, "\xb1 "},
      {u"", u"R", 2, "  "},
      {u"12", u"r", 4, "12  "},
      {u"12", u"L", 0, ""},
      {u"x", u"R", 256, std::string(255, ' ') + "x"},
  };
  for (const Row& row : rows) CHECK(paddedCell(row.text, row.width, row.alignment) == row.bytes);
}

TEST_CASE("only the cell that is written changes its bytes") {
  StoreFixture store;
  // Halves of characters, codes without a character and NUL around the cell; its own last byte holds a lead byte.
  const std::string before("\x81\xff\x80", 3), behind("\x00\xfd\x5c", 3);
  store.table("t.txt", {3, 3, 3, 2}, {before + "abc" + behind + "yz"});
  REQUIRE(store.open("t.txt"));
  setCell(currentRow(), 1, u"1東東");
  CHECK(flushRec());
  CHECK(store.bytes("t.txt") == record(before + "1\x93\x8c" + behind + "yz"));
  setCell(currentRow(), 1, u"東東");
  CHECK(flushRec());
  CHECK(store.bytes("t.txt") == record(before + "\x93\x8c\x93" + behind + "yz"));
  takeRow(1);
  CHECK(left(cellOfCur(1), 1) == u"東");
  CHECK(cellAt(1, 3) == u"yz");
}

TEST_CASE("behind the last item a record is blank once that item is written") {
  StoreFixture store;
  store.table("t.txt", {3, 3}, {"abcdefleft over"});
  REQUIRE(store.open("t.txt"));
  setCell(currentRow(), 0, u"A");
  CHECK(rowBytes(currentRow()) == dataOf("A  defleft over"));
  setCell(currentRow(), 1, u"D");
  CHECK(rowBytes(currentRow()) == dataOf("A  D"));
}

TEST_CASE("random edits against a plain second store") {
  struct Sample {
    Text text;
    std::string bytes;
  };
  const Sample samples[] = {{u"", ""},
                            {u"a", "a"},
                            {u"表", "\x95\x5c"},
                            {u"ソ能", "\x83\x5c\x94\x5c"},
                            {u"ｱｲ", "\xb1\xb2"},
                            {u"東京都千代田区", "\x93\x8c\x8b\x9e\x93\x73\x90\xe7\x91\xe3\x93\x63\x8b\xe6"},
                            {u"12345678901", "12345678901"}};
  const std::vector<int> widths = {6, 1, 0, 20, 5, 33};
  std::mt19937 random(7);
  const auto upTo = [&](std::size_t n) { return static_cast<std::size_t>(random() % n); };
  StoreFixture store;
  store.table("t.txt", widths, {"first"}, {0, 4});
  REQUIRE(store.open("t.txt"));
  std::vector<std::string> plain = {dataOf("first")};
  for (int step = 0; step < 3000; ++step) {
    const std::size_t item = upTo(widths.size());
    const Sample& sample = samples[upTo(std::size(samples))];
    const bool isRight = item == 0 || item == 4;
    const auto width = static_cast<std::size_t>(widths[item]);
    const std::string blanks(width, ' ');
    const std::string cell =
        isRight ? (blanks + sample.bytes).substr(sample.bytes.size()) : (sample.bytes + blanks).substr(0, width);
    std::size_t start = 0;
    for (std::size_t i = 0; i < item; ++i) start += static_cast<std::size_t>(widths[i]);

    const auto at = static_cast<std::size_t>(curRec - 1);
    std::string row = at < plain.size() ? plain[at] : dataOf("");
    setCell(currentRow(), static_cast<int>(item), sample.text);
    row.replace(start, width, cell);
    if (at < plain.size()) plain[at] = row;
    if (at == plain.size() && row != blankRec) plain.push_back(row);
    goTo(static_cast<std::int32_t>(1 + upTo(std::min<std::size_t>(plain.size() + 1, 80))));
    REQUIRE(recCount() == static_cast<std::int32_t>(plain.size()));
  }
  std::string file;
  for (const std::string& cells : plain) file += cells + "\r\n";
  CHECK(store.bytes("t.txt") == file);
  for (int i = 0; i < cacheSize; ++i) {
    const auto at = static_cast<std::size_t>(cacheBase + i - 1);
    CHECK(cacheRow(i) == (at < plain.size() ? plain[at] : blankRec));
  }
}
