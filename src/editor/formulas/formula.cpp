#include "editor/formulas/formula.h"

#include "editor/formulas/formulawork.h"
#include "platform/fault.h"
#include "platform/text/number.h"

namespace zelko {

namespace {

constexpr TextView kPasses[] = {u"^", u"*/\\", u"+-"};
constexpr int kPowers = 0, kSums = 2;

// When `value` takes the place of what begins at `start`, the sign before it may swallow that of the value. Behind
// a "+" the sign gets lost unless the pass is that of the products.
Text joined(TextView text, std::size_t start, std::size_t length, Text value, bool products) {
  Text head(text.substr(0, start));
  const bool negative = value.starts_with(u'-');
  if (negative && head.ends_with(u'-')) {
    head.back() = u'+';
    value.erase(0, 1);
  } else if (negative && head.ends_with(u'+')) {
    if (products) head.back() = u'-';
    value.erase(0, 1);
  }
  return head + value + Text(text.substr(start + length));
}

// False where an operand makes the evaluation fail.
bool reduceAt(Text& work, std::size_t at, int pass) {
  const Text left = leftOperand(work, at + 1), right = rightOperand(work, at + 1);
  const bool broken = contains(left, u"Err") || contains(right, u"Err");
  if (broken && pass == kSums) return false;
  if (broken || left.empty() || right.empty()) haltFormula();
  const Text value = trimmed(str(applyOp(left, work[at], right)));
  const Text step = left + work[at] + right;
  const std::size_t start = work.find(step);
  if (start == Text::npos) haltFormula();
  work = joined(work, start, step.size(), value, pass != kPowers && pass != kSums);
  return true;
}

// A sign at the very front is no operator, nor is that of the exponent of the one number that is left.
std::size_t operatorOf(const Text& work, int pass) {
  if (pass == kSums && isOneNumber(work)) return Text::npos;
  return work.find_first_of(kPasses[pass], pass == kSums ? 1 : 0);
}

bool reduce(Text& work) {
  for (int pass = kPowers; pass <= kSums; ++pass)
    for (std::size_t at = operatorOf(work, pass); at != Text::npos; at = operatorOf(work, pass))
      if (!reduceAt(work, at, pass)) return false;
  return true;
}

double fail(Text& text) {
  text = u"error";
  return 0;
}

}  // namespace

double evalFormula(Text& text) {
  Text rest = expandItems(text);
  for (;;) {
    const std::size_t open = rest.rfind(u'(');
    if (open == Text::npos) {
      if (contains(rest, u")") || !reduce(rest)) return fail(text);
      return val(rest);
    }
    const std::size_t shut = rest.find(u')', open);
    if (shut == Text::npos) return fail(text);
    Text work = rest.substr(open + 1, shut - open - 1);
    if (!reduce(work)) return fail(text);
    rest = joined(rest, open, shut - open + 1, std::move(work), false);
  }
}

std::optional<double> formulaValue(TextView text) {
  try {
    Text work(text);
    const double value = evalFormula(work);
    if (work == u"error") return std::nullopt;
    return value;
  } catch (const Fault& fault) {
    if (isHalt(fault)) throw;
    return std::nullopt;
  }
}

}  // namespace zelko
