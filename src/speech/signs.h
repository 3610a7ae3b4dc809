// Signs: what each is called, and whether a sentence says its name or only pauses there.
#pragma once

#include "platform/text/text.h"

namespace zelko {

enum class SignRole {
  said,      // its name is spoken
  pause,     // a short pause; named only where nothing else can be heard
  stop,      // the end of a sentence; named likewise
  question,  // the same with a raised voice
  silent,    // nothing; named likewise
};

struct Sign {
  char16_t sign;
  SignRole role;
  const char16_t* name;  // katakana
};

// The sign's row; a sign without one is called "キゴウ". Letters, digits and kana are no signs.
const Sign& signOf(char16_t sign);
bool isSign(char16_t unit);

}  // namespace zelko
