#include "stats/distribution/groupchart.h"

#include <algorithm>
#include <cmath>

#include "platform/text/format.h"
#include "platform/text/number.h"
#include "stats/distribution/classtable.h"
#include "stats/distribution/histogram.h"
#include "stats/distribution/plainnumber.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr int kFirstClasses = 10, kFewestClasses = 2;
constexpr float kLeastScale = 0.1f;

}  // namespace

GroupChart::GroupChart(Form& form, int group, std::vector<double> values)
    : group_(group), title_(form, u"lblMEAN", {}, group), picture_(form, u"frmMEAN", group) {
  data_.values = std::move(values);
  data_.measure();
  picture_.tabStop = true;
  picture_.screenName = title();
  title_.setCaption(title() + u"  " + figures());
  title_.place = Place::newRow;
  picture_.place = Place::newRow;
  picture_.setCaption(title());
  setLimits(data_.minV, data_.maxV, kFirstClasses);
}

Text GroupChart::scaleWords() const {
  return u"縦倍率" + saidNumber(std::round(yScale_ * 10) / 10) + markPause + u"横倍率" +
         saidNumber(std::round(xScale_ * 10) / 10);
}

// Equal values stand alone in the last class.
void GroupChart::setLimits(double minV, double maxV, int classes) {
  data_.minV = minV == maxV ? maxV - 1 : minV;
  data_.maxV = maxV;
  data_.classes = classes;
  setClasses(classes);
}

bool GroupChart::setClasses(int classes) {
  data_.classes = std::clamp(classes, kFewestClasses, numbers::kMostClasses);
  walked_ = std::min(walked_, data_.classes);
  data_.count();
  draw();
  return data_.classes == classes;
}

bool GroupChart::stretch(float across, float down) {
  if (xScale_ + across < kLeastScale || yScale_ + down < kLeastScale) return false;
  xScale_ += across;
  yScale_ += down;
  draw();
  return true;
}

void GroupChart::setIcon(bool icon) {
  icon_ = icon;
  draw();
}

void GroupChart::setVisible(bool visible) {
  title_.setVisible(visible);
  picture_.setVisible(visible);
}

void GroupChart::draw() {
  if (icon_) return picture_.clear();
  drawHistogram(picture_, data_.edges, data_.freq, data_.n(),
                {.title = title() + u"  " + figures(),
                 .full = u"100%",
                 .none = u"  0%",
                 .yScale = yScale_,
                 .xScale = xScale_,
                 .mark = [](float mark) { return format(mark, u"#.###"); }});
}

Text GroupChart::title() const { return u"群" + decimal(group_) + u"の分布"; }

Text GroupChart::figures() const {
  return u"N=" + decimal(data_.n()) + u"  m=" + format(data_.spread.mean, u"######.######") + u"  SD=" +
         format(data_.spread.sd(), u"#####.######");
}

Text GroupChart::sentence() const {
  return title() + markPause + decimal(data_.n()) + u"人" + markPause + u"平均値わ" + saidNumber(data_.spread.mean) +
         markPause + u"標準偏差わ" + saidNumber(data_.spread.sd()) + markPause + u"最大値わ" +
         saidNumber(data_.spread.max) + markPause + u"最小値わ" + saidNumber(data_.spread.min) + markPause + u"階級数" +
         decimal(data_.classes);
}

bool GroupChart::walk(int by) {
  const int wanted = walked_ + by;
  walked_ = std::clamp(wanted, 1, data_.classes);
  return walked_ == wanted;
}

void GroupChart::walkToEnd(bool last) { walked_ = last ? data_.classes : 1; }

Text GroupChart::classWords() const { return classSentence(data_.edges, data_.freq, walked_); }

}  // namespace zelko
