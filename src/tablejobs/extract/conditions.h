// The table of conditions by which records are extracted: checked once, and made into a test of records once for each
// change.
#pragma once

#include <optional>
#include <vector>

#include "platform/text/text.h"
#include "tablejobs/extract/comparecell.h"

namespace zelko {

class WalkedRecord;

// A row as it stands in the table.
struct ConditionRow {
  Text type, item, relation, value;

  bool operator==(const ConditionRow&) const = default;
};

struct ConditionLogic {
  bool caseCounts = false;
  bool negative = false;  // a record passes where no row holds

  bool operator==(const ConditionLogic&) const = default;
};

// Brings the rows of the open table's conditions into the form in which they are tested, those behind the last one in
// use left out. The message of the first fault, with the number of its row; empty where there is none.
Text checkConditions(std::vector<ConditionRow>& rows, bool caseCounts);

class ConditionTest {
 public:
  // The rows have passed the check.
  ConditionTest(const std::vector<ConditionRow>& rows, ConditionLogic logic);

  // The rows in their order, up to the first that does not pass. The numbers of items in a value are those of the
  // record. A number that can't be computed throws a Fault; failedRow() tells which condition it was.
  bool passes(const WalkedRecord& record);
  int failedRow() const { return failedRow_; }

 private:
  struct Row {
    bool number = false;
    int item = 0;
    Relation relation = Relation::unknown;
    Text value;                      // of a text; a formula otherwise
    std::optional<double> constant;  // of a formula without items
    std::optional<int> itemAlone;    // of a formula that is the number in one item
  };
  Row compiled(const ConditionRow& row) const;
  bool holds(const Row& row, const WalkedRecord& record) const;
  double valueOf(const Row& row, const WalkedRecord& record) const;

  ConditionLogic logic_;
  std::vector<Row> rows_;
  int failedRow_ = 0;
};

}  // namespace zelko
