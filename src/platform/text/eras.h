// The eras of the Japanese calendar, oldest first.
#pragma once

#include <iterator>

#include "platform/text/daytime.h"

namespace zelko {

struct Era {
  int year, month, day;  // the first day
  char16_t letter;
  TextView name;  // two kanji, the first of which also stands alone
};

inline constexpr Era kEras[] = {
    {1868, 1, 25, u'M', u"明治"}, {1912, 7, 30, u'T', u"大正"}, {1926, 12, 25, u'S', u"昭和"},
    {1989, 1, 8, u'H', u"平成"},  {2019, 5, 1, u'R', u"令和"},
};

// Null before the first.
inline const Era* eraOf(const DateTime& when) {
  const auto order = [](int year, int month, int day) { return (year * 100 + month) * 100 + day; };
  const Era* found = nullptr;
  for (const Era& era : kEras) {
    if (order(era.year, era.month, era.day) <= order(when.year, when.month, when.day)) found = &era;
  }
  return found;
}

}  // namespace zelko
