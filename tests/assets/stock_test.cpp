// What ships beside the program, read by bytes and without the store, as a user's own files would be.
#include <doctest/doctest.h>
#include <algorithm>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#include "platform/text/sjis.h"

namespace {

using Strings = std::vector<std::string>;
const std::string kRoot = ZELKO_SOURCE_DIR "/";

std::string bytesOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  REQUIRE_MESSAGE(file, path);
  return {std::istreambuf_iterator<char>(file), {}};
}

bool survivesDecoding(const std::string& bytes) { return zelko::toSjis(zelko::fromSjis(bytes)) == bytes; }

Strings split(std::string text, const std::string& mark) {
  if (!text.ends_with(mark)) text += mark;
  Strings pieces;
  for (std::size_t at, from = 0; (at = text.find(mark, from)) != std::string::npos; from = at + mark.size())
    pieces.push_back(text.substr(from, at - from));
  return pieces;
}

// The cells of a stock table, record by record; checks both files on the way.
std::vector<Strings> stockTable(const std::string& name, std::size_t count, std::size_t lastWidth) {
  const std::string folder = kRoot + "assets/stock/";
  const std::string items = bytesOf(folder + "k" + name + ".___"), data = bytesOf(folder + name + ".___");
  CHECK((survivesDecoding(items) && items.ends_with("\r\n")));
  const Strings lines = split(items, "\r\n"), head = split(lines.at(0), ",");
  REQUIRE((head.size() == 4 && head[0] == "100  '" && head[3] == std::to_string(count - 1)));
  REQUIRE(lines.size() == 2 * count + 1);
  std::vector<std::size_t> widths;
  for (std::size_t i = 0; i < count; ++i) {
    const Strings fields = split(lines[i + 1], ",");
    CHECK((fields.size() == 2 && (fields[1] == "L" || fields[1] == "R")));
    CHECK((fields[0].size() > 6 && fields[0].starts_with(std::to_string(1000 + i) + " '")));
    CHECK(lines[count + i + 1].starts_with(std::to_string(2000 + i) + " '"));
    widths.push_back(std::stoul(lines[count + i + 1].substr(6)));
  }
  CHECK(widths.back() == lastWidth);
  REQUIRE(data.size() % 256 == 0);
  std::vector<Strings> records;
  for (std::size_t start = 0; start < data.size(); start += 256) {
    std::size_t at = start;
    Strings& cells = records.emplace_back();
    for (const std::size_t width : widths) {
      cells.push_back(data.substr(at, width));
      at += width;
      CHECK_MESSAGE(survivesDecoding(cells.back()), name, " record ", records.size(), " item ", cells.size() - 1);
    }
    REQUIRE(at <= start + 254);
    CHECK(data.substr(at, start + 256 - at) == std::string(start + 254 - at, ' ') + "\r\n");
  }
  return records;
}

TEST_CASE("stock tables are whole; model tables are empty and of the shape that their names promise") {
  CHECK(stockTable("m1", 10, 60).empty());
  CHECK(stockTable("m2", 11, 50).empty());
  CHECK(stockTable("s10", 1 + 10, 20).empty());
  CHECK(stockTable("s50", 1 + 50, 4).empty());
  CHECK(stockTable("s100", 1 + 100, 2).empty());
  CHECK(stockTable("g40", 1, 40).empty());
  CHECK(stockTable("サンプル住所録", 11, 50).size() >= 40);
  CHECK(stockTable("サンプル試験結果", 16, 2).size() >= 40);
}

TEST_CASE("help texts can be heard line by line") {
  for (const char* name : {"readme", "音声案内について", "ﾃｷｽﾄﾃﾞｰﾀの記入のしかた", "Zelkoについて",
                           "コードファイルを利用した置換機能について", "並べかえについて", "検索抽出について",
                           "CSVとブロック抽出について"}) {
    CAPTURE(name);
    const std::string text = bytesOf(kRoot + "assets/help/" + name + ".txt");
    CHECK((survivesDecoding(text) && text.ends_with("\r\n")));
    for (const std::string& line : split(text, "\r\n"))
      CHECK((line.size() <= 72 && line.find_first_of("\r\n") == std::string::npos));
  }
}

TEST_CASE("the example in docs/table-format.md is the table in tests/data") {
  const std::string page = bytesOf(kRoot + "docs/table-format.md"), folder = kRoot + "tests/data/table-format/";
  const auto block = [&](const std::string& kind) {
    const std::string from = page.substr(page.find("```" + kind + "\n") + kind.size() + 4);
    return split(from.substr(0, from.find("```")), "\n");
  };
  std::string items, records;
  for (const std::string& line : block("item-file")) items += zelko::toSjis(zelko::fromUtf8(line)) + "\r\n";
  for (const std::string& line : block("record")) {
    zelko::Text cells = zelko::fromUtf8(line);
    std::erase(cells, u'|');
    std::ranges::replace(cells, u'·', u' ');
    records += zelko::toSjis(cells) + std::string(254 - zelko::sjisLength(cells), ' ') + "\r\n";
  }
  CHECK(items == bytesOf(folder + "K会員名簿.txt"));
  CHECK(records == bytesOf(folder + "会員名簿.txt"));
}

}  // namespace
