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
  bool caseCounts() const { return caseCounts_; }
  // By key, folded.
  const std::unordered_map<Text, Text>& results() const { return results_; }

 private:
  Text folded(TextView text) const;

  bool caseCounts_;
  std::unordered_map<Text, Text> results_;
};

// The same for the bytes of cells. Cells of single bytes are looked up as they are; what came of others is kept, so
// that of many equal ones one is converted.
class CodesOfBytes {
 public:
  explicit CodesOfBytes(const CodeTable& codes);

  // The bytes of what stands for a cell; nothing where it is no key. Good until the next call.
  const std::optional<std::string>& find(std::string_view cell);

 private:
  struct Hash : std::hash<std::string_view> {
    using is_transparent = void;
  };

  // Whether all bytes are letters, digits, signs or half-width kana; `folded_` is then the cell as a key is spelled.
  bool isPlain(std::string_view cell);

  using Results = std::unordered_map<std::string, std::optional<std::string>, Hash, std::equal_to<>>;
  const CodeTable& codes_;
  Results plain_, known_;
  std::string folded_;
  std::optional<std::string> last_;  // of a cell that is not kept
};

}  // namespace zelko
