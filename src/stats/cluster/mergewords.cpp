#include "stats/cluster/mergewords.h"

#include "platform/text/format.h"
#include "platform/text/number.h"

namespace zelko {

MergeWords::MergeWords(const numbers::Clustering& clustering, std::int32_t first)
    : objects_(clustering.objects()),
      first_(first),
      merges_(clustering.merges()),
      tree_(numbers::dendrogram(clustering.objects(), clustering.merges())) {}

Text MergeWords::labelOf(int object) const {
  const auto at = static_cast<std::size_t>(object) - 1;
  if (at < names_.size() && !names_[at].empty()) return names_[at];
  return decimal(first_ + object - 1);
}

Text MergeWords::step(int step) const {
  const numbers::Merge& made = merge(step);
  return u"第" + decimal(step) + u"段、" + recordWord() + labelOf(made.i) + u"と" + labelOf(made.j) + u"、水準" +
         levelText(made.mergeLevel) + u"、" + decimal(made.members) + u"名";
}

Text MergeWords::members(int step) const {
  const numbers::Joint& joint = tree_.joints.at(static_cast<std::size_t>(step) - 1);
  Text said = decimal(static_cast<std::int64_t>(joint.members.size())) + u"名、" + recordWord();
  for (std::size_t k = 0; k < joint.members.size(); ++k)
    said += (k == 0 ? Text() : Text(u"、")) + labelOf(joint.members[k]);
  return said;
}

int MergeWords::branch(int step, bool second) const {
  const int object = second ? merge(step).j : merge(step).i;
  for (int before = step - 1; before > 0; --before) {
    if (merge(before).i == object) return before;
  }
  return 0;
}

Text MergeWords::leaf(int step, bool second) const {
  return recordWord() + labelOf(second ? merge(step).j : merge(step).i) + u"、1名";
}

Text levelText(double level) {
  Text text = format(level, u"0.####");
  if (text.back() == u'.') text.pop_back();
  return text;
}

}  // namespace zelko
