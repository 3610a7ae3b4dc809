// Grid and picture: what is shown as cells, and what is drawn.
#pragma once

#include <functional>
#include <vector>

#include "platform/forms/control.h"

namespace zelko {

// Cells by row and column from 0. A grid stores its texts, or, with `provider` set, asks for them when they are shown.
class Grid : public Control {
 public:
  Grid(Form& form, TextView name);

  int rows() const { return rows_; }
  int cols() const { return cols_; }
  void setRows(int rows);  // what is cut off is forgotten
  void setCols(int cols);
  int fixedRows = 1, fixedCols = 1;  // headings: the cursor stays behind them

  // The current cell, and its text.
  int row() const { return row_; }
  int col() const { return col_; }
  void setRow(int row) { setCell(row, col_); }
  void setCol(int col) { setCell(row_, col); }
  void setCell(int row, int col);  // fires onRowColChange when it moves
  Text text() const override { return cell(row_, col_); }
  void setText(TextView text) { setCellText(row_, col_, text); }

  Text cell(int row, int col) const;
  void setCellText(int row, int col, TextView text);
  int colWidth(int col) const;  // twips; 0 lets the host choose
  void setColWidth(int col, int twips);

  // A block drawn in a colour, as the mask of a range; rows and columns of the grid, both ends included.
  struct Mask {
    int row1 = 0, row2 = 0, col1 = 0, col2 = 0;
    Colour colour = 0;
  };
  const std::vector<Mask>& masks() const { return masks_; }
  void setMasks(std::vector<Mask> masks);

  // All cells have to be asked for again.
  void refresh() { changed(Property::cells); }

  bool keyDefault(const KeyEvent& key) override;

  std::function<Text(int row, int col)> provider;
  std::function<void()> onRowColChange;

 private:
  int rows_ = 2, cols_ = 2, row_ = 1, col_ = 1;
  std::vector<std::vector<Text>> cells_;
  std::vector<int> widths_;
  std::vector<Mask> masks_;
};

// A drawing as a list of strokes in twips; the host paints it, the transcript prints it.
class PictureBox : public Control {
 public:
  PictureBox(Form& form, TextView name, int index = -1);

  enum class Stroke { line, box, filledBox, circle, text };
  struct Operation {
    Stroke stroke;
    double x1, y1, x2, y2;  // a circle: centre, radius in x2; a text: its left top corner
    Colour colour;
    Text text;
  };
  const std::vector<Operation>& operations() const { return operations_; }
  void clear();
  void draw(Operation operation);
  bool keyDefault(const KeyEvent& key) override;  // Enter clicks

 private:
  std::vector<Operation> operations_;
};

}  // namespace zelko
