// How the cells of a table lie in its records.
#pragma once

#include <string_view>

#include "store/table/description.h"
#include "store/table/table.h"

namespace zelko {

// A cell by its bytes. What reaches out of the record is cut at its end.
struct CellPlace {
  CellPlace() = default;
  CellPlace(int itemStart, std::int16_t itemWidth, TextView alignment, bool last);

  std::uint16_t start = 0, length = 0;  // within the record, from 0
  std::int16_t width = 0;               // as the item file tells it
  bool right = false, last = false;
};

// A record is its 256 bytes.
// The bytes of a cell as they stand. Of a cell that reaches over the line end only those in front of it.
std::string_view cellBytes(std::string_view record, const CellPlace& cell);
// Its text, cut by bytes, blanks included; the line end counts as two blanks.
Text cellText(std::string_view record, const CellPlace& cell);
// Puts the padded or cut text in its place: only the bytes of the cell change, and behind the last item the record
// becomes blank.
void putCell(char* record, const CellPlace& cell, TextView text);
void putCellBytes(char* record, const CellPlace& cell, std::string_view bytes);

// All cells of a table, by item from 0; another number than it has is a subscript fault.
class RecordShape {
 public:
  static RecordShape ofOpenTable();
  static RecordShape ofOtherTable();  // the second set
  explicit RecordShape(const TableDescription& table);

  int lastItem() const { return static_cast<int>(cells_.size()) - 1; }
  const CellPlace& at(int item) const;

 private:
  RecordShape() = default;
  std::vector<CellPlace> cells_;
};

// `ours` was made out of `before`; what stands on the disk by now takes the place of each cell that we did not change.
void keepOthersCells(char* ours, const char* before, const char* onDisk, const RecordShape& shape);

}  // namespace zelko
