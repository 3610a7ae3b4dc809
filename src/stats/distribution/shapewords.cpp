#include "stats/distribution/shapewords.h"

#include <algorithm>
#include <cmath>

#include "platform/forms/keys.h"
#include "platform/host.h"
#include "platform/text/number.h"
#include "stats/distribution/plainnumber.h"
#include "stats/numbers/shape.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr double kAlmostEven = 0.5;  // a skew below it is called symmetrical
constexpr double kEmptyHertz = 110, kLowHertz = 220, kOctaves = 2;
constexpr int kWholeMilliseconds = 3000, kShortest = 12, kLongest = 150;

std::span<const float> countsOf(const numbers::ClassEdges& edges, const numbers::ClassCounts& freq) {
  return std::span(freq).subspan(1, static_cast<std::size_t>(edges.classes));
}

Text peakWords(const numbers::Shape& shape, const numbers::ClassEdges& edges) {
  Text words = u"山わ" + decimal(static_cast<std::int64_t>(shape.peaks.size())) + u"つ";
  for (const int k : shape.peaks) words += markPause + u"階級値" + saidNumber(edges.mark(k));
  return words;
}

Text skewWords(double skew) {
  const Text size = u"歪度" + saidNumber(std::round(skew * 100) / 100);
  if (std::abs(skew) < kAlmostEven) return u"左右わほぼ同じ形" + markPause + size;
  return Text(skew > 0 ? u"裾わ右に長い" : u"裾わ左に長い") + markPause + size;
}

}  // namespace

Text shapeSentence(std::span<const double> values, const numbers::ClassEdges& edges, const numbers::ClassCounts& freq) {
  const numbers::Shape shape = numbers::shapeOf(values, countsOf(edges, freq));
  return u"分布の形。" + peakWords(shape, edges) + markStop + skewWords(shape.skew) + markStop + u"真ん中の半分わ" +
         saidNumber(shape.lowerQuartile) + u"から" + saidNumber(shape.upperQuartile) + u"の間" + markPause +
         u"中央値わ" + saidNumber(shape.median);
}

void playShape(const numbers::ClassEdges& edges, const numbers::ClassCounts& freq) {
  const auto counts = countsOf(edges, freq);
  const float highest = *std::max_element(counts.begin(), counts.end());
  const int milliseconds = std::clamp(kWholeMilliseconds / edges.classes, kShortest, kLongest);
  for (const float count : counts) {
    const double hertz =
        count <= 0 ? kEmptyHertz : kLowHertz * std::exp2(kOctaves * static_cast<double>(count / highest));
    host().tone(std::round(hertz), milliseconds);
  }
}

bool ShapeKey::keyDown(const KeyEvent& key, std::span<const double> values, const numbers::ClassEdges& edges,
                       const numbers::ClassCounts& freq) {
  const bool again = std::exchange(told_, false);
  if (!key.is(key::function(11), shift::Shift)) return false;
  if (values.empty() || edges.classes == 0) {
    host().beep();
  } else if (again) {
    playShape(edges, freq);
  } else {
    Text sentence = shapeSentence(values, edges, freq);
    told_ = true;
    talkNow(sentence);
  }
  return true;
}

}  // namespace zelko
