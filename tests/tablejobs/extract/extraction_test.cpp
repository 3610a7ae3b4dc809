// Extractions through their forms on random tables, beside a program that copies records one by one.
#include <algorithm>
#include <random>

#include "editor/editor_fixture.h"
#include "editor/main/commands.h"
#include "editor/show/view.h"
#include "files/output/output.h"
#include "files/output/outputform.h"
#include "platform/text/format.h"
#include "platform/text/number.h"
#include "platform/text/sjis.h"
#include "store/records/records.h"
#include "store/table/cursor.h"
#include "tablejobs/extract/form7.h"
#include "tablejobs/randomtable.h"
#include "voice/askforms.h"
#include "voice/dialogs.h"

using namespace zelko;
using namespace zelko::test;

namespace {

std::mt19937 random_;
int any(int below) { return static_cast<int>(random_() % static_cast<unsigned>(below)); }
template <std::size_t Size>
Text oneOf(const TextView (&texts)[Size]) {
  return Text(texts[any(static_cast<int>(Size))]);
}

std::string anyRecord() {
  constexpr std::string_view kPieces[] = {" ", "7",        "12",   "-3",       "1.5", "a",
                                          "A", "\x83\x5C", "\xB1", "\x93\x8C", "\x81"};
  std::string out;
  while (out.size() < 254)
    out.append(kPieces[any(static_cast<int>(std::size(kPieces)))]).append(static_cast<std::size_t>(any(3)), ' ');
  return out.substr(0, 254) + "\r\n";
}

Text cellOf(const std::string& record, int item) {
  const auto i = static_cast<std::size_t>(item);
  return trimmed(
      fromSjis(record.substr(static_cast<std::size_t>(itemStart[i] - 1), static_cast<std::size_t>(itemWidth[i]))));
}

// What the value of a condition is in that record: a number, an item, or an item times two and one.
double valueIn(const Text& value, const std::string& record) {
  if (value[0] != u'@') return val(value);
  const double item = val(cellOf(record, toInt16(val(value.substr(1)))));
  return contains(value, u"*") ? static_cast<double>(static_cast<float>(item) * 2 + 1) : val(str(item));
}

bool holds(const ConditionRow& row, const std::string& record, bool caseCounts) {
  Text cell = cellOf(record, toInt16(val(row.item)));
  Text value = row.value;
  if (!caseCounts) cell = upperCase(cell), value = upperCase(value);
  if (row.relation == u"[") return contains(cell, value);
  if (row.relation == u"]") return !contains(cell, value);
  if (row.relation == u"|") return likeMatch(cell, value);
  const double difference = row.type == u"N" ? val(cell) - valueIn(value, record) : cell.compare(value);
  if (row.relation == u"=") return difference == 0;
  if (row.relation == u">") return difference > 0;
  return row.relation == u"<" ? difference < 0 : row.relation == u">=" ? difference >= 0 : difference <= 0;
}

ConditionRow anyCondition(int items) {
  const bool number = any(2) == 0;
  const Text item = decimal(any(items)), other = u"@" + decimal(any(items));
  if (number)
    return {u"N", item, oneOf({u"=", u">", u"<", u">=", u"<="}),
            any(3) ? decimal(any(20) - 5) : other + (any(2) ? u"*2+1" : u"")};
  return {u"L", item, oneOf({u"=", u">", u"<", u"[", u"]", u"|"}),
          oneOf({u"a", u"A*", u"?", u"ソ", u"東", u"#*", u"*ｱ*", u"12"})};
}

class Extracting : public EditorFixture {
 public:
  Extracting() {
    registerVoiceForms();
    registerOutputFiles();
    registerExtraction();
  }
  // The form filled in, the output named, the closing question answered; gives what it said.
  Text extract(const std::vector<ConditionRow>& rows, ConditionLogic logic) {
    run([] { runCommand(u"mnuMFIND"); });
    Form7& form7 = form<Form7>();
    run([&] {
      form7.Grid1.setRows(static_cast<int>(rows.size()) + 1);
      for (int r = 1; r < form7.Grid1.rows(); ++r) {
        const ConditionRow& row = rows[static_cast<std::size_t>(r - 1)];
        const Text* cells[] = {&row.type, &row.item, &row.relation, &row.value};
        for (int col = 1; col <= 4; ++col) form7.Grid1.setCellText(r, col, *cells[col - 1]);
      }
      form7.Check1.setValue(logic.caseCounts);
      form7.Check2.setValue(1);
      form7.Check3.setValue(logic.negative);
      form7.Text1.setText(rows[0].type);
    });
    run([&] { form7.Command1.click(); });
    run([&] {
      form<formHOZON>().fillName(fromUtf8(path("out.txt")));
      form<formHOZON>().Command1.click();
    });
    Text told;
    run([&] {
      told = form<frmCMSG>().lblMSG.caption();
      form<frmCMSG>().cmdYES.click();
    });
    return told;
  }
};

}  // namespace

TEST_CASE("an extraction copies exactly the records that its conditions tell, behind those that are there") {
  random_.seed(doctest::getContextOptions()->rand_seed);  // -rs=N: other tables
  Extracting user;
  std::int64_t all = 0;
  const int rounds = runsOf(600);
  for (int round = 0; round < rounds; ++round) {
    CAPTURE(round);
    const int items = any(30) + 1;
    std::vector<ItemOfTable> shape;
    for (int i = 0; i < items; ++i) shape.push_back({u"i", any(8) + 1});
    const Text name = user.makeTable(u"t", shape, {});
    std::vector<std::string> records(static_cast<std::size_t>(any(41)));
    std::string file, expected;
    for (std::string& record : records) file += record = anyRecord();
    writeBytes(user.folder() / "t.txt", file);
    if (any(3) == 0) writeBytes(user.folder() / "out.txt", expected = anyRecord());
    writeBytes(user.folder() / "Kout.txt", user.file("Kt.txt"));
    user.run([&] { REQUIRE(openAndEnter(name)); });
    const ConditionLogic logic = {any(2) == 0, any(2) == 0};
    std::vector<ConditionRow> rows;
    for (int left = any(3) + 1; left > 0; --left) rows.push_back(anyCondition(items));
    int hits = 0;
    for (const std::string& record : records) {
      const auto passes = [&](const ConditionRow& row) {
        return holds(row, record, logic.caseCounts) != logic.negative;
      };
      if (!std::ranges::all_of(rows, passes)) continue;
      ++hits;
      expected += record;
    }
    const Text told = user.extract(rows, logic);
    CHECK(user.file("out.txt") == expected);
    CHECK(user.file("t.txt") == file);
    const Text counts = decimal(hits) + u"件あり、" + decimal(hits) + u"記録抽出しました\r";
    CHECK(contains(told, hits == 0 ? Text(u"該当ありませんでした!") : counts));
    all += hits;
    std::filesystem::remove(user.folder() / "out.txt");
  }
  CHECK(all > rounds);
}
