// A run-time fault: a limit of the system was passed (subscript, overflow, division by zero, a halt).
#pragma once

#include <string>

namespace zelko {

// Thrown where the limit is passed and caught only at the outermost event loop: files are closed, the
// user hears `text`, the program ends with a non-zero status.
struct Fault {
  std::u16string text;
};

// The sentences of the common faults: `throw Fault{kOverflow}`.
inline constexpr const char16_t* kOverflow = u"オーバーフローしました。";
inline constexpr const char16_t* kDivisionByZero = u"0 で除算しました。";
inline constexpr const char16_t* kSubscript = u"インデックスが有効範囲にありません。";
inline constexpr const char16_t* kBadPattern = u"パターン文字列が不正です。";

}  // namespace zelko
