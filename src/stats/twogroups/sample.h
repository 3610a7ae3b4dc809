// One group of values in a grid: typed cell by cell or pasted from the clip file, with their ranks beside them.
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "parts/grid/celleditor.h"
#include "platform/forms/controls.h"
#include "platform/forms/grid.h"
#include "voice/narration.h"

namespace zelko {

class Sample {
 public:
  // Takes the handlers of grid and box. `group` is said: "群1".
  Sample(Grid& grid, TextBox& box, TextView group);
  Sample(const Sample&) = delete;
  Sample& operator=(const Sample&) = delete;

  void narrate(Narration& voice);
  // The values, blank cells dropped; nothing, told, where a cell holds none.
  std::optional<std::vector<double>> values();
  // Beside the values, in their order; none clears the column.
  void showRanks(std::span<const double> ranks);

  // The menu: from the clip file into the rows from the current one on; all rows emptied; a hundred rows more.
  void paste();
  void clear();
  void extend();

  std::function<void()> onChanged;  // the results are old

 private:
  int lastFilledRow() const;
  Grid& grid_;
  TextBox& box_;
  Text group_;
  CellEditor editor_;
};

}  // namespace zelko
