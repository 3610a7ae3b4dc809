#include "stats/distribution/groupread.h"

#include <cmath>

#include "stats/frame/analysis.h"
#include "stats/numbers/distribution.h"

namespace zelko {

bool readGroups(int valueItem, int groupItem, GroupedValues& read) {
  return readAnalysisRecords(u"群別度数分布", [&](const WalkedRecord& record) {
    const AnalysedCell value = checkedCell(record, valueItem), group = checkedCell(record, groupItem);
    if (!value.isNumber() || !group.isNumber()) {
      ++(value.isNumber() ? read.groupBad : group.isNumber() ? read.valueBad : read.bothBad);
      return true;
    }
    const double number = group.value;
    if (number < 1 || number > kMostGroups || number != std::floor(number)) {
      read.badRecord = record.number();
      return false;
    }
    auto& values = read.groups[static_cast<std::size_t>(number)];
    values.push_back(value.value);
    numbers::requireGroupDistribution(values.size());
    return true;
  });
}

}  // namespace zelko
