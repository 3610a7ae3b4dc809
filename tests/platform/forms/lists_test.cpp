// The patterns by which a list chooses its files.
#include <doctest/doctest.h>

#include "platform/forms/lists.h"

using namespace zelko;

TEST_CASE("file name patterns") {
  struct Row {
    const char16_t* name;
    const char16_t* pattern;
    bool fits;
  };
  for (const Row& row :
       {Row{u"K住所録.TXT", u"k?*.txt", true}, Row{u"k.txt", u"k?*.txt", false},
        Row{u"Kabc.txt.bak", u"k?*.txt", false}, Row{u"noextension", u"*.*", true}, Row{u"a(1).lay", u"*(*).LAY", true},
        Row{u"a.csv", u"*.txt; *.csv", true}, Row{u"Ａb.txt", u"ａ*", true}, Row{u"aXbXc", u"a*b*c", true},
        Row{u"aXbX", u"a*b*c", false}, Row{u"", u"*", true}, Row{u"a", u"", false}}) {
    CAPTURE(toUtf8(row.name));
    CHECK(fileNameFits(row.name, row.pattern) == row.fits);
  }
}
