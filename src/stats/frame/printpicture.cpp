#include "stats/frame/printpicture.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "platform/host.h"
#include "stats/frame/svg.h"

namespace zelko {

namespace {

using Operation = PictureBox::Operation;
using Stroke = PictureBox::Stroke;

constexpr double kMargin = 850;       // twips, 15 mm
constexpr double kFontPoints = 10.5;  // of an unscaled drawing
constexpr int kSides = 32;            // of what stands for a circle

class Sheet {
 public:
  Sheet(Printer& printer, const Extent& drawn) : printer_(printer) {
    const double room = std::min((printer.pageWidth() - 2 * kMargin) / std::max(drawn.width, 1.0),
                                 (printer.pageHeight() - 2 * kMargin) / std::max(drawn.height, 1.0));
    scale_ = std::min(room, 1.0);
    font_.size = kFontPoints * scale_;
  }

  void draw(const Operation& o) {
    switch (o.stroke) {
      case Stroke::line:
        return line(o.x1, o.y1, o.x2, o.y2);
      case Stroke::box:
        line(o.x1, o.y1, o.x2, o.y1);
        line(o.x2, o.y1, o.x2, o.y2);
        line(o.x2, o.y2, o.x1, o.y2);
        return line(o.x1, o.y2, o.x1, o.y1);
      case Stroke::filledBox:
        return printer_.area(at(o.x1), at(o.y1), at(o.x2), at(o.y2), o.colour);
      case Stroke::circle:
        return circle(o);
      case Stroke::text:
        return printer_.text(at(o.x1), at(o.y1), font_, o.text);
    }
  }

 private:
  double at(double twips) const { return kMargin + twips * scale_; }

  void line(double x1, double y1, double x2, double y2) { printer_.line(at(x1), at(y1), at(x2), at(y2)); }

  void circle(const Operation& o) {
    constexpr double kTurn = 2 * std::numbers::pi / kSides;
    for (int side = 0; side < kSides; ++side) {
      const double from = side * kTurn, to = (side + 1) * kTurn;
      line(o.x1 + o.x2 * std::cos(from), o.y1 + o.x2 * std::sin(from), o.x1 + o.x2 * std::cos(to),
           o.y1 + o.x2 * std::sin(to));
    }
  }

  Printer& printer_;
  Printer::Font font_;
  double scale_ = 1;
};

}  // namespace

bool printPicture(const PictureBox& picture) {
  Printer& printer = host().printer();
  if (!printer.begin()) return false;
  Sheet sheet(printer, extentOf(picture));
  for (const Operation& operation : picture.operations()) sheet.draw(operation);
  printer.end();
  return true;
}

}  // namespace zelko
