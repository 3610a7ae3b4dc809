// The merges of a clustering in words, the records by number or by name.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/text/text.h"
#include "stats/numbers/clustering.h"
#include "stats/numbers/dendrogram.h"

namespace zelko {

class MergeWords {
 public:
  // `first`: the record that is object 1.
  MergeWords(const numbers::Clustering& clustering, std::int32_t first);

  int objects() const { return objects_; }
  int steps() const { return static_cast<int>(merges_.size()); }
  const numbers::Dendrogram& tree() const { return tree_; }

  // A name for each object, in their order; without one, an object is the number of its record.
  void setNames(std::vector<Text> names) { names_ = std::move(names); }
  Text labelOf(int object) const;

  // "第3段、記録5と6、水準6.25、4名"; steps count from 1.
  Text step(int step) const;
  // All of the cluster that the step makes.
  Text members(int step) const;
  // The step that made the first or the second branch of that one; 0 for a single record, which leaf() names.
  int branch(int step, bool second) const;
  Text leaf(int step, bool second) const;

 private:
  const numbers::Merge& merge(int step) const { return merges_.at(static_cast<std::size_t>(step) - 1); }
  Text recordWord() const { return names_.empty() ? Text(u"記録") : Text(); }

  int objects_;
  std::int32_t first_;
  std::vector<numbers::Merge> merges_;
  numbers::Dendrogram tree_;
  std::vector<Text> names_;
};

// A level as it is said and shown.
Text levelText(double level);

}  // namespace zelko
