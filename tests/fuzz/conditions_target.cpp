// Any bytes as conditions and as a search text: refused with a message, or tested against every record without an end.
#include "fuzz/target.h"
#include "platform/fault.h"
#include "platform/text/sjis.h"
#include "store/records/walk.h"
#include "store/store_fixture.h"
#include "store/store_host.h"
#include "tablejobs/extract/conditions.h"
#include "tablejobs/search/matcher.h"

namespace zelko::test {

namespace {

const StoreFixture& folder() {
  static const StoreFixture store;
  static const bool opened = [] {
    store.table("t.txt", {4, 6, 6}, {"1   12.5  \x83\x5C\x93\x8Cx", "-3  &HFFFF\xB6\xDE\x81", "", "9E9 9E99999*?#[a-"});
    return store.open("t.txt");
  }();
  require(opened, "the table");
  return store;
}

// A line is a row, its cells parted by tabs.
std::vector<ConditionRow> rowsOf(TextView text) {
  std::vector<ConditionRow> rows;
  while (!text.empty() && rows.size() < 20) {
    TextView line = text.substr(0, text.find(u'\n'));
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    ConditionRow row;
    for (Text* cell : {&row.type, &row.item, &row.relation, &row.value}) {
      *cell = line.substr(0, line.find(u'\t'));
      line.remove_prefix(std::min(cell->size() + 1, line.size()));
    }
    rows.push_back(row);
  }
  return rows;
}

void checkRows(std::vector<ConditionRow> rows, ConditionLogic logic) {
  if (!checkConditions(rows, logic.caseCounts).empty()) return;
  std::vector<ConditionRow> again = rows;
  require(checkConditions(again, logic.caseCounts).empty() && again == rows, "what was checked passes unchanged");
  ConditionTest test(rows, logic);
  walkRecords({.last = recCount()}, [&](const WalkedRecord& record) {
    try {
      test.passes(record);
    } catch (const Fault&) {
    }
    return true;
  });
}

void checkSearch(TextView what, Spelling spelling) {
  const Matcher part({Text(what), false, spelling}), whole({Text(what), true, spelling});
  walkRecords({.last = recCount()}, [&](const WalkedRecord& record) {
    for (int item = 0; item <= itemCount; ++item) {
      const Text cell = record.cell(item);
      require(!part.hits(cell) || part.mayHit(record.cellBytes(item)), "a hit that the bytes hide");
      require(!whole.hits(cell) || part.hits(cell), "equal, and not contained");
    }
    return true;
  });
}

void checkConditionBytes(std::string_view bytes) {
  folder().dialogs();
  const Text text = fromSjis(bytes);
  for (const bool ticked : {false, true}) {
    checkRows(rowsOf(text), {ticked, !ticked});
    for (const bool forms : {false, true}) checkSearch(text.substr(0, text.find(u'\n')), {ticked, forms});
  }
}

const bool added = addFuzzTarget({"conditions",
                                  {"\t", "\n", "N", "L", "@",  "@1", "(",   ")",    "*",    "/0",
                                   "^",  "|",  "[", "]", "[!", "-",  "9E9", "\x81", "\xDE", "\x83\x4A"},
                                  checkConditionBytes});

}  // namespace
}  // namespace zelko::test
