#include "stats/distribution/histogram.h"

#include <algorithm>

namespace zelko {

namespace {

using Stroke = PictureBox::Stroke;

// The frame in units of its own, and what a unit is in twips.
constexpr double kLeft = 100, kWidth = 512, kTop = 100, kBottom = 300;
constexpr double kAcross = 10, kDown = 15;
constexpr double kTickLength = 5, kLineTwips = 300, kCharTwips = 240;
constexpr Colour kBlack = 0x000000, kRule = 0xB0B0B0, kBar = 0xC07020;

class Drawing {
 public:
  Drawing(PictureBox& picture, const numbers::ClassEdges& edges, const HistogramLook& look)
      : picture_(picture), edges_(edges), look_(look), width_(kWidth * static_cast<double>(look.xScale)) {}

  void bars(const numbers::ClassCounts& freq, int n) {
    if (n <= 0) return;
    const double half = step() / 2;
    for (int k = 1; k <= edges_.classes; ++k) {
      const double share = static_cast<double>(freq[static_cast<std::size_t>(k)]) / n;
      if (share <= 0) continue;
      const double top = std::max(height(share), kTop);
      stroke(Stroke::filledBox, tick(k) - half, top, tick(k) + half, kBottom, kBar);
      stroke(Stroke::box, tick(k) - half, top, tick(k) + half, kBottom, kBlack);
    }
  }

  void rules() {
    for (int tenth = 1; tenth <= 10; ++tenth) {
      const double y = height(tenth / 10.0);
      if (y < kTop - 0.001) break;
      stroke(Stroke::line, kLeft, y, kLeft + width_, y, kRule);
      if (tenth == 10) words(kLeft - 60, y, look_.full, -kLineTwips / 2);
    }
    words(kLeft - 60, kBottom, look_.none, -kLineTwips / 2);
  }

  void frame() {
    stroke(Stroke::box, kLeft, kTop, kLeft + width_, kBottom, kBlack);
    for (int k = 1; k <= edges_.classes; ++k)
      stroke(Stroke::line, tick(k), kBottom, tick(k), kBottom + kTickLength, kBlack);
    markAt(1);
    if (edges_.classes > 1) markAt(edges_.classes);
    words(kLeft, kTop, look_.title, -kLineTwips * 1.5);
  }

 private:
  double step() const { return width_ / (edges_.classes + 1); }
  double tick(int k) const { return kLeft + k * step(); }
  double height(double share) const { return kBottom - share * (kBottom - kTop) * static_cast<double>(look_.yScale); }

  void markAt(int k) {
    const Text text = look_.mark(edges_.mark(k));
    const double half = static_cast<double>(text.size()) * kCharTwips / 4 / kAcross;
    words(std::max(tick(k) - half, 0.0), kBottom + kTickLength, text, 60);
  }
  void stroke(Stroke kind, double x1, double y1, double x2, double y2, Colour colour) {
    picture_.draw({kind, x1 * kAcross, y1 * kDown + look_.top, x2 * kAcross, y2 * kDown + look_.top, colour, {}});
  }
  void words(double x, double y, const Text& text, double lower) {
    if (!text.empty()) picture_.draw({Stroke::text, x * kAcross, y * kDown + look_.top + lower, 0, 0, kBlack, text});
  }

  PictureBox& picture_;
  const numbers::ClassEdges& edges_;
  const HistogramLook& look_;
  double width_;
};

}  // namespace

void drawHistogram(PictureBox& picture, const numbers::ClassEdges& edges, const numbers::ClassCounts& freq, int n,
                   const HistogramLook& look) {
  picture.clear();
  Drawing drawing(picture, edges, look);
  drawing.rules();
  drawing.bars(freq, n);
  drawing.frame();
}

void drawLines(PictureBox& picture, const std::vector<Text>& lines) {
  picture.clear();
  double y = kLineTwips;
  for (const Text& line : lines) {
    picture.draw({Stroke::text, kLineTwips, y, 0, 0, kBlack, line});
    y += kLineTwips;
  }
}

}  // namespace zelko
