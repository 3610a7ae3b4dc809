// The keys of a code file and what stands for each.
#pragma once

#include <unordered_map>

#include "platform/text/text.h"

namespace zelko {

class CodeTable {
 public:
  explicit CodeTable(bool caseCounts) : caseCounts_(caseCounts) {}

  // One record of the code file. A blank key is passed over; of equal keys the first one counts.
  void add(TextView key, TextView result);
  // What stands for a cell, trimmed; null where its text is no key.
  const Text* find(TextView cell) const;
  std::size_t size() const { return results_.size(); }

 private:
  Text folded(TextView text) const;

  bool caseCounts_;
  std::unordered_map<Text, Text> results_;
};

}  // namespace zelko
