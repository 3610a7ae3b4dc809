// The single steps of the evaluator: items to numbers, the two operands of an operator, its result.
#include <cmath>
#include <limits>

#include "editor/formulas/formula.h"
#include "editor/formulas/formulawork.h"
#include "platform/host.h"
#include "platform/text/number.h"
#include "store/records/records.h"
#include "store/table/cursor.h"

namespace zelko {

namespace {

constexpr int kDataFile = 1;
constexpr TextView kHalt = u"式の計算を続けられません。演算子の前後に数値が足りません。";
constexpr TextView kDigits = u"0123456789";
constexpr char16_t kItemMark = u'@';

bool isOperator(char16_t ch) { return TextView(u"-+*/^\\").find(ch) != TextView::npos; }
bool isOperandPart(char16_t ch) { return kDigits.find(ch) != TextView::npos || ch == u'.' || ch == kItemMark; }
bool isSign(char16_t ch) { return ch == u'-' || ch == u'+'; }

// How many digits stand at `from`.
std::size_t digitsAt(TextView text, std::size_t from) {
  const std::size_t end = text.find_first_not_of(kDigits, from);
  return (end == TextView::npos ? text.size() : end) - from;
}

// Read from disk: what waits in the current row is not seen.
Text numberOfItem(int item) {
  CacheRow row;
  getRec(kDataFile, curRec, row);
  return trimmed(str(val(cellOfRow(row, item))));
}

int itemNumber(TextView digits) { return digits.empty() ? curItem : toInt16(val(digits)); }

// An operand that was not expanded before.
Text withItem(Text operand) {
  const std::size_t at = operand.find(kItemMark);
  if (at == Text::npos) return operand;
  const std::size_t digits = digitsAt(operand, at + 1);
  if (digits == 0) {
    host().beep();
    haltFormula();
  }
  return operand.replace(at, digits + 1, numberOfItem(itemNumber(TextView(operand).substr(at + 1, digits))));
}

bool operatorAt(TextView text, std::size_t position) {
  return position >= 1 && position <= text.size() && isOperator(text[position - 1]);
}

float asSingle(double value) {
  if (!(std::fabs(value) <= static_cast<double>(std::numeric_limits<float>::max()))) throw Fault{kOverflow};
  return static_cast<float>(value);
}

float operandValue(TextView operand) {
  if (operand.starts_with(kItemMark)) return asSingle(val(withItem(Text(operand))));
  return asSingle(val(operand));
}

float divided(float left, float right) {
  if (right == 0) throw Fault{kDivisionByZero};
  return asSingle(static_cast<double>(left / right));
}

// Whole numbers of 32 bits; their quotient always fits a double.
float whole(float left, float right, bool remainder) {
  const std::int64_t dividend = toInt32(static_cast<double>(left)), divisor = toInt32(static_cast<double>(right));
  if (divisor == 0) throw Fault{kDivisionByZero};
  const std::int64_t result = remainder ? dividend % divisor : dividend / divisor;
  if (result > std::numeric_limits<std::int32_t>::max()) throw Fault{kOverflow};
  return static_cast<float>(result);
}

}  // namespace

void haltFormula() { throw Fault{Text(kHalt)}; }

bool isHalt(const Fault& fault) { return fault.text == kHalt; }

bool isOneNumber(TextView text) {
  std::size_t at = !text.empty() && isSign(text[0]) ? 1 : 0;
  const std::size_t front = at;
  while (at < text.size() && (kDigits.find(text[at]) != TextView::npos || text[at] == u'.')) ++at;
  if (at == front) return false;
  if (at == text.size()) return true;
  if (text[at] != u'E' || at + 1 == text.size() || !isSign(text[at + 1])) return false;
  const std::size_t digits = digitsAt(text, at + 2);
  return digits > 0 && at + 2 + digits == text.size();
}

Text expandItems(TextView text) {
  Text out(text);
  for (std::size_t at = out.find(kItemMark); at != Text::npos; at = out.find(kItemMark)) {
    const std::size_t digits = digitsAt(out, at + 1);
    out.replace(at, digits + 1, numberOfItem(itemNumber(TextView(out).substr(at + 1, digits))));
  }
  return out;
}

Text leftOperand(TextView text, std::size_t position) {
  if (!operatorAt(text, position)) return u"LsikiError";
  std::size_t from = position - 1;
  while (from > 0 && isOperandPart(text[from - 1])) --from;
  // Whatever stands at the very front is taken for a sign.
  if (from == 1) from = 0;
  return withItem(Text(text.substr(from, position - 1 - from)));
}

Text rightOperand(TextView text, std::size_t position) {
  if (!operatorAt(text, position)) return u"RsikiError";
  std::size_t end = position;
  if (end < text.size() && isSign(text[end])) ++end;
  while (end < text.size() && isOperandPart(text[end])) ++end;
  return withItem(Text(text.substr(position, end - position)));
}

float applyOp(TextView left, char16_t op, TextView right) {
  const float a = operandValue(left), b = operandValue(right);
  switch (op) {
    case u'+':
      return asSingle(static_cast<double>(a + b));
    case u'-':
      return asSingle(static_cast<double>(a - b));
    case u'*':
      return asSingle(static_cast<double>(a * b));
    case u'/':
      return divided(a, b);
    case u'\\':
      return whole(a, b, false);
    case u'M':
      return whole(a, b, true);
    case u'^':
      return asSingle(std::pow(static_cast<double>(a), static_cast<double>(b)));
    default:
      haltFormula();
  }
}

}  // namespace zelko
