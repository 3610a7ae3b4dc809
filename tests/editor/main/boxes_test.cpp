// A jump from the number boxes, and the views.
#include <doctest/doctest.h>

#include "editor/editor_fixture.h"
#include "editor/main/state.h"
#include "editor/moves/moves.h"
#include "editor/show/card.h"
#include "editor/show/sheet.h"
#include "editor/show/view.h"
#include "store/records/records.h"
#include "store/table/cursor.h"

using namespace zelko;
using namespace zelko::test;

namespace {

const std::vector<ItemOfTable> kItems = {{u"ID", 3}, {u"氏名", 6}, {u"点", 3, u'R'}};
const Rows kRecords = {{u"1", u"山田", u"80"}, {u"2", u"x", u"7"}, {u"3", u"y", u"100"}};

}  // namespace

TEST_CASE_FIXTURE(EditorFixture, "the sheet shows the cached records, the cursor and what is typed") {
  open(kItems, kRecords, 0);
  auto& sheet = form<frmSHEET>();
  Grid& grid = sheet.Grid1;
  CHECK(utf8(sheet.caption()) == "全項目(0～2)記録3");
  CHECK(utf8(grid.cell(0, 2)) == "氏名");
  CHECK(utf8(grid.cell(1, 2)) == "山田");
  CHECK(utf8(grid.cell(3, 0)) == "3");
  play({"Down", "Right", "commit zz"});
  CHECK(std::pair{grid.row(), grid.col()} == std::pair{2, 2});
  CHECK(utf8(sheet.Label1.caption()) == "zz");
  play({"Esc"});
  CHECK(utf8(sheet.Label1.caption()) == "x");
}

TEST_CASE_FIXTURE(EditorFixture, "the card shows the current record item by item") {
  open(kItems, kRecords, 1);
  showView(1);
  Grid& grid = form<frmKOJIND>().Grid1;
  play({"Down"});
  CHECK(grid.rows() == 4);
  CHECK(utf8(grid.cell(2, 1)) == "氏名");
  CHECK(utf8(grid.cell(2, 2)) == "x");
  CHECK_FALSE(form<frmSHEET>().visible());
}
