// Lets a failed check show texts.
#pragma once

#include <doctest/doctest.h>

#include "platform/text/text.h"

namespace doctest {

template <>
struct StringMaker<zelko::Text> {
  static String convert(const zelko::Text& text) { return ("\"" + zelko::toUtf8(text) + "\"").c_str(); }
};

}  // namespace doctest
