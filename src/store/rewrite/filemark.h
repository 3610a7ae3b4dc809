// What a file is known by when it is found again: its length, and a sum over its bytes that an accident does not bring
// about twice. No protection against somebody who wants to deceive.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

#include "platform/text/text.h"

namespace zelko {

struct FileMark {
  std::int64_t length = -1;
  std::uint64_t sum = 0;
  bool operator==(const FileMark&) const = default;
};

// The mark of bytes that come piece by piece; the same however they are cut.
class Marking {
 public:
  void add(std::string_view bytes);
  FileMark mark() const;

 private:
  void mix(const char* stripe);

  static constexpr std::size_t kStripe = 32;
  std::array<std::uint64_t, 4> lanes_{1, 2, 3, 4};
  std::array<char, kStripe> rest_{};
  std::size_t waiting_ = 0;  // bytes of rest_
  std::int64_t length_ = 0;
};

// Of a regular file that is no link; nullopt where there is none or it can't be read. As file 2.
std::optional<FileMark> markOfFile(TextView path);

// "LENGTH SUM" and back.
Text markText(const FileMark& mark);
std::optional<FileMark> markFromText(TextView text);

}  // namespace zelko
