// The check for one unbroken run of items, in a table of 10 items.
#include "stats/correlation/serialitems.h"

#include <doctest/doctest.h>

using namespace zelko;

TEST_CASE("items of a run: unbroken, and enough of them, one more at the end of the table") {
  CHECK(chkSerial({}, 10) == u"項目番号がチェックされていません");
  CHECK(chkSerial({2, 3, 5, 6, 7}, 10) == u"項目指定は連続していなければなりません。");
  CHECK(chkSerial({2, 3, 4}, 10) == u"変数の数が3以下です");
  CHECK(chkSerial({2, 3, 4, 5}, 10).empty());
  CHECK(chkSerial({7, 8, 9, 10}, 10) == u"変数の数が3以下です");
  CHECK(chkSerial({6, 7, 8, 9, 10}, 10).empty());
}
