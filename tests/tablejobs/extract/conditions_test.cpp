// Conditions: what the check says of a table, and how a cell stands to a value.
#include "tablejobs/extract/conditions.h"

#include <doctest/doctest.h>

#include "store/store_fixture.h"
#include "tablejobs/extract/comparecell.h"

using namespace zelko;
using namespace zelko::test;

TEST_CASE("the check names the first row that is wrong, and how") {
  StoreFixture store;
  store.table("t.txt", {4, 4, 4}, {"1"});
  REQUIRE(store.open("t.txt"));
  struct Row {
    ConditionRow typed;
    TextView message;
    ConditionRow after = {};
  };
  const Row rows[] = {
      {{u"", u"", u" ", u""}, u"検索条件表が全く未記入です"},
      {{u"x", u"1", u"=", u"1"}, u"条件1は判断タイプはＬかＮを入れて下さい"},
      {{u"", u"1", u"", u""}, u"条件1は判断タイプはＬかＮを入れて下さい"},
      {{u"N", u"1a", u"=", u"1"}, u"条件1は数字で項目番号を入れて下さい"},
      {{u"N", u"3", u"=", u"1"}, u"条件1は存在する項目番号を入れて下さい"},
      {{u"N", u"1", u"[", u"1"}, u"条件1は<,>,<=,>=,=を入れて下さい"},
      {{u"L", u"1", u"==", u"1"}, u"条件1は<,>,<=,>=,=,[,]を入れて下さい"},
      {{u"N", u"1", u"=", u" "}, u"条件1は比較する数値を入れて下さい"},
      {{u"N", u"1", u"=", u"12a"}, u"条件1は許されない文字[A]が使われています"},
      {{u"N", u"1", u"=", u"@*2"}, u"条件1は@後の項目番号がありません"},
      {{u"N", u"1", u"=", u"@3"}, u"条件1は@後の項目番号が不正です"},
      {{u"N", u"1", u"=", u"1)"}, u"条件1は括弧の数又は向きが合いません"},
      {{u"N", u"1", u"=", u"((1)"}, u"条件1は括弧の数、向きが合いません"},
      {{u"N", u"1", u"=", u"@0*"}, u"条件1は演算子の前後に数値がありません"},
      {{u"N", u"1", u"=", u"1/0"}, u"条件1は計算できません"},
      {{u"L", u"1", u"|", u"a[b"}, u"条件1は[ ]の使い方が正しくありません"},
      {{u"ｎ", u" １", u"＝ ＞", u"（＠０ ＋２）"}, u"", {u"N", u"1", u"=>", u"(@0+2)"}},
      {{u"l", u"2", u"［", u" 東 a "}, u"", {u"L", u"2", u"[", u"東 A"}},
  };
  for (const Row& row : rows) {
    std::vector<ConditionRow> typed = {row.typed, {}, {u" ", u"", u"", u""}};
    CAPTURE(toUtf8(row.message));
    CHECK(checkConditions(typed, false) == row.message);
    if (row.message.empty()) CHECK(typed == std::vector{row.after});
  }
  std::vector<ConditionRow> gap = {{u"L", u"1", u"=", u"a"}, {}, {u"L", u"1", u"=", u"a"}};
  CHECK(checkConditions(gap, true) == u"条件2は判断タイプはＬかＮを入れて下さい");
  CHECK(gap[0].value == u"a");  // the case counts
}

TEST_CASE("compareCell: numbers by value, texts by code, patterns, unknown signs") {
  StoreFixture store;
  struct Row {
    TextView cell, relation, value;
    int type, result;
  };
  const Row rows[] = {
      {u" 12abc", u"=", u"12", kNumberType, 1}, {u"", u"=", u"0", kNumberType, 1},
      {u"9", u">", u"10", kNumberType, 0},      {u"9", u">", u"10", kTextType, 1},
      {u"-.5", u"=<", u"-1", kNumberType, 0},   {u"5", u"=>", u"5", kNumberType, 1},
      {u" 東 ", u"=", u"東", kTextType, 1},     {u"東京", u"[", u"京", kTextType, 1},
      {u"東京", u"]", u"京", kTextType, 0},     {u"", u"]", u"京", kTextType, 1},
      {u"A12", u"|", u"[A-C]##", kTextType, 1}, {u"A12", u"|", u"?#", kTextType, 0},
      {u"A12", u"|", u"*2", kTextType, 1},      {u"1", u"|", u"1", kNumberType, -1},
      {u"1", u"<>", u"1", kTextType, -1},
  };
  for (const Row& row : rows) {
    CAPTURE(toUtf8(row.cell) + toUtf8(row.relation) + toUtf8(row.value));
    CHECK(compareCell(row.cell, row.relation, row.value, row.type) == row.result);
    CHECK(store.beeps() == (row.result < 0 ? 1 : 0));
  }
}
