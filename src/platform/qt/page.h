// The layout of a page: rows of controls that go on in the next line where the page is too narrow for them.
#pragma once

#include <QLayout>
#include <memory>
#include <vector>

namespace zelko {

// A control with what stands in front of it: its label, or the button that it explains.
struct PageCell {
  QWidget* front = nullptr;
  QWidget* widget = nullptr;
  bool growsAcross = false, growsDown = false;
};

// The width that a widget is to have where its line has room for it; 0 leaves it to its kind.
void askForWidth(QWidget& widget, int pixels);

class PageLayout : public QLayout {
 public:
  // Prefers to be as wide as its widest row, but never wider than `widest` pixels.
  PageLayout(QWidget* page, int widest);

  void addRow(const std::vector<PageCell>& row);
  // What heightForWidth() asks for is the least; lists, grids and long texts would like more.
  int preferredHeight(int width) const;

  void addItem(QLayoutItem* item) override;
  int count() const override { return static_cast<int>(items_.size()); }
  QLayoutItem* itemAt(int index) const override;
  QLayoutItem* takeAt(int index) override;
  QSize sizeHint() const override;
  QSize minimumSize() const override;
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override;
  void setGeometry(const QRect& rect) override;

 private:
  struct Cell {
    QLayoutItem* front;
    QLayoutItem* item;
    bool growsAcross, growsDown;
  };
  struct Piece {
    QLayoutItem* item;
    int width;
    bool growsAcross;
  };
  struct Line {
    std::vector<Piece> pieces;
    int used = 0, least = 0, preferred = 0;
    bool growsDown = false;
  };

  bool shown(const QLayoutItem* item) const { return item && !item->isEmpty(); }
  bool standsAbove(const QLayoutItem& front) const;
  int frontColumn() const;
  void breakRow(const std::vector<Cell>& row, int width, std::vector<Line>& lines) const;
  static void fill(Line& line, int width);
  std::vector<Line> linesFor(int width) const;
  int heightOf(const std::vector<Line>& lines, int Line::*height) const;
  void place(const Line& line, const QRect& at) const;

  std::vector<std::unique_ptr<QLayoutItem>> items_;
  std::vector<std::vector<Cell>> rows_;
  int widest_;
};

}  // namespace zelko
