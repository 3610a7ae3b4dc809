#include "walker/tables.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "platform/text/sjis.h"

namespace zelko::test {
namespace {

constexpr std::size_t kDataBytes = 254;

std::size_t upTo(std::mt19937& random, std::size_t n) { return random() % n; }

std::string randomCell(std::mt19937& random, std::size_t width) {
  static const std::string pieces[] = {" ",    "0",        "12",       "-3.5", "a",        "Z",        ",",
                                       "\"",   "\x83\x5C", "\x94\x5C", "\xB1", "\xB6\xDE", "\x81\x40", "\x93\x8C",
                                       "\x81", "\xFC",     "|",        "'",    "\x81\x7C"};
  std::string cell;
  if (upTo(random, 5) == 0) return std::string(width, ' ');
  while (cell.size() < width && upTo(random, 6) != 0) cell += pieces[upTo(random, std::size(pieces))];
  cell.resize(width, ' ');
  return cell;
}

void makeTable(const std::filesystem::path& folder, const std::u16string& name, std::mt19937& random) {
  static const std::u16string words[] = {u"ID", u"氏名", u"点", u"ｶﾅ", u"住所", u"a", u"能力", u"電話番号"};
  std::vector<std::size_t> widths;
  for (std::size_t left = kDataBytes, items = 1 + upTo(random, 12); items > 0 && left > 0; --items) {
    widths.push_back(std::min(left, 1 + upTo(random, upTo(random, 3) == 0 ? 60 : 8)));
    left -= widths.back();
  }
  std::string items = "100  ',memo,," + std::to_string(widths.size() - 1) + "\r\n", sizes, data;
  for (std::size_t at = 0; at < widths.size(); ++at) {
    const std::string side = upTo(random, 3) == 0 ? ",R" : ",L";
    items += std::to_string(1000 + at) + " '" + toSjis(words[upTo(random, std::size(words))]) + side + "\r\n";
    sizes += std::to_string(2000 + at) + " '" + std::to_string(widths[at]) + "\r\n";
  }
  for (std::size_t record = upTo(random, 41); record > 0; --record) {
    std::string bytes;
    for (const std::size_t width : widths) bytes += randomCell(random, width);
    bytes.resize(kDataBytes, ' ');
    data += bytes + "\r\n";
  }
  const std::string file = toUtf8(name) + ".txt";
  std::ofstream(folder / ("K" + file), std::ios::binary) << items << sizes;
  std::ofstream(folder / file, std::ios::binary) << data;
}

}  // namespace

void makeRandomTables(const std::filesystem::path& folder, std::mt19937& random) {
  makeTable(folder, u"t", random);
  makeTable(folder, u"名簿", random);
}

}  // namespace zelko::test
