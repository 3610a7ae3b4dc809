#include "stats/calculators/calculation.h"

#include <cmath>
#include <optional>

#include "editor/formulas/formula.h"
#include "parts/ask/checkednumber.h"
#include "parts/ask/typed.h"
#include "platform/fault.h"
#include "platform/text/format.h"
#include "platform/text/number.h"
#include "stats/numbers/exact.h"
#include "stats/numbers/probability.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr TextView kSetting = u"設定値エラー", kDegrees = u"自由度エラー", kEntry = u"入力値エラー";
constexpr TextView kArea = u"##0.00000", kProbability = u"###0.00000", kFourDigits = u"0.0000";
constexpr int kMostTrials = 10000, kMostDegrees = 32767;

bool isBlank(const Text& typed) { return typedCode(typed).empty(); }

Calculation wrong(int box, TextView text, TextView title) {
  Calculation result;
  result.fault = text;
  result.faultTitle = title;
  result.faultBox = box;
  return result;
}

Text exactSentence(double exact) {
  return u"正確な値わ、" + (exact < 0.0001 ? Text(u"0.0001未満") : format(exact, kFourDigits));
}

// The exact value where the told figure is another one to four digits.
Text exactWords(double told, double exact) {
  return numbers::sameToFourDigits(told, exact) ? Text() : markStop + exactSentence(exact);
}

Calculation probability(double told, double exact) {
  Calculation result;
  result.line = format(told, kProbability);
  result.spoken = u"確率わ、" + result.line + exactWords(told, exact);
  return result;
}

// Whole degrees of freedom, at least 1; `result` has the fault else.
std::optional<int> degrees(const Text& typed, int box, const Text& notANumber, const Text& tooFew, TextView title,
                           Calculation& result) {
  const auto value = checkedNumber(typed);
  const bool tooMany = value && *value > kMostDegrees;
  if (!value || tooMany) {
    result = wrong(box, notANumber, title);
    return std::nullopt;
  }
  const int whole = toInt32(*value < -1 ? -1 : *value);
  if (whole >= 1) return whole;
  result = wrong(box, tooFew, title);
  return std::nullopt;
}

std::optional<double> zOf(const CalculatorBoxes& boxes, Calculation& result) {
  const auto first = checkedNumber(boxes.values[0]);
  if (!first) return std::nullopt;
  if (!boxes.raw) return std::fabs(*first);
  const auto deviation = checkedNumber(boxes.values[1]), mean = checkedNumber(boxes.values[2]);
  if (!isBlank(boxes.values[1]) && (!deviation || *deviation == 0)) {
    result = wrong(1, u"標準偏差の値が不正です", kSetting);
  } else if (!isBlank(boxes.values[2]) && !mean) {
    result = wrong(2, u"平均値が不正です", kSetting);
  }
  if (!deviation || !mean || *deviation == 0) return std::nullopt;
  const double z = (*first - *mean) / *deviation;
  result.z = format(z, u"###.#####");
  return std::fabs(z);
}

Calculation normalCalculation(const CalculatorBoxes& boxes) {
  Calculation result;
  const auto z = zOf(boxes, result);
  if (!z) return result;
  const double p = numbers::norm(*z), tail = 1 - p;
  result.line = format(p - 0.5, kArea) + format(tail, u" (##0.00000)");
  result.spoken = (result.z.empty() ? Text() : u"zわ、" + result.z + u"。") + u"平均からzまでの確率わ、" +
                  format(p - 0.5, kArea) + u"、上側確率わ、" + format(tail, kArea) +
                  exactWords(tail, numbers::normalTail(*z));
  return result;
}

Calculation tCalculation(const CalculatorBoxes& boxes) {
  const auto t = checkedNumber(boxes.values[0]);
  Calculation result;
  if (isBlank(boxes.values[1])) return result;
  const auto v = degrees(boxes.values[1], 1, u"正しく自由度を入力してください", u"1以上の自由度を入力してください",
                         kDegrees, result);
  if (!v || !t) return result;
  return probability(numbers::prbT(*t, *v), numbers::tExact(*t, *v));
}

Calculation chiCalculation(const CalculatorBoxes& boxes) {
  const auto chi = checkedNumber(boxes.values[0]);
  Calculation result;
  if (isBlank(boxes.values[1])) return result;
  const auto v = degrees(boxes.values[1], 1, u"正しく自由度を入力してください", u"1以上の自由度を入力してください",
                         kDegrees, result);
  if (!v || !chi || *chi < 0) return result;
  const double exact = numbers::chiExact(*chi, *v);
  try {
    return probability(numbers::chiP(*chi, *v), exact);
  } catch (const Fault&) {
    // Beyond the series there is no line; the exact value can still be told.
    result.spoken = exactSentence(exact);
    return result;
  }
}

Calculation fCalculation(const CalculatorBoxes& boxes) {
  const auto value = checkedNumber(boxes.values[0]);
  Calculation result;
  if (isBlank(boxes.values[1])) return result;
  const Text numerator = u"自由度(分子)の値が不正です", denominator = u"自由度(分母)の値が不正です";
  const auto m = degrees(boxes.values[1], 1, numerator, numerator, kSetting, result);
  if (!m || isBlank(boxes.values[2])) return result;
  const auto n = degrees(boxes.values[2], 2, denominator, denominator, kSetting, result);
  if (!n || !value || *value < 0) return result;
  const double p = *value == 0 ? 1 : numbers::prbF(*value, *m, *n);
  return probability(p, p);
}

// A number as it is, else a formula such as 1/6; nothing where it is neither.
std::optional<double> rateOf(const Text& typed, bool& isNumber) {
  const auto number = typedNumber(typed);
  isNumber = number.has_value();
  if (number) return number;
  try {
    return formulaValue(typedCode(typed));
  } catch (const Fault&) {
    return std::nullopt;  // an operand is missing
  }
}

Calculation toldBinomial(int r, double p, int n) {
  const auto told = numbers::Bp(r, p, n), exact = numbers::binomialExact(r, p, n);
  Calculation result;
  result.line = format(told.probability, u" ###0.00000000000000000") + format(told.sum, u"(##0.00000000000000000)");
  result.spoken = u"ちょうど" + decimal(r) + u"回の確率わ、" + format(told.probability, kProbability) +
                  exactWords(told.probability, exact.probability) + u"。" + decimal(r) + u"回までの累積確率わ、" +
                  format(told.sum, kProbability) + exactWords(told.sum, exact.sum);
  return result;
}

Calculation binomialCalculation(const CalculatorBoxes& boxes) {
  const auto& [events, rate, trials] = boxes.values;
  const auto r = checkedNumber(events), n = checkedNumber(trials);
  if (r && n && *r > *n) return wrong(0, u"生起回数入力値が試行回を越しています", kEntry);
  if (r && *r < 0) return wrong(0, u"生起回数の値が不正です", kEntry);
  bool isNumber = false;
  const bool rateGiven = !isBlank(rate);
  const double p = rateGiven ? rateOf(rate, isNumber).value_or(-1) : -1;
  const bool inside = p >= 0 && p < 1;
  if (isNumber && !inside) return wrong(1, u"出現率の値が不正です", kSetting);
  if (!isBlank(trials) && !n) return wrong(2, u"試行回の値が不正です", kSetting);
  if (n && *n > kMostTrials) return wrong(2, u"試行回は1万回以下に設定してください", kSetting);
  if (rateGiven && !inside) {
    return wrong(1, u"出現率の値が不正です.式又は数値の＞＝0～＜1を設定してください", kSetting);
  }
  return r && n && inside ? toldBinomial(toInt32(*r), p, toInt32(*n)) : Calculation();
}

Calculation calculated(Calculator kind, const CalculatorBoxes& boxes) {
  switch (kind) {
    case Calculator::normal:
      return normalCalculation(boxes);
    case Calculator::t:
      return tCalculation(boxes);
    case Calculator::F:
      return fCalculation(boxes);
    case Calculator::chiSquare:
      return chiCalculation(boxes);
    case Calculator::binomial:
      break;
  }
  return binomialCalculation(boxes);
}

}  // namespace

Calculation calculate(Calculator kind, const CalculatorBoxes& boxes) {
  try {
    return calculated(kind, boxes);
  } catch (const Fault&) {
    return {};
  }
}

}  // namespace zelko
