#include "stats/cluster/dendrogrampicture.h"

#include <algorithm>
#include <cmath>

#include "platform/text/sjis.h"

namespace zelko {

namespace {

using Stroke = PictureBox::Stroke;

// Twips; a half-width character and a line.
constexpr double kChar = 120, kLine = 300;
constexpr double kEdge = 60, kLeft = 1500, kTop = 1900, kHeight = 4800, kLeaf = 420, kTick = 90;
constexpr std::size_t kFlatLabel = 3;  // longer labels stand upright, a character under the other
constexpr std::size_t kLongestLabel = 10;
constexpr int kTicks = 5;

double columnsOf(const Text& text) { return static_cast<double>(sjisLength(text)); }

class Drawing {
 public:
  Drawing(PictureBox& picture, const MergeWords& words) : picture_(picture), words_(words) {
    for (const numbers::Joint& joint : words.tree().joints) highest_ = std::max(highest_, joint.level);
  }

  void titles(const DendrogramTitles& titles) {
    double top = kEdge;
    for (const Text& title : {u"   分析法：" + titles.method, u"   距離マトリクス：" + titles.distance,
                              u"   ファイル:" + titles.file, u"   日時:" + titles.when}) {
      text(kEdge, top, title);
      top += kLine;
    }
  }

  void levelAxis() {
    text(kLeft - 2 * kChar, kTop - kLine - kEdge, u"水準");
    line(kLeft, kTop, kLeft, base());
    const double step = tickStep();
    const int ticks = step > 0 ? static_cast<int>(highest_ / step + 0.0001) : 0;
    for (int tick = 0; tick <= ticks; ++tick) {
      const double at = y(tick * step);
      const Text label = levelText(tick * step);
      line(kLeft - kTick, at, kLeft, at);
      text(kLeft - 2 * kTick - kChar * columnsOf(label), at - kLine / 2, label);
    }
  }

  void leafAxis() {
    line(kLeft, base(), x(words_.objects() + 0.5), base());
    double lines = 1, place = 0;
    for (const int object : words_.tree().leaves)
      lines = std::max(lines, leafLabel(x(++place), words_.labelOf(object)));
    text(kLeft, base() + kTick + kLine * (lines + 0.5), u"→測定対象(記録)");
  }

  void joints() {
    for (const numbers::Joint& joint : words_.tree().joints) {
      const double left = x(joint.left), right = x(joint.right), level = y(joint.level);
      line(left, y(joint.leftLevel), left, level);
      line(right, y(joint.rightLevel), right, level);
      line(left, level, right, level);
    }
  }

 private:
  static double base() { return kTop + kHeight; }
  static double x(double place) { return kLeft + place * kLeaf; }
  double y(double level) const { return highest_ > 0 ? base() - level / highest_ * kHeight : base(); }

  // 1, 2 or 5 times a power of ten; 0 where there is no level to show.
  double tickStep() const {
    if (!(highest_ > 0)) return 0;
    const double rough = highest_ / kTicks, power = std::pow(10, std::floor(std::log10(rough)));
    for (const double round : {1.0, 2.0, 5.0}) {
      if (round * power >= rough) return round * power;
    }
    return 10 * power;
  }

  // How many lines it takes.
  double leafLabel(double middle, const Text& label) {
    const double top = base() + kTick;
    if (sjisLength(label) <= kFlatLabel) {
      text(middle - kChar / 2 * columnsOf(label), top, label);
      return 1;
    }
    const std::size_t count = std::min(label.size(), kLongestLabel);
    for (std::size_t k = 0; k < count; ++k) {
      const Text character(1, label[k]);
      text(middle - kChar / 2 * columnsOf(character), top + kLine * static_cast<double>(k), character);
    }
    return static_cast<double>(count);
  }

  void line(double x1, double y1, double x2, double y2) {
    picture_.draw({Stroke::line, x1, y1, x2, y2, kDesktopColour, {}});
  }
  void text(double left, double top, const Text& words) {
    picture_.draw({Stroke::text, left, top, 0, 0, kDesktopColour, words});
  }

  PictureBox& picture_;
  const MergeWords& words_;
  double highest_ = 0;
};

}  // namespace

void drawDendrogram(PictureBox& picture, const MergeWords& words, const DendrogramTitles& titles) {
  picture.clear();
  Drawing drawing(picture, words);
  drawing.titles(titles);
  drawing.levelAxis();
  drawing.joints();
  drawing.leafAxis();
}

}  // namespace zelko
