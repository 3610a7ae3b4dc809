// The evaluator against numbers worked out by hand in single precision, its faults included.
#include "editor/formulas/formula.h"

#include "editor/clip/clip_session.h"
#include "editor/formulas/formulaform.h"
#include "platform/fault.h"
#include "platform/text/number.h"
#include "store/table/cursor.h"
#include "store/table/table.h"

using namespace zelko;
using namespace zelko::test;

namespace {

// The printed value, "error", "halt" or the text of the fault.
std::string valueOf(const char* formula) {
  Text text = fromUtf8(formula);
  try {
    const double value = evalFormula(text);
    return text == u"error" ? "error" : toUtf8(trimmed(str(value)));
  } catch (const Fault& fault) {
    const std::string what = toUtf8(fault.text);
    return what.starts_with("式の計算を続けられません") ? "halt" : what;
  }
}

const std::string kOver = toUtf8(kOverflow), kByZero = toUtf8(kDivisionByZero), kBeyond = toUtf8(kSubscript);

}  // namespace

TEST_CASE_FIXTURE(ClipSession, "formulas and their values") {
  struct Row {
    const char* formula;
    std::string value;
  };
  const std::vector<Row> rows = {
      // Order of operators.
      {"1+2*3", "7"},
      {"7\\2", "3"},
      {"2.5\\1", "2"},
      {"-7\\2", "-3"},
      {"100/5*2", "40"},
      {"7\\2*3/2", "4.5"},
      {"2^3^2", "64"},
      {"10-4-3", "3"},
      {"2^.5", "1.414214"},
      {"2^-1", ".5"},
      {"1/3", ".3333333"},
      {"", "0"},
      // Signs.
      {"-3+5", "2"},
      {"3--2", "5"},
      {"-3^2", "9"},
      {"2+3*-4", "-10"},
      // Brackets, and the sign that gets lost behind "+".
      {"(((4)))", "4"},
      {"(1+2)*(3+4)", "21"},
      {"10+(2-5)", "13"},
      {"10-(2-5)", "13"},
      {"10+2*(0-3)", "4"},
      {"1+(0-2)^2", "5"},
      {"2*(3", "error"},
      {"2*3)", "error"},
      {")2(", "error"},
      // Seven digits, and what an exponent does to a chain.
      {"123456789+1", "123456800"},
      {"0.1+0.2", ".3"},
      {"1/30", ".03333334"},
      {"2*(123456789+1)", "246913600"},
      {"123456789+1+1", "halt"},
      {"1/30+1", "halt"},
      {"10^20*10^20", "halt"},
      // Where an operand is missing.
      {"*3", "halt"},
      {"5+", "halt"},
      {"2*()", "halt"},
      {"1+*2", "halt"},
      // Division by zero and overflow.
      {"1/0", kByZero},
      {"1\\0", kByZero},
      {"0^-1", kOver},
      {"(0-8)^.5", kOver},
      {"10^39", kOver},
      {"3000000000\\1", kOver},
      // Items: of record 1, with the cursor on 12 in item 2.
      {"@", "12"},
      {"@0+@2", "13"},
      {"(@2+@)*2", "48"},
      {"@1+1", "1"},
      {"@3", "0"},
      {"@300", kBeyond},
      {"@99999", kOver},
  };
  cursorTo(1, 2);
  for (const Row& row : rows) {
    CAPTURE(row.formula);
    std::string value;
    run([&] { value = valueOf(row.formula); });
    CHECK(value == row.value);
  }
}

TEST_CASE_FIXTURE(ClipSession, "operands, single steps and the check") {
  cursorTo(1, 2);
  CHECK(leftOperand(u"12+3", 3) == u"12");
  CHECK(leftOperand(u"-12+3", 4) == u"-12");
  CHECK(leftOperand(u"1-12+3", 5) == u"12");
  CHECK(leftOperand(u"12+3", 1) == u"LsikiError");
  CHECK(leftOperand(u"12+3", 0) == u"LsikiError");
  CHECK(leftOperand(u"12+3", 9) == u"LsikiError");
  CHECK(rightOperand(u"12+3*4", 3) == u"3");
  CHECK(rightOperand(u"12+-3*4", 3) == u"-3");
  CHECK(rightOperand(u"12+3", 5) == u"RsikiError");
  std::vector<Text> items;
  run([&] { items = {leftOperand(u"@0*2", 3), rightOperand(u"2-@2", 2), expandItems(u"@0@2x@")}; });
  CHECK(items == std::vector<Text>{u"1", u"12", u"112x12"});
  CHECK(applyOp(u"17", u'M', u"5") == 2);
  CHECK(applyOp(u"16777217", u'-', u"0") == 16777216);
  CHECK_THROWS_AS(applyOp(u"1", u'x', u"1"), Fault);

  const std::vector<std::pair<const char16_t*, const char16_t*>> checks = {
      {u"(@1+@)*2", u""},
      {u"1|2", u""},
      {u"*3", u""},
      {u"1+x", u"許されない文字[x]が使われています"},
      {u"1 +2)", u"許されない文字[ ]が使われています"},
      {u"1+@", u"@後の項目番号がありません"},
      {u"@0+1", u"@後の項目番号が不正です"},
      {u"@4", u"@後の項目番号が不正です"},
      {u"@3", u""},
      {u"@99999999999999999999", u"@後の項目番号が不正です"},
      {u"(1+2", u"括弧の数、向きが合いません"},
      {u")1(", u"括弧の数、向きが合いません"},
      {u"(1))", u"括弧の数又は向きが合いません"},
  };
  for (const auto& [formula, wanted] : checks) {
    Text message = u"old";
    checkFormula(formula, message);
    CHECK(message == wanted);
  }
}

TEST_CASE_FIXTURE(ClipSession, "a long result on the ID item is the fault that it always was") {
  formulaSlot[0] = u"123456";
  play("key Ctrl+Num3\nkey Y");
  CHECK(ended());
  CHECK(events().back() == "fault " + kBeyond);
}
