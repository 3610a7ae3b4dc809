// The keys of a code file and what stands for each.
#pragma once

#include <optional>
#include <string>
#include <string_view>
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

// The same for the bytes of cells. What came of them is kept, so that of many equal cells one is converted.
class CodesOfBytes {
 public:
  explicit CodesOfBytes(const CodeTable& codes) : codes_(codes) {}

  // The bytes of what stands for a cell; nothing where it is no key. Good until the next call.
  const std::optional<std::string>& find(std::string_view cell);

 private:
  struct Hash : std::hash<std::string_view> {
    using is_transparent = void;
  };

  const CodeTable& codes_;
  std::unordered_map<std::string, std::optional<std::string>, Hash, std::equal_to<>> known_;
  std::optional<std::string> last_;  // once enough are known
};

}  // namespace zelko
