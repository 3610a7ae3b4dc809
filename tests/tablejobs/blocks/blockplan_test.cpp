#include <doctest/doctest.h>

#include "tablejobs/blocks/blockplan.h"

namespace zelko::test {
namespace {

TEST_CASE("Blocks: order, doubles, the cut at 254 bytes, what is refused") {
  const TableDescription table{{{u"ID", u"L", 4}, {u"a", u"R", 100}, {u"b", u"L", 120}}, {}};
  const auto plan = planBlocks(table, 50, u"10-15/3/7-3", u"2/0-1/2");
  REQUIRE(plan);
  CHECK(plan->records.stretches == std::vector<Stretch>{{10, 6}, {3, 1}});
  const auto& items = plan->description.items;
  REQUIRE(items.size() == 4);
  CHECK((items[0].width == 120 && items[1].width == 4 && items[2].width == 100 && items[3].width == 30));
  CHECK((items[2].alignment == u"R" && items[3].name == u"b" && plan->leftOut == 0));
  CHECK(plan->records.cells[3] == CellMove{104, 30, 224, 30, Justify::keep});
  CHECK(planBlocks(table, 50, u"", u"2/2/2/0")->leftOut == 1);
  CHECK(planBlocks(table, 0, u"", u"")->description.items.size() == 3);
  CHECK_FALSE(planBlocks(table, 50, u"", u"2-1"));
  Text many = u"0";
  for (int i = 0; i < 255; ++i) many += u"/0";
  CHECK_FALSE(planBlocks(table, 50, u"", many));
  CHECK(memoOfBlocks(u"a,b.txt", {2, 0, 1}, {}) == u"a、b.txtより、項目2､0､1を転送による 2026/01/05 10:00:00");
  CHECK(memoOfBlocks(u"t.txt", std::vector<std::int32_t>(255, 100), {}).size() < 250);
}

}  // namespace
}  // namespace zelko::test
