#include "platform/qt/strokes.h"

#include <QImage>
#include <QPainter>
#include <algorithm>

#include "platform/qt/qstring.h"
#include "platform/text/sjis.h"

namespace zelko {

namespace {

using Operation = PictureBox::Operation;
using Stroke = PictureBox::Stroke;

constexpr double kImageDotsPerTwip = 2 * 96 / 1440.0;
constexpr double kFontTwips = 220, kImageEdge = 120;

QPointF lowestPoint(const Operation& o) {
  if (o.stroke == Stroke::circle) return {o.x1 + o.x2, o.y1 + o.x2};
  if (o.stroke == Stroke::text) return {o.x1 + 120.0 * static_cast<double>(sjisLength(o.text)), o.y1 + 300};
  return {std::max(o.x1, o.x2), std::max(o.y1, o.y2)};
}

void paint(QPainter& painter, const Operation& o) {
  const QColor colour = o.colour == kDesktopColour ? painter.pen().color() : colourOf(o.colour);
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

}  // namespace

QColor colourOf(Colour colour) {
  if (colour == kDesktopColour) return Qt::black;
  return QColor(colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF);
}

QSizeF drawingSize(const PictureBox& picture) {
  QSizeF size(0, 0);
  for (const Operation& operation : picture.operations()) {
    const QPointF low = lowestPoint(operation);
    size = size.expandedTo({low.x(), low.y()});
  }
  return size;
}

void paintDrawing(QPainter& painter, const PictureBox& picture) {
  for (const Operation& operation : picture.operations()) paint(painter, operation);
}

bool savePng(const PictureBox& picture, TextView path) {
  const QSizeF size = (drawingSize(picture) + QSizeF(kImageEdge, kImageEdge)) * kImageDotsPerTwip;
  QImage image(size.toSize(), QImage::Format_RGB32);
  if (image.isNull()) return false;
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  QFont font = painter.font();
  font.setPixelSize(static_cast<int>(kFontTwips * kImageDotsPerTwip));
  painter.setFont(font);
  painter.setPen(Qt::black);
  painter.scale(kImageDotsPerTwip, kImageDotsPerTwip);
  paintDrawing(painter, picture);
  painter.end();
  return image.save(toQt(path), "PNG");
}

}  // namespace zelko
