// Whether a text can stand among the bytes of a record, looked up without converting a byte.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "platform/text/text.h"

namespace zelko {

// What is left out of account when texts are compared.
struct Spelling {
  bool caseCounts = false;
  bool foldsForms = false;  // kana, width and forms of kanji, as folded()

  bool operator==(const Spelling&) const = default;
};

// The text as it is compared.
Text spelled(TextView text, Spelling spelling);

class ByteFilter {
 public:
  // `wanted` is spelled already.
  ByteFilter(TextView wanted, Spelling spelling);

  // False where no cell among these bytes holds the text; true says nothing.
  bool mayHold(std::string_view bytes) const;

 private:
  // A character as it may stand in a file.
  struct Code {
    char16_t character;
    std::uint8_t length;
    char bytes[4];
  };
  static std::vector<Code> madeCodes(Spelling spelling);
  static const std::vector<Code>& codesOf(Spelling spelling);
  // The bytes that the text may begin with.
  struct Start {
    char first, second;
    bool alone;  // the second may be any

    auto operator<=>(const Start&) const = default;
  };
  void takeStarts();
  static bool holdsPair(std::string_view bytes, Start start);
  bool mayBegin(std::string_view bytes) const;
  bool standsAt(const char* at, const char* end) const;

  std::vector<std::span<const Code>> codes_;  // of each character looked for; empty: nothing can be said
  std::array<bool, 256> begins_{};            // bytes that its first character begins with
  std::vector<Start> starts_;                 // empty where there are too many to look for each
};

}  // namespace zelko
