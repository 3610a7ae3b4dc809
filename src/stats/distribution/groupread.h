// The numbers of an item, parted by the group numbers of another.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

namespace zelko {

inline constexpr int kMostGroups = 30;

struct GroupedValues {
  std::array<std::vector<double>, kMostGroups + 1> groups;  // by number from 1
  int bothBad = 0, groupBad = 0, valueBad = 0;              // records without a number in one of the two, or in both
  std::int32_t badRecord = 0;  // the first whose group number is none; 0 where there is no such
};

// Reads firstRecord to lastRecord; a group number outside 1 to 30 ends the reading. False where it was stopped or
// failed (told). More than 2000 values in a group are a fault.
bool readGroups(int valueItem, int groupItem, GroupedValues& read);

}  // namespace zelko
