#include "tablejobs/extract/conditions.h"

#include "editor/formulas/formula.h"
#include "platform/fault.h"
#include "platform/text/number.h"
#include "platform/text/sjis.h"
#include "store/records/walk.h"
#include "store/table/cursor.h"

namespace zelko {

namespace {

constexpr TextView kDigits = u"0123456789";

// The number as a formula takes it: through its printed form.
double asPrinted(double value) { return val(str(value)); }

double computed(TextView formula) {
  const std::optional<double> value = formulaValue(formula);
  if (!value) throw Fault{u"条件の式を計算できません。"};
  return asPrinted(*value);
}

}  // namespace

ConditionTest::ConditionTest(const std::vector<ConditionRow>& rows, ConditionLogic logic) : logic_(logic) {
  for (const ConditionRow& row : rows) rows_.push_back(compiled(row));
}

ConditionTest::Row ConditionTest::compiled(const ConditionRow& row) const {
  Row out;
  out.number = row.type == u"N";
  out.item = toInt16(val(row.item));
  out.relation = relationOf(row.relation);
  out.value = trimmed(out.number ? row.value : asStored(row.value));
  if (!out.number && !logic_.caseCounts) out.value = upperCase(out.value);
  if (!out.number) return out;
  if (!contains(out.value, u"@")) out.constant = computed(out.value);
  const bool alone =
      out.value.size() > 1 && out.value[0] == u'@' && out.value.find_first_not_of(kDigits, 1) == Text::npos;
  if (alone) out.itemAlone = toInt16(val(out.value.substr(1)));
  return out;
}

double ConditionTest::valueOf(const Row& row, const WalkedRecord& record) const {
  if (row.constant) return *row.constant;
  if (row.itemAlone) return asPrinted(val(record.cell(*row.itemAlone)));
  // The formula looks at the record of the cursor.
  const std::int32_t cursor = curRec;
  curRec = record.number();
  try {
    const double value = computed(row.value);
    curRec = cursor;
    return value;
  } catch (...) {
    curRec = cursor;
    throw;
  }
}

bool ConditionTest::holds(const Row& row, const WalkedRecord& record) const {
  const Text cell = record.cell(row.item);
  if (row.number) return numberHolds(val(cell), row.relation, valueOf(row, record));
  const Text text = trimmed(cell);
  return textHolds(logic_.caseCounts ? text : upperCase(text), row.relation, row.value);
}

bool ConditionTest::passes(const WalkedRecord& record) {
  failedRow_ = 0;
  for (const Row& row : rows_) {
    ++failedRow_;
    if (holds(row, record) == logic_.negative) return false;
  }
  return true;
}

}  // namespace zelko
