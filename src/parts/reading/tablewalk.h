// Alt and the arrows in a text box: from cell to cell through the tables that are printed there, with the names of row
// and column.
#pragma once

#include "parts/reading/tablecells.h"
#include "platform/forms/controls.h"

namespace zelko {

class TableWalk {
 public:
  explicit TableWalk(TextBox& box) : box_(box) {}

  // Alt with an arrow.
  static bool isKey(const KeyEvent& key);
  // At each key-down of the box: true where the key was one of them. The cell is marked and said; at an end of the row,
  // or of the tables, a beep comes first.
  bool keyDown(const KeyEvent& key);

 private:
  struct Place {
    std::size_t line = 0;  // where the line begins
    PrintedLine printed;
    std::size_t cell = 0;
  };
  bool here(Place& place) const;
  bool sidewards(Place& place, int direction) const;
  bool nextLine(Place& place, int direction, bool& otherTable) const;
  Text sentence(const Place& place) const;
  Text rowName(const Place& place) const;
  PrintedLine headingOf(const Place& place) const;

  TextBox& box_;
  std::size_t col_ = 0;  // of the cell that was said last: up and down keep it past shorter rows
};

}  // namespace zelko
