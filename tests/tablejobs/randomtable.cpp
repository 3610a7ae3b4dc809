#include "tablejobs/randomtable.h"

#include <cstdlib>
#include <numeric>

#include "platform/text/sjis.h"

namespace zelko::test {

int runsOf(int usual) {
  const char* const wanted = std::getenv("ZELKO_RUNS");
  return wanted ? std::atoi(wanted) : usual;
}

void RandomTable::makeItems(int most) {
  const int count = 1 + below(most);
  widths.clear();
  right.clear();
  for (int item = 0; item < count; ++item) {
    widths.push_back(1 + below(below(4) == 0 ? 60 : 8));
    if (below(3) == 0) right.push_back(item);
    if (std::accumulate(widths.begin(), widths.end(), 0) > 254) widths.back() = 1;
  }
  while (std::accumulate(widths.begin(), widths.end(), 0) > 254) widths.pop_back();
  std::erase_if(right, [&](int item) { return item >= static_cast<int>(widths.size()); });
}

std::string RandomTable::cell(int width) {
  static const std::string kPieces[] = {" ",        " ",        "9",    "10",       "a",  "A", "\xB1",     "\x83\x5C",
                                        "\x83\x41", "\x81\x40", "\x81", "\xFA\x5B", "\"", ",", "\xEE\xE0", "\xA0"};
  std::string text;
  for (int length = below(width + 1); static_cast<int>(text.size()) < length;) text += kPieces[below(16)];
  text.resize(static_cast<std::size_t>(width), ' ');
  return text;
}

std::string RandomTable::records(int count) {
  std::string all;
  for (int number = 0; number < count; ++number) {
    std::string cells;
    for (const int width : widths)
      cells += below(12) == 0 ? std::string(static_cast<std::size_t>(width), ' ') : cell(width);
    all += record(below(10) == 0 ? "" : cells);
  }
  return all;
}

void RandomTable::write(const StoreFixture& store, std::string_view file, const std::string& records) const {
  store.write("K" + std::string(file), itemFileText(widths, right));
  store.write(file, records);
}

Text cellOf(const std::string& record, const std::vector<int>& widths, int item) {
  const int start = std::accumulate(widths.begin(), widths.begin() + item, 0);
  return fromSjis(
      record.substr(static_cast<std::size_t>(start), static_cast<std::size_t>(widths[static_cast<std::size_t>(item)])));
}

}  // namespace zelko::test
