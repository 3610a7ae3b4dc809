// What one cell becomes, apart from the forms.
#include <doctest/doctest.h>

#include "platform/text/numcheck.h"
#include "platform/text/sjis.h"
#include "tablejobs/replace/codetable.h"
#include "tablejobs/replace/formatcell.h"
#include "tablejobs/replace/kanatables.h"
#include "tablejobs/replace/replacing.h"

using namespace zelko;

TEST_CASE("replace: kana and widths, slips included") {
  CHECK(toHalfKana(u"ムデガパヴｱーあンョ") == u"ﾑ ﾃﾞﾞｶﾞパヴｱーあﾝｮ");
  CHECK(toFullKana(u"ﾑｶﾞﾊﾟｦｯｰ") == u"ム カﾞハﾟヲッｰ");
  CHECK(toFullWidth(u" a-Z 9\\｢､ ") == u"ａーＺ　９￥「、");
}

TEST_CASE("replace: parts and whole cells, by characters and not by bytes") {
  struct Row {
    ReplaceRule rule;
    TextView cell;
    bool hit;
    TextView result;
  };
  const Row rows[] = {
      {{.search = u"a", .with = u"bb"}, u"xAya", true, u"xbbybb"},
      {{.search = u"a", .with = u"bb", .caseCounts = true}, u"xAya", true, u"xAybb"},
      {{.search = u"a", .with = u"aa"}, u"aaa", true, u"aaaaaa"},
      {{.search = u"x", .with = u"", .equal = true}, u"xx", false, u""},
      {{.search = u"X", .with = u"無し", .equal = true}, u"x", true, u"無し"},
      {{.search = u"x", .with = u"済", .wholeCell = true}, u"axa", true, u"済"},
      {{.search = u"", .with = u"無"}, u"a", false, u""},
      {{.search = u"", .with = u"無", .wholeCell = true}, u"", true, u"無"},
      {{.search = u"\\", .with = u"/"}, u"表ソ", false, u""},  // whose second byte is the backslash
  };
  for (const Row& row : rows) {
    CAPTURE(toUtf8(row.cell));
    CHECK(isHit(row.rule, row.cell) == row.hit);
    if (row.hit) CHECK(fromSjis(replaceCell(row.rule, toSjis(row.cell))) == row.result);
  }
  // Codes with two forms and halves of characters beside the hit stay what they were.
  CHECK(replaceCell({.search = u"a", .with = u"b"},
                    "\xEE\xE0"
                    "a\x81") ==
        "\xEE\xE0"
        "b\x81");
}

TEST_CASE("replace: cells through a format") {
  const DateTime now{2026, 11, 23, 10, 5, 0};
  CHECK(formattedCell(FormatKind::number, u"1234.5", u"##,##0.00") == u"1,234.50");
  for (TextView cell : {u"", u"12abc", u"1e400", u"１２", u"1,000", u"-"}) {
    CAPTURE(toUtf8(cell));
    CHECK(formattedCell(FormatKind::number, cell, u"0") == std::nullopt);
  }
  CHECK(formattedCell(FormatKind::date, u"2026/1/5", u"ggg e年m月d日 aaaa") == u"令和 8年1月5日 月曜日");
  CHECK(formattedCell(FormatKind::date, u"9:05", u"hh:mm AM/PM") == u"09:05 AM");
  CHECK(formattedCell(FormatKind::date, u"9:05", u"yy/mm/dd") == std::nullopt);
  CHECK(formattedCell(FormatKind::date, u"未定", u"yy/mm/dd") == std::nullopt);
  CHECK(formattedCell(FormatKind::text, u"Abc", u">") == u"ABC");
  for (TextView pattern : {u"", u"円", u"0\"円", u"0\\"})
    CHECK(formatSample(FormatKind::number, pattern, now) == std::nullopt);
  CHECK(formatSample(FormatKind::number, u"On/Off", now) == u"On");
  CHECK(formatSample(FormatKind::date, u"日", now) == std::nullopt);
}

TEST_CASE("replace: what counts as a number, and the keys of a code file") {
  CHECK(numCheck(u"") == kBlankCell);
  for (TextView number : {u"0", u"0.00", u".", u"12abc", u"1e3", u"1.2.3"}) CHECK(numCheck(number) == 0);
  CHECK(numCheck(u"-") == 1);
  CHECK(numCheck(u"..1") == 2);
  CHECK(numCheck(u"0a") == 2);

  CodeTable table(false);
  table.add(u"a1 ", u" 東京 ");
  table.add(u"A1", u"大阪");
  table.add(u"  ", u"無");
  REQUIRE(table.find(u" A1"));
  CHECK(*table.find(u" A1") == u"東京");
  CHECK_FALSE(table.find(u""));
  CHECK_FALSE(table.find(u"a"));
}
