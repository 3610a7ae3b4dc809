// CSV against a second program that has the whole file as one string; and the items that a file proposes.
#include <doctest/doctest.h>

#include <algorithm>
#include <numeric>

#include "files/csv/csvexport.h"
#include "files/csv/csvimport.h"
#include "files/csv/csvproposal.h"
#include "fulldisk.h"
#include "platform/text/sjis.h"
#include "tablejobs/randomtable.h"

namespace zelko::test {
namespace {

using Lines = std::vector<std::vector<std::string>>;
const auto goesOn = [](std::int64_t) { return true; };

std::string withoutBlanks(const std::string& text) {
  const std::size_t first = text.find_first_not_of(' ');
  return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

// Where a closed pair of quotes at `at` ends (behind blanks, at a comma, a line's or the file's end); npos where none
// is.
std::size_t endOfPair(const std::string& file, std::size_t at, std::string& content) {
  at = file.find_first_not_of(' ', at);
  if (at == std::string::npos || file[at] != '"') return std::string::npos;
  content.clear();
  for (++at; at < file.size(); ++at) {
    if (file.compare(at, 2, "\"\"") == 0 || file.compare(at, 2, "\r\n") == 0) {
      content += file[at++] == '"' ? '"' : ' ';
    } else if (file[at] == '"') {
      at = std::min(file.find_first_not_of(' ', at + 1), file.size());
      return at == file.size() || std::string(",\r\n").find(file[at]) != std::string::npos ? at : std::string::npos;
    } else {
      content += file[at] == '\r' || file[at] == '\n' ? ' ' : file[at];
    }
  }
  return std::string::npos;
}

Lines linesOf(std::string file, bool quotesProtect) {
  Lines lines;
  file = file.substr(0, file.find('\x1A'));
  for (std::size_t at = 0; at < file.size(); ++at) {
    lines.emplace_back();
    for (bool further = true; further; at += further) {
      std::string content;
      std::size_t end = quotesProtect ? endOfPair(file, at, content) : std::string::npos;
      if (end == std::string::npos) {
        end = std::min(file.find_first_of(",\r\n", at), file.size());
        content = withoutBlanks(file.substr(at, end - at));
        if (content.size() > 1 && content.front() == '"' && content.back() == '"')
          content = content.substr(1, content.size() - 2);
      }
      lines.back().push_back(content);
      at = end;
      further = at < file.size() && file[at] == ',';
    }
    if (file.compare(at, 2, "\r\n") == 0) ++at;
  }
  return lines;
}

struct Made {
  std::string records;
  CsvCounts counts;
};

Made recordsOf(const Lines& lines, const RandomTable& table) {
  Made made;
  const auto isRight = [&](std::size_t item) { return std::ranges::count(table.right, static_cast<int>(item)) > 0; };
  for (const auto& line : lines) {
    std::string cells;
    for (std::size_t item = 0; item < table.widths.size(); ++item) {
      const auto width = static_cast<std::size_t>(table.widths[item]);
      std::string cell = item < line.size() ? toSjis(fromSjis(line[item])) : "";
      if (cell.size() > width) cell = withoutBlanks(cell);
      if (cell.size() > width) ++made.counts.cutCells;
      if (isRight(item))
        cells += (std::string(width, ' ') + cell).substr(cell.size());
      else
        cells += (cell + std::string(width, ' ')).substr(0, width);
    }
    for (std::size_t field = table.widths.size(); field < line.size(); ++field)
      made.counts.passedCells += !withoutBlanks(line[field]).empty();
    made.records += record(cells);
  }
  return made;
}

TEST_CASE("CSV in, by chance, against a second program") {
  const StoreFixture store;
  for (int run = 0; run < runsOf(400); ++run) {
    CAPTURE(run);
    RandomTable made(static_cast<unsigned>(run));
    made.makeItems(30);
    const std::string before = made.records(made.below(3));
    made.write(store, "t.txt", before);
    static const char* const kPieces[] = {",", ",", "\"",   "\"",       "\"\"", "\r\n",     "\n",  "\r",
                                          " ", "a", "\xB1", "\x83\x5C", "\x81", "\xEE\xE0", "b c", "\",\""};
    std::string file;
    for (int pieces = made.below(120); pieces > 0; --pieces) file += kPieces[made.below(16)];
    if (made.below(8) == 0) file += "\x1A,\r\n";
    store.write("in.csv", file);
    REQUIRE(store.open("t.txt"));
    const bool quotesProtect = made.below(2) == 0;
    const CsvImported done = importCsv({store.name("in.csv"), quotesProtect, false}, goesOn);
    REQUIRE(done.end == JobEnd::done);
    const Made expected = recordsOf(linesOf(file, quotesProtect), made);
    CAPTURE(file);
    CHECK(store.bytes("t.txt") == before + expected.records);
    CHECK(done.records * recLen == static_cast<std::int64_t>(expected.records.size()));
    CHECK(done.counts.cutCells == expected.counts.cutCells);
    CHECK(done.counts.passedCells == expected.counts.passedCells);
  }
}

TEST_CASE("CSV out, by chance, byte for byte; and in again") {
  const StoreFixture store;
  for (int run = 0; run < runsOf(150); ++run) {
    CAPTURE(run);
    RandomTable made(static_cast<unsigned>(run));
    made.makeItems(30);
    const std::string records = made.records(made.below(41));
    made.write(store, "t.txt", records);
    REQUIRE(store.open("t.txt"));
    const auto record = [](std::int32_t) { return true; };
    REQUIRE(exportCsv(store.name("t.csv"), false, record) == JobEnd::done);
    std::string expected;
    for (std::size_t at = 0; at < records.size(); at += recLen) {
      for (int item = 0; item < static_cast<int>(made.widths.size()); ++item)
        expected += (item > 0 ? ",\"" : "\"") + toSjis(cellOf(records.substr(at, recLen), made.widths, item)) + "\"";
      expected += "\r\n";
    }
    CHECK(store.bytes("t.csv") == expected);

    REQUIRE(exportCsv(store.name("t.csv"), true, record) == JobEnd::done);
    made.write(store, "u.txt", "");
    REQUIRE(store.open("u.txt"));
    REQUIRE(importCsv({store.name("t.csv"), true, true}, goesOn).end == JobEnd::done);
    const std::string again = store.bytes("u.txt");
    REQUIRE(again.size() == records.size());
    for (std::size_t at = 0; at < records.size(); at += recLen)
      for (int item = 0; item < static_cast<int>(made.widths.size()); ++item) {
        // Half a character became two bytes: what is cut by that is not looked at.
        const Text cell = cellOf(records.substr(at, recLen), made.widths, item);
        if (toSjis(cell).size() > static_cast<std::size_t>(made.widths[static_cast<std::size_t>(item)])) continue;
        CHECK(trimmed(cellOf(again.substr(at, recLen), made.widths, item)) == trimmed(cell));
      }
  }
}

TEST_CASE("CSV in: the code of the file, lost characters, long lines, a stop, a full disk") {
  const StoreFixture store;
  const auto importOf = [&](const std::string& file, const CsvGoesOn& further = goesOn) {
    store.table("t.txt", {6}, {});
    REQUIRE(store.open("t.txt"));
    store.write("in.csv", file);
    return importCsv({store.name("in.csv"), true, false}, further);
  };
  CHECK(importOf("\xEF\xBB\xBF\"\xC3\xA9\xE5\xB1\xB1\xF0\x9F\x98\x80\"").counts.lostCharacters == 2);
  CHECK(store.bytes("t.txt") == record("?\x8E\x52?"));
  importOf("\xE5\xB1\xB1");  // UTF-8 without its mark
  CHECK(store.bytes("t.txt") == record("\x8E\x52"));
  importOf("\xC2\xB1\r\n");  // two half-width kana
  CHECK(store.bytes("t.txt") == record("\xC2\xB1"));
  importOf("a," + std::string(CsvReader::kLongestLine * 2, 'x') + "\r\n\"" + std::string(CsvReader::kLongestLine, 'y') +
           "\"\nb\n");
  CHECK(store.bytes("t.txt") == record("a") + record("yyyyyy") + record("b"));
  std::string many;
  for (int line = 0; line < 1000; ++line) many += "x\n";
  int looks = 3;
  const CsvImported stopped = importOf(many, [&](std::int64_t) { return --looks > 0; });
  CHECK(stopped.end == JobEnd::stopped);
  CHECK(stopped.records == recCount());
  CHECK_FALSE(importCsv({store.name("none.csv"), true, false}, goesOn).opened);
  const FullDisk disk(recLen * 100);
  CHECK(importOf(many).end == JobEnd::failed);
  CHECK(store.bytes("t.txt").empty());
}

TEST_CASE("CSV: names and widths out of the file") {
  const auto proposalOf = [](std::string file) {
    CsvReader reader(
        [&file, at = std::size_t{0}](char* out, std::size_t size) mutable {
          const std::size_t got = file.copy(out, size, at);
          at += got;
          return got;
        },
        true);
    CsvSurvey survey(true);
    for (CsvLine line; reader.next(line);) survey.take(line);
    return survey.proposal();
  };
  const CsvProposal named = proposalOf("氏名,\"a,b\",点\n山田太郎,x,100\n伊藤,yy,7\n");
  REQUIRE(named.items.size() == 3);
  CHECK(named.heading);
  CHECK((named.items[0].name == u"氏名" && named.items[0].width == 8));
  CHECK((named.items[1].name == u"a、b" && named.items[1].width == 2));
  CHECK_FALSE(proposalOf("山田,東京\n伊藤,大阪\n").heading);  // it may be a record, which must not be lost
  CHECK_FALSE(proposalOf("1,2\n3,4\n").heading);
  CHECK_FALSE(proposalOf("氏名,点\n").heading);
  CHECK(proposalOf("").items.empty());
  const CsvProposal wide = proposalOf(std::string(200, 'a') + "," + std::string(90, 'b') + ",c\n");
  CHECK(wide.narrowed);
  CHECK((wide.items[0].width == 163 && wide.items[1].width == 90 && wide.items[2].width == 1));
}

}  // namespace
}  // namespace zelko::test
