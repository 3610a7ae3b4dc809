#include "platform/forms/grid.h"

#include <algorithm>

#include "platform/host.h"

namespace zelko {
namespace {
constexpr int kPage = 10;  // rows that PageUp and PageDown step over
}

Grid::Grid(Form& form, TextView name) : Control(form, ControlKind::grid, name) { tabStop = true; }

void Grid::setRows(int rows) {
  rows_ = std::max(rows, 1);
  if (static_cast<int>(cells_.size()) > rows_) cells_.resize(static_cast<std::size_t>(rows_));
  changed(Property::cells);
  setCell(row_, col_);
}

void Grid::setCols(int cols) {
  cols_ = std::max(cols, 1);
  for (auto& row : cells_) {
    if (static_cast<int>(row.size()) > cols_) row.resize(static_cast<std::size_t>(cols_));
  }
  changed(Property::cells);
  setCell(row_, col_);
}

void Grid::setCell(int row, int col) {
  row = std::clamp(row, 0, rows_ - 1);
  col = std::clamp(col, 0, cols_ - 1);
  if (row == row_ && col == col_) return;
  row_ = row;
  col_ = col;
  changed(Property::selection);
  fire(onRowColChange);
}

Text Grid::cell(int row, int col) const {
  if (row < 0 || row >= rows_ || col < 0 || col >= cols_) return {};
  if (provider) return provider(row, col);
  auto r = static_cast<std::size_t>(row), c = static_cast<std::size_t>(col);
  if (r >= cells_.size() || c >= cells_[r].size()) return {};
  return cells_[r][c];
}

void Grid::setCellText(int row, int col, TextView text) {
  if (row < 0 || row >= rows_ || col < 0 || col >= cols_) return;
  auto r = static_cast<std::size_t>(row), c = static_cast<std::size_t>(col);
  if (r >= cells_.size()) cells_.resize(r + 1);
  if (c >= cells_[r].size()) cells_[r].resize(c + 1);
  if (cells_[r][c] == text) return;
  cells_[r][c] = text;
  changed(Property::cells);
}

int Grid::colWidth(int col) const {
  auto c = static_cast<std::size_t>(col);
  return col >= 0 && c < widths_.size() ? widths_[c] : 0;
}

void Grid::setColWidth(int col, int twips) {
  if (col < 0) return;
  auto c = static_cast<std::size_t>(col);
  if (c >= widths_.size()) widths_.resize(c + 1);
  if (widths_[c] == twips) return;
  widths_[c] = twips;
  changed(Property::width);
}

void Grid::setMasks(std::vector<Mask> masks) {
  masks_ = std::move(masks);
  changed(Property::drawing);
}

bool Grid::keyDefault(const KeyEvent& key) {
  if (key.mask != shift::None && key.mask != shift::Ctrl) return false;
  bool whole = key.mask == shift::Ctrl;
  int firstRow = std::min(fixedRows, rows_ - 1), firstCol = std::min(fixedCols, cols_ - 1);
  int row = row_, col = col_;
  switch (key.code) {
    case key::Up:
      row = whole ? firstRow : row - 1;
      break;
    case key::Down:
      row = whole ? rows_ - 1 : row + 1;
      break;
    case key::Left:
      col = whole ? firstCol : col - 1;
      break;
    case key::Right:
      col = whole ? cols_ - 1 : col + 1;
      break;
    case key::PageUp:
      row -= kPage;
      break;
    case key::PageDown:
      row += kPage;
      break;
    case key::Home:
      col = firstCol;
      if (whole) row = firstRow;
      break;
    case key::End:
      col = cols_ - 1;
      if (whole) row = rows_ - 1;
      break;
    default:
      return false;
  }
  row = std::clamp(row, firstRow, rows_ - 1);
  col = std::clamp(col, firstCol, cols_ - 1);
  if (row == row_ && col == col_) host().beep();
  setCell(row, col);
  return true;
}

PictureBox::PictureBox(Form& form, TextView name, int index) : Control(form, ControlKind::pictureBox, name, index) {}

void PictureBox::clear() {
  operations_.clear();
  changed(Property::drawing);
}

void PictureBox::draw(Operation operation) {
  operations_.push_back(std::move(operation));
  changed(Property::drawing);
}

bool PictureBox::keyDefault(const KeyEvent& key) {
  if (!key.is(key::Enter, shift::None)) return false;
  act();
  return true;
}

}  // namespace zelko
