// The checks of table design, and how cells get from an old design to a new one.
#include <doctest/doctest.h>

#include "files/design/designcheck.h"
#include "store/rewrite/rewriteplan.h"

using namespace zelko;

namespace {

DesignRow row(TextView name, TextView side, TextView width, int old = -1) {
  return {Text(name), Text(side), Text(width), old};
}

std::vector<DesignRow> rowsOfWidths(int count, TextView width) {
  return std::vector<DesignRow>(static_cast<std::size_t>(count), row(u"a", u"L", width));
}

}  // namespace

TEST_CASE("a table is refused with a line for all that stands against it") {
  struct Row {
    TextView count, memo;
    std::vector<DesignRow> rows;
    std::string faults;
  };
  const Row rows[] = {
      {u"1", u"", {row(u"ID", u"L", u"4"), row(u"名", u"R", u"250")}, ""},
      {u"253", u"", rowsOfWidths(254, u"1"), ""},
      {u"254", u"", rowsOfWidths(255, u"1"), "総フィ－ルド長が長すぎます."},
      {u"0", u"", {row(u"ID", u"L", u"254")}, ""},
      {u"", u"", rowsOfWidths(2, u"1"), "項目数が未定義です"},
      {u"255", u"", rowsOfWidths(256, u"1"), "項目数が不正(1-254)"},
      {u"1", u"", {row(u"ID", u"", u"4"), row(u"a", u"X", u"5")}, "0項目L/Rが未定義です\r\n1項目R/Lを入力して下さい"},
      {u"1",
       u"",
       {row(u"ID", u"L", u""), row(u"a", u"L", u"255")},
       "総フィ－ルド長が長すぎます.\r\n0項目項目幅がが未定義です\r\n1項目フィ－ルド幅が不正"},
      {u"1", u"", {row(u"I,D", u"L", u"1"), row(u"a", u"L", u"1")}, "0項目文中に｢,｣があってはいけません"},
      {u"0", u"a,b", rowsOfWidths(1, u"1"), "文中に｢,｣があってはいけません"},
  };
  for (const Row& r : rows) CHECK(toUtf8(faultsOfTable(r.count, r.memo, r.rows)) == r.faults);
}

TEST_CASE("records are cut otherwise when a width, a side or a place has changed") {
  const std::vector<ItemLine> old = {{u"ID", u"L", 2}, {u"a", u"L", 3}, {u"b", u"R", 4}};
  const DesignRow id = row(u"ID", u"L", u"2", 0), a = row(u"a", u"L", u"3", 1), b = row(u"b", u"R", u"4", 2);
  CHECK_FALSE(divisionChanges(old, {id, row(u"other", u"l", u"3", 1), b}));
  CHECK_FALSE(divisionChanges(old, {id, a, b, row(u"new", u"L", u"9")}));
  CHECK_FALSE(divisionChanges(old, {id, a}));
  CHECK(divisionChanges(old, {id, row(u"a", u"L", u"4", 1), b}));
  CHECK(divisionChanges(old, {id, row(u"a", u"R", u"3", 1), b}));
  CHECK(divisionChanges(old, {id, b}));
  CHECK(divisionChanges(old, {id, row(u"a", u"L", u"3"), a, b}));
}

TEST_CASE("cells follow their rows, trimmed and set to the new side") {
  const std::vector<ItemLine> old = {{u"ID", u"L", 2}, {u"a", u"L", 6}, {u"b", u"R", 4}};
  const std::vector<DesignRow> rows = {row(u"ID", u"R", u"3", 0), row(u"new", u"L", u"2"), row(u"b", u"L", u"5", 2),
                                       row(u"a", u"R", u"3", 1)};
  std::string before = "1 abcde   80";
  before.resize(256, '#');
  std::string after(256, ' ');
  layCells(redesignedCells(old, rows), before.data(), after.data());
  CHECK(after.substr(0, 13) == "  1  80   cde");
}
