// Pictures: the strokes of the model, painted in the size of the font.
#include <QPainter>

#include "platform/forms/grid.h"
#include "platform/qt/qstring.h"
#include "platform/qt/strokes.h"
#include "platform/qt/view.h"

namespace zelko {

namespace {

class Picture : public QWidget {
 public:
  Picture(const PictureBox& box, QWidget* parent) : QWidget(parent), box_(&box) {
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum);
    setFocusPolicy(Qt::ClickFocus);
  }
  QSize sizeHint() const override {
    const int tile = fontMetrics().height() * 2;
    QSize size(tile * 2, tile);
    if (!box_) return size;
    const QSizeF drawn = drawingSize(*box_) * pixelsPerTwip(*this);
    if (!drawn.isEmpty())
      size = size.expandedTo({static_cast<int>(drawn.width()) + 4, static_cast<int>(drawn.height()) + 4});
    return size;
  }
  void detach() { box_ = nullptr; }

 protected:
  void paintEvent(QPaintEvent*) override {
    if (!box_) return;
    QPainter painter(this);
    if (box_->operations().empty()) return paintTile(painter);
    // Drawings come with colours of their own, meant for paper.
    painter.fillRect(rect(), Qt::white);
    painter.setPen(Qt::black);
    const double k = pixelsPerTwip(*this);
    painter.scale(k, k);
    paintDrawing(painter, *box_);
  }

 private:
  // A picture without a drawing is a tile to choose: its frame, and its caption where it has one.
  void paintTile(QPainter& painter) const {
    painter.fillRect(rect(), palette().base());
    painter.setPen(QPen(palette().text().color(), 2));
    painter.drawRect(rect().adjusted(1, 1, -2, -2));
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, shownCaption(box_->caption()));
  }

  const PictureBox* box_;
};

}  // namespace

bool isTile(const QWidget& widget) { return dynamic_cast<const Picture*>(&widget) != nullptr; }

void makePictureView(View& view, QWidget* parent) {
  auto* picture = new Picture(static_cast<const PictureBox&>(view.control), parent);
  view.widget = picture;
  view.push = [picture](Property property) {
    if (property != Property::drawing && property != Property::caption) return;
    picture->updateGeometry();
    picture->update();
  };
  view.detach = [picture] { picture->detach(); };
}

}  // namespace zelko
