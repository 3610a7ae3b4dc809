#include "parts/ranges/rangetext.h"

#include <doctest/doctest.h>

#include "store/table/table.h"

using namespace zelko;

TEST_CASE("blocks keep their written order, and a bad range names what is wrong") {
  CHECK(rangeBlocks(u"10-15/80-100/3") == std::vector<NumberBlock>{{10, 15}, {80, 100}, {3, 3}});
  CHECK(rangeBlocks(u"-5/３－/") == std::vector<NumberBlock>{{5, 5}, {3, 0}});
  CHECK(rangeBlocks(u"/").empty());
  CHECK(numbersOfRange(u"6/0-2/6/7-3", 255) == std::vector<std::int32_t>{6, 0, 1, 2, 6});
  CHECK_FALSE(numbersOfRange(u"0-4000000000", 255));

  resetTable();
  itemCount = 12;
  const std::pair<TextView, TextView> rows[] = {
      {u"0-3/6/9-12", u""},
      {u"7-3", u""},
      {u"13", u"指定値が最大項目番号をオーバ"},
      {u"99999999999999999999", u"指定値が最大項目番号をオーバ"},
      {u"1--3", u"ブロック中に１以上の「－」がある"},
      {u"1 - 3", u"数字-/以外の文字が含まれる、又は無駄なスペースが含まれる"},
  };
  for (const auto& [typed, wanted] : rows) {
    Text text(typed), message;
    checkRangeText(text, message, kItemRange);
    CHECK(message == wanted);
    CHECK(text.empty());
  }
  Text text = u"3-", message;  // no table is open: no record is there
  checkRangeText(text, message, kRecordRange);
  CHECK(message == u"レコード番号がオーバ");
}
