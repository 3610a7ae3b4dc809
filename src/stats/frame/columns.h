// The numbers of chosen items over the records of an analysis, for analyses that take the leading number of each cell.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <vector>

#include "platform/text/text.h"

namespace zelko {

// The values of an item in the order of the records; 0 for a cell without a number.
using ItemColumns = std::map<std::int16_t, std::vector<double>>;

// Of each of the items (one may be named twice), in one pass over firstRecord to lastRecord. nullopt where that was
// stopped (analysisMode is "BREAK") or a record could not be read (told). A number beyond a double is a fault.
std::optional<ItemColumns> readColumns(const std::vector<std::int16_t>& items, TextView work);

}  // namespace zelko
