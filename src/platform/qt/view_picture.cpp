// Pictures: the strokes of the model, painted in the size of the font.
#include <QPainter>
#include <algorithm>

#include "platform/forms/grid.h"
#include "platform/qt/qstring.h"
#include "platform/qt/view.h"

namespace zelko {

namespace {

using Operation = PictureBox::Operation;
using Stroke = PictureBox::Stroke;

QPointF lowestPoint(const Operation& o) {
  if (o.stroke == Stroke::circle) return {o.x1 + o.x2, o.y1 + o.x2};
  if (o.stroke == Stroke::text) return {o.x1 + 120.0 * static_cast<double>(o.text.size()), o.y1 + 300};
  return {std::max(o.x1, o.x2), std::max(o.y1, o.y2)};
}

void paint(QPainter& painter, const Operation& o) {
  const QColor colour = o.colour == kDesktopColour
                            ? painter.pen().color()
                            : QColor(o.colour & 0xFF, (o.colour >> 8) & 0xFF, (o.colour >> 16) & 0xFF);
  painter.save();
  QPen pen(colour, 2);
  pen.setCosmetic(true);
  painter.setPen(pen);
  const QRectF box = QRectF(QPointF(o.x1, o.y1), QPointF(o.x2, o.y2)).normalized();
  switch (o.stroke) {
    case Stroke::line:
      painter.drawLine(QPointF(o.x1, o.y1), QPointF(o.x2, o.y2));
      break;
    case Stroke::box:
      painter.drawRect(box);
      break;
    case Stroke::filledBox:
      painter.fillRect(box, colour);
      break;
    case Stroke::circle:
      painter.drawEllipse(QPointF(o.x1, o.y1), o.x2, o.x2);
      break;
    case Stroke::text: {
      const QPointF at = painter.transform().map(QPointF(o.x1, o.y1));
      painter.resetTransform();
      painter.drawText(at + QPointF(0, painter.fontMetrics().ascent()), toQt(o.text));
      break;
    }
  }
  painter.restore();
}

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
    const double k = pixelsPerTwip(*this);
    for (const Operation& operation : box_->operations()) {
      const QPointF low = lowestPoint(operation) * k;
      size = size.expandedTo({static_cast<int>(low.x()) + 4, static_cast<int>(low.y()) + 4});
    }
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
    for (const Operation& operation : box_->operations()) paint(painter, operation);
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
