// Grids: cells are asked for when they are painted; the fixed rows and columns stand as headings.
#include <QAbstractTableModel>
#include <QHeaderView>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QTimer>
#include <algorithm>

#include "platform/forms/form.h"
#include "platform/forms/grid.h"
#include "platform/qt/guard.h"
#include "platform/qt/qstring.h"
#include "platform/qt/view.h"

namespace zelko {

namespace {

class Cells : public QAbstractTableModel {
 public:
  Cells(const Grid& grid, QObject* parent) : QAbstractTableModel(parent), grid_(&grid) {}

  int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : rows_; }
  int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : cols_; }
  QVariant data(const QModelIndex& index, int role) const override {
    if (!grid_ || role != Qt::DisplayRole) return {};
    return toQt(grid_->cell(gridRow(index.row()), gridCol(index.column())));
  }
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
    if (!grid_ || role != Qt::DisplayRole) return {};
    QStringList lines;
    const bool top = orientation == Qt::Horizontal;
    for (int at = 0; at < (top ? grid_->fixedRows : grid_->fixedCols); ++at)
      lines << toQt(top ? grid_->cell(at, gridCol(section)) : grid_->cell(gridRow(section), at));
    return lines.join(top ? u'\n' : u' ');
  }

  int gridRow(int row) const { return row + (grid_ ? grid_->fixedRows : 0); }
  int gridCol(int col) const { return col + (grid_ ? grid_->fixedCols : 0); }
  const Grid* grid() const { return grid_; }
  QModelIndex current() const {
    return grid_ ? index(grid_->row() - grid_->fixedRows, grid_->col() - grid_->fixedCols) : QModelIndex();
  }
  // True when the shape changed, and with it every cell; else only what the cells hold.
  bool reload() {
    const int rows = grid_ ? std::max(0, grid_->rows() - grid_->fixedRows) : 0;
    const int cols = grid_ ? std::max(0, grid_->cols() - grid_->fixedCols) : 0;
    if (rows == rows_ && cols == cols_) {
      if (cols > 0) emit headerDataChanged(Qt::Horizontal, 0, cols - 1);
      if (rows > 0) emit headerDataChanged(Qt::Vertical, 0, rows - 1);
      if (rows > 0 && cols > 0) emit dataChanged(index(0, 0), index(rows - 1, cols - 1));
      return false;
    }
    beginResetModel();
    rows_ = rows;
    cols_ = cols;
    endResetModel();
    return true;
  }
  void detach() {
    grid_ = nullptr;
    reload();
  }

 private:
  const Grid* grid_;
  int rows_ = 0, cols_ = 0;
};

// Masks as blocks of colour, the current cell in a thick frame.
class CellPainter : public QStyledItemDelegate {
 public:
  CellPainter(const Cells& cells, QObject* parent) : QStyledItemDelegate(parent), cells_(cells) {}

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    QStyleOptionViewItem cell = option;
    cell.state &= ~(QStyle::State_Selected | QStyle::State_HasFocus);
    if (const Grid::Mask* mask = maskAt(index)) {
      const QColor ground(mask->colour & 0xFF, (mask->colour >> 8) & 0xFF, (mask->colour >> 16) & 0xFF);
      painter->fillRect(cell.rect, ground);
      cell.palette.setColor(QPalette::Text, qGray(ground.rgb()) > 100 ? Qt::black : Qt::white);
    }
    QStyledItemDelegate::paint(painter, cell, index);
    if (index != cells_.current()) return;
    constexpr int kThick = 4;
    painter->save();
    painter->setPen(QPen(cell.palette.color(QPalette::Active, QPalette::Highlight), kThick));
    painter->drawRect(cell.rect.adjusted(kThick / 2, kThick / 2, -kThick / 2, -kThick / 2));
    painter->restore();
  }

 private:
  const Grid::Mask* maskAt(const QModelIndex& index) const {
    if (!cells_.grid()) return nullptr;
    const int row = cells_.gridRow(index.row()), col = cells_.gridCol(index.column());
    const auto& masks = cells_.grid()->masks();
    const auto found = std::find_if(masks.rbegin(), masks.rend(), [row, col](const Grid::Mask& m) {
      return row >= m.row1 && row <= m.row2 && col >= m.col1 && col <= m.col2;
    });
    return found == masks.rend() ? nullptr : &*found;
  }

  const Cells& cells_;
};

class Table : public QTableView {
 public:
  using QTableView::QTableView;
  // All of its columns and rows, as far as a screen can sensibly show them.
  QSize sizeHint() const override {
    constexpr int kRows = 24;
    const int across =
        horizontalHeader()->length() + (verticalHeader()->isHidden() ? 0 : verticalHeader()->sizeHint().width());
    const int rows = std::min(model() ? model()->rowCount() : 0, kRows) * verticalHeader()->defaultSectionSize();
    const int heading = horizontalHeader()->isHidden() ? 0 : horizontalHeader()->sizeHint().height();
    const int edge = 2 * frameWidth() + 2;
    return QSize(across + edge + verticalScrollBar()->sizeHint().width(),
                 rows + heading + edge + horizontalScrollBar()->sizeHint().height())
        .expandedTo(minimumSizeHint());
  }
  QSize minimumSizeHint() const override {
    return {fontMetrics().horizontalAdvance(u'0') * 16, fontMetrics().lineSpacing() * 4};
  }
};

void dress(Table& table, Cells& cells) {
  table.setModel(&cells);
  table.setItemDelegate(new CellPainter(cells, &table));
  table.setEditTriggers(QAbstractItemView::NoEditTriggers);
  table.setSelectionMode(QAbstractItemView::NoSelection);
  table.setFocusPolicy(Qt::ClickFocus);
  table.setTabKeyNavigation(false);
  table.setWordWrap(false);
  table.setCornerButtonEnabled(false);
  const int rowHeight = table.fontMetrics().height() + table.fontMetrics().height() / 3;
  table.verticalHeader()->setDefaultSectionSize(rowHeight);
  table.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  for (QHeaderView* header : {table.horizontalHeader(), table.verticalHeader()}) {
    header->setHighlightSections(false);
    header->setFocusPolicy(Qt::NoFocus);
  }
}

// As wide as told; else as wide as its heading and what its first rows hold, within bounds.
int widthOf(const Table& table, const Cells& cells, const Grid& grid, int col) {
  const QFontMetrics metrics = table.fontMetrics();
  const int told = grid.colWidth(cells.gridCol(col));
  const int edge = metrics.height() / 2;
  if (told > 0) return static_cast<int>(told * pixelsPerTwip(table)) + edge;
  constexpr int kRowsLookedAt = 20, kLeast = 6, kMost = 40;
  int widest = metrics.horizontalAdvance(cells.headerData(col, Qt::Horizontal, Qt::DisplayRole).toString());
  for (int row = 0; row < std::min(cells.rowCount(), kRowsLookedAt); ++row)
    widest = std::max(widest, metrics.horizontalAdvance(cells.index(row, col).data().toString()));
  const int digit = metrics.horizontalAdvance(u'0');
  return std::clamp(widest + edge * 2, digit * kLeast, digit * kMost);
}

void takeOver(Table& table, Cells& cells, const Grid& grid, bool& widthsToo) {
  if (cells.reload() || widthsToo) {
    table.horizontalHeader()->setVisible(grid.fixedRows > 0);
    table.verticalHeader()->setVisible(grid.fixedCols > 0);
    for (int col = 0; col < cells.columnCount(); ++col) table.setColumnWidth(col, widthOf(table, cells, grid, col));
    table.updateGeometry();
  }
  widthsToo = false;
  const QModelIndex current = cells.current();
  table.setCurrentIndex(current);
  if (current.isValid()) table.scrollTo(current);
  table.viewport()->update();
}

struct Taking {
  bool waiting = false, widths = true;
};

void cellClicked(Grid& grid, int row, int col) {
  guarded([&grid, row, col] {
    if (!screen().takesInput(grid.form())) return;
    grid.setFocus();
    if (!grid.hasFocus()) return;
    grid.setCell(row, col);
    grid.click();
  });
}

}  // namespace

void makeGridView(View& view, QWidget* parent) {
  auto& grid = static_cast<Grid&>(view.control);
  auto* table = new Table(parent);
  auto* cells = new Cells(grid, table);
  dress(*table, *cells);
  view.widget = table;
  const auto taking = std::make_shared<Taking>();
  view.push = [&grid, table, cells, taking](Property property) {
    if (property == Property::width || property == Property::cells) taking->widths = true;
    if (taking->waiting) return;
    taking->waiting = true;
    QTimer::singleShot(0, table, [&grid, table, cells, taking] {
      taking->waiting = false;
      if (table->model()) takeOver(*table, *cells, grid, taking->widths);
    });
  };
  view.detach = [table, cells] {
    cells->detach();
    table->setModel(nullptr);
  };
  QObject::connect(table, &QTableView::clicked, table, [&grid, cells](const QModelIndex& at) {
    cellClicked(grid, cells->gridRow(at.row()), cells->gridCol(at.column()));
  });
  QObject::connect(table, &QTableView::doubleClicked, table, [&grid] {
    guarded([&grid] {
      if (screen().takesInput(grid.form())) grid.doubleClick();
    });
  });
}

}  // namespace zelko
