// A table to choose ranges in, with the sheet that shows their masks.
#pragma once

#include <string>
#include <vector>

#include "editor/editor_fixture.h"
#include "editor/main/state.h"
#include "editor/show/sheet.h"
#include "platform/text/number.h"
#include "store/table/cursor.h"

namespace zelko::test {

struct RangeFixture : EditorFixture {
  ~RangeFixture() {
    hideRangeMask();
    hideTargetMask();
  }

  // Records 1.. with the cells "1", "N1", "10", "x1", "J1" and so on; the third item is right-justified.
  void table(int count, int level = 2) {
    Rows rows;
    for (int i = 1; i <= count; ++i)
      rows.push_back({decimal(i), u"N" + decimal(i), decimal(i * 10), u"x" + decimal(i), u"J" + decimal(i)});
    open({{u"ID", 4}, {u"氏名", 6}, {u"点", 4, u'R'}, {u"組", 2}, {u"住", 5}}, rows, level);
  }

  // The cells of a record on disk, parted by "|".
  std::string cells(int number) const {
    const std::string bytes = file(kTable).substr(static_cast<std::size_t>(number - 1) * 256, 256);
    std::string all;
    std::size_t start = 0;
    for (int item = 0; item <= itemCount; ++item) {
      const auto width = static_cast<std::size_t>(itemWidth[static_cast<std::size_t>(item)]);
      all += utf8(trimmed(fromUtf8(bytes.substr(start, width)))) + (item < itemCount ? "|" : "");
      start += width;
    }
    return all;
  }
  std::vector<std::string> allCells() const {
    std::vector<std::string> all;
    for (int number = 1; number <= records(); ++number) all.push_back(cells(number));
    return all;
  }

  // The masks on the sheet: "records 2-4 items 1-2 colour", parted by "; ".
  static std::string masks() {
    std::string all;
    for (const Grid::Mask& mask : form<frmSHEET>().Grid1.masks()) {
      const auto number = [](std::int64_t n) { return utf8(decimal(n)); };
      all += (all.empty() ? "" : "; ") + number(cacheBase + mask.row1 - 1) + "-" + number(cacheBase + mask.row2 - 1) +
             " " + number(mask.col1 - 1) + "-" + number(mask.col2 - 1) + " " + number(mask.colour);
    }
    return all;
  }
  static std::vector<int> range() { return {rangeKind, rangeRec1, rangeRec2, rangeItem1, rangeItem2}; }
  static std::pair<int, int> cursor() { return {curRec, curItem}; }
};

}  // namespace zelko::test
