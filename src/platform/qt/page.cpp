#include "platform/qt/page.h"

#include <QVariant>
#include <QWidget>
#include <algorithm>
#include <limits>
#include <numeric>

namespace zelko {

namespace {

constexpr int kGap = 10;  // so that the frame round the focus touches no neighbour

// A longer label stands above its control.
constexpr int kLongestFront = 30;  // digits

int heightAt(const QLayoutItem& item, int width) {
  return item.hasHeightForWidth() ? item.heightForWidth(width) : item.sizeHint().height();
}

constexpr const char* kAskedWidth = "askedWidth";

int naturalWidth(const QLayoutItem& item) {
  const int asked = item.widget()->property(kAskedWidth).toInt();
  return asked > 0 ? asked : item.sizeHint().width();
}

}  // namespace

void askForWidth(QWidget& widget, int pixels) {
  widget.setProperty(kAskedWidth, pixels);
  widget.updateGeometry();
}

PageLayout::PageLayout(QWidget* page, int widest) : QLayout(page), widest_(widest) { setSpacing(kGap); }

void PageLayout::addRow(const std::vector<PageCell>& row) {
  const auto itemOf = [this](QWidget* widget) -> QLayoutItem* {
    if (!widget) return nullptr;
    addChildWidget(widget);
    items_.push_back(std::make_unique<QWidgetItem>(widget));
    return items_.back().get();
  };
  std::vector<Cell>& cells = rows_.emplace_back();
  for (const PageCell& cell : row) {
    QLayoutItem* front = itemOf(cell.front);
    cells.push_back({front, itemOf(cell.widget), cell.growsAcross, cell.growsDown});
  }
}

void PageLayout::addItem(QLayoutItem* item) { items_.emplace_back(item); }

QLayoutItem* PageLayout::itemAt(int index) const {
  return index >= 0 && index < count() ? items_[static_cast<std::size_t>(index)].get() : nullptr;
}

// Only when the page is torn down.
QLayoutItem* PageLayout::takeAt(int index) {
  if (!itemAt(index)) return nullptr;
  rows_.clear();
  QLayoutItem* item = items_[static_cast<std::size_t>(index)].release();
  items_.erase(items_.begin() + index);
  return item;
}

bool PageLayout::standsAbove(const QLayoutItem& front) const {
  return naturalWidth(front) > parentWidget()->fontMetrics().horizontalAdvance(u'0') * kLongestFront;
}

// As wide as the widest that stands in front of a row, so that the controls behind stand below each other.
int PageLayout::frontColumn() const {
  int widest = 0;
  for (const auto& row : rows_) {
    const auto first = std::find_if(row.begin(), row.end(), [this](const Cell& c) { return shown(c.item); });
    if (first != row.end() && shown(first->front) && !standsAbove(*first->front))
      widest = std::max(widest, naturalWidth(*first->front));
  }
  return widest;
}

void PageLayout::breakRow(const std::vector<Cell>& row, int width, std::vector<Line>& lines) const {
  bool begins = true;
  const auto add = [&](Line& line, QLayoutItem* item, int wide, bool grows) {
    line.pieces.push_back({item, std::min(wide, width), grows});
    line.used += line.pieces.back().width + (line.pieces.size() > 1 ? kGap : 0);
  };
  for (const Cell& cell : row) {
    if (!shown(cell.item)) continue;
    const bool front = shown(cell.front), above = front && standsAbove(*cell.front);
    const int own = front && !above ? naturalWidth(*cell.front) + kGap : 0;
    const int wide = naturalWidth(*cell.item);
    const bool next = begins || above || lines.back().used + kGap + own + wide > width;
    const int before = next && own > 0 ? std::max(own, frontColumn() + kGap) : own;
    if (next) lines.emplace_back();
    begins = false;
    if (above) {
      add(lines.back(), cell.front, naturalWidth(*cell.front), true);
      lines.emplace_back();
    }
    if (before > 0) add(lines.back(), cell.front, before - kGap, false);
    add(lines.back(), cell.item, std::min(wide, std::max(width - before, cell.item->minimumSize().width())),
        cell.growsAcross && cell.item->widget()->property(kAskedWidth).toInt() == 0);
    lines.back().growsDown |= cell.growsDown;
  }
}

// Shares what is left of the width, and finds the height that comes of it.
void PageLayout::fill(Line& line, int width) {
  int growing = static_cast<int>(
      std::count_if(line.pieces.begin(), line.pieces.end(), [](const Piece& piece) { return piece.growsAcross; }));
  int left = std::max(0, width - line.used);
  for (Piece& piece : line.pieces) {
    if (piece.growsAcross) {
      const int share = left / growing--;
      piece.width += share;
      left -= share;
    }
    const int height = heightAt(*piece.item, piece.width);
    line.preferred = std::max(line.preferred, height);
    line.least = std::max(line.least, line.growsDown && !piece.item->hasHeightForWidth()
                                          ? std::min(height, piece.item->minimumSize().height())
                                          : height);
  }
}

std::vector<PageLayout::Line> PageLayout::linesFor(int width) const {
  std::vector<Line> lines;
  for (const auto& row : rows_) breakRow(row, width, lines);
  for (Line& line : lines) fill(line, width);
  return lines;
}

int PageLayout::heightOf(const std::vector<Line>& lines, int Line::*height) const {
  const QMargins edge = contentsMargins();
  return std::accumulate(lines.begin(), lines.end(), edge.top() + edge.bottom() - (lines.empty() ? 0 : kGap),
                         [height](int sum, const Line& line) { return sum + line.*height + kGap; });
}

int PageLayout::heightForWidth(int width) const {
  const QMargins edge = contentsMargins();
  return heightOf(linesFor(width - edge.left() - edge.right()), &Line::least);
}

int PageLayout::preferredHeight(int width) const {
  const QMargins edge = contentsMargins();
  return heightOf(linesFor(width - edge.left() - edge.right()), &Line::preferred);
}

QSize PageLayout::sizeHint() const {
  const QMargins edge = contentsMargins();
  int width = 0;
  for (const Line& line : linesFor(widest_)) {
    int used = -kGap;
    for (const Piece& piece : line.pieces) used += std::min(piece.width, naturalWidth(*piece.item)) + kGap;
    width = std::max({width, used, line.used});
  }
  width = std::min(width, widest_) + edge.left() + edge.right();
  return {width, preferredHeight(width)};
}

QSize PageLayout::minimumSize() const {
  QSize least;
  for (const auto& item : items_)
    if (shown(item.get())) least = least.expandedTo(item->minimumSize());
  const QMargins edge = contentsMargins();
  return least + QSize(edge.left() + edge.right(), edge.top() + edge.bottom());
}

void PageLayout::place(const Line& line, const QRect& at) const {
  int x = at.left();
  for (const Piece& piece : line.pieces) {
    const int height = line.growsDown && !piece.item->hasHeightForWidth() && piece.growsAcross
                           ? at.height()
                           : heightAt(*piece.item, piece.width);
    // Low ones stand in the middle of the line; beside something tall, at its top.
    const int lower = line.growsDown ? 0 : (at.height() - height) / 2;
    piece.item->setGeometry({x, at.top() + lower, piece.width, height});
    x += piece.width + kGap;
  }
}

void PageLayout::setGeometry(const QRect& rect) {
  QLayout::setGeometry(rect);
  const QRect room = rect.marginsRemoved(contentsMargins());
  const std::vector<Line> lines = linesFor(room.width());
  int growing =
      static_cast<int>(std::count_if(lines.begin(), lines.end(), [](const Line& line) { return line.growsDown; }));
  int left = std::max(0, rect.height() - heightOf(lines, &Line::least));
  int y = room.top();
  for (const Line& line : lines) {
    int height = line.least;
    if (line.growsDown) {
      const int share = left / growing--;
      height += share;
      left -= share;
    }
    place(line, {room.left(), y, room.width(), height});
    y += height + kGap;
  }
}

}  // namespace zelko
