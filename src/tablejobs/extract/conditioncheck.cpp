// What is wrong with a table of conditions, and the form in which its cells are tested.
#include <algorithm>
#include <array>

#include "editor/formulas/formula.h"
#include "parts/ask/typed.h"
#include "platform/fault.h"
#include "platform/text/format.h"
#include "platform/text/number.h"
#include "platform/text/width.h"
#include "tablejobs/extract/conditions.h"

namespace zelko {

namespace {

bool isBlank(const ConditionRow& row) {
  return std::ranges::all_of(std::array{&row.type, &row.item, &row.relation, &row.value},
                             [](const Text* cell) { return trimmed(*cell).empty(); });
}

Text narrow(TextView cell) { return upperCase(toHalfWidth(cell)); }

Text faultOfType(ConditionRow& row) {
  row.type = trimmed(narrow(row.type));
  return row.type == u"N" || row.type == u"L" ? u"" : u"判断タイプはＬかＮを入れて下さい";
}

Text faultOfItem(ConditionRow& row) {
  row.item = removeBlanks(narrow(row.item));
  const bool digits = !row.item.empty() && row.item.find_first_not_of(u"0123456789") == Text::npos;
  if (!digits) return u"数字で項目番号を入れて下さい";
  return typedItem(row.item) ? u"" : u"存在する項目番号を入れて下さい";
}

Text faultOfRelation(ConditionRow& row) {
  row.relation = removeBlanks(narrow(row.relation));
  const Relation relation = relationOf(row.relation);
  if (row.type == u"N") return isForNumbers(relation) ? u"" : u"<,>,<=,>=,=を入れて下さい";
  return relation != Relation::unknown ? u"" : u"<,>,<=,>=,=,[,]を入れて下さい";
}

// Computed with 1 for every item: what is missing then is missing in every record.
Text faultOfComputing(TextView formula) {
  Text tried;
  for (std::size_t at = 0; at < formula.size(); ++at) {
    tried += formula[at] == u'@' ? u'1' : formula[at];
    if (formula[at] == u'@') at = std::min(formula.find_first_not_of(u"0123456789", at + 1), formula.size()) - 1;
  }
  try {
    if (formulaValue(tried) || contains(formula, u"@")) return {};
    return u"計算できません";
  } catch (const Fault&) {
    return u"演算子の前後に数値がありません";
  }
}

Text faultOfNumber(ConditionRow& row) {
  row.value = removeBlanks(narrow(row.value));
  if (row.value.empty()) return u"比較する数値を入れて下さい";
  Text message;
  checkNumExpression(row.value, message);
  return message.empty() ? faultOfComputing(row.value) : message;
}

Text faultOfText(ConditionRow& row, bool caseCounts) {
  row.value = trimmed(caseCounts ? row.value : upperCase(row.value));
  if (row.relation != u"|") return {};
  try {
    likeMatch({}, row.value);
    return {};
  } catch (const Fault&) {
    return u"[ ]の使い方が正しくありません";
  }
}

Text faultOf(ConditionRow& row, bool caseCounts) {
  Text fault = faultOfType(row);
  if (fault.empty()) fault = faultOfItem(row);
  if (fault.empty()) fault = faultOfRelation(row);
  if (fault.empty()) fault = row.type == u"N" ? faultOfNumber(row) : faultOfText(row, caseCounts);
  return fault;
}

}  // namespace

Text checkConditions(std::vector<ConditionRow>& rows, bool caseCounts) {
  while (!rows.empty() && isBlank(rows.back())) rows.pop_back();
  if (rows.empty()) return u"検索条件表が全く未記入です";
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const Text fault = faultOf(rows[i], caseCounts);
    if (!fault.empty()) return u"条件" + decimal(static_cast<std::int64_t>(i) + 1) + u"は" + fault;
  }
  return {};
}

}  // namespace zelko
