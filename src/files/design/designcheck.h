// What the design of a table may be, apart from the form: plain rows in, the texts of what is wrong with them out.
#pragma once

#include <optional>
#include <vector>

#include "parts/grid/cellfault.h"
#include "platform/text/text.h"
#include "store/rewrite/rewriteplan.h"
#include "store/table/description.h"

namespace zelko {

// An item as it stands in the design: everything is text until it is checked.
struct DesignRow {
  Text name, side, width;
  int oldItem = -1;  // the item of the open table that it was; -1 for a new one
};

// Columns of the grid.
enum class DesignColumn { number = 0, name = 1, side = 2, width = 3 };

// Why a cell can't be left as it is.
std::optional<CellFault> faultOfCell(DesignColumn column, TextView typed);
// A cell as it is stored: a side is "L" or "R" in half width, a name has no line end.
Text storedCell(DesignColumn column, TextView typed);
// A width cell takes half-width digits only; full-width ones are brought to half width.
Text digitsOf(TextView typed);

// The item count as it was typed; nothing for a blank box, beyond any limit for what is no number that can be.
struct TypedCount {
  std::optional<int> count;
  std::optional<CellFault> fault;
};
TypedCount typedCount(TextView typed);

// Everything that stands against making a table of the rows, line by line; empty where nothing does.
Text faultsOfTable(TextView count, TextView memo, const std::vector<DesignRow>& rows);

// The rows, checked before, as items.
std::vector<ItemLine> itemsOf(const std::vector<DesignRow>& rows);

// Whether the records of a table with these items would be cut otherwise: a width, a side or a place has changed. Items
// that were only added behind the last one, or taken away there, leave the others as they are.
bool divisionChanges(const std::vector<ItemLine>& old, const std::vector<DesignRow>& rows);
// How the cells get from the old items to the rows: trimmed, and set to their new side.
std::vector<CellMove> redesignedCells(const std::vector<ItemLine>& old, const std::vector<DesignRow>& rows);

}  // namespace zelko
