#include "platform/text/format.h"

#include "platform/fault.h"
#include "platform/forms/shown.h"

using namespace zelko;

TEST_CASE("numeric patterns") {
  const struct {
    double value;
    Text pattern, text;
  } rows[] = {
      // Rounding on the decimal text.
      {0.125, u"0.00", u"0.13"},
      {1.005, u"0.00", u"1.01"},
      {-0.125, u"0.00", u"-0.13"},
      {2.5, u"0", u"3"},
      {9.995, u"0.00", u"10.00"},
      {99.5, u"##", u"100"},
      {0.05, u"0.0", u"0.1"},
      {0.004, u"#.##", u"."},
      {1e-300, u"0.00", u"0.00"},
      {1e20, u"0", u"100000000000000000000"},
      {0.96, u".0", u"1.0"},
      // Digit places.
      {0, u"####", u""},
      {0, u"#.###", u"."},
      {5, u"    ####", u"    5"},
      {-5, u"  ###0", u"-  5"},
      {5, u"0##", u"005"},
      {0.5, u"#.#", u".5"},
      {5, u"#.#", u"5."},
      {1.5, u"0.0#0", u"1.500"},
      {1234567, u"000-0000", u"123-4567"},
      {3.14159, u" 00000.00000", u" 00003.14159"},
      {-1, u" 00000.00000", u"- 00001.00000"},
      {7, u"項目 ###:", u"項目 7:"},
      {3, u"    X(00)", u"    X(03)"},
      {0.25, u"     ###.00%        ", u"     25.00%        "},
      {0.00005, u"0.00%", u"0.01%"},
      {-0.001, u"0.00", u"-0.00"},
      // Thousands.
      {1234567.891, u"##,##0.00", u"1,234,567.89"},
      {1234567, u"#,", u"1235"},
      {1234567, u"#,##0,", u"1,235"},
      {1500000, u"0.0,", u"1500000.0,"},
      {2500000, u"0,,.0", u"2.5"},
      {7, u"計,0", u"計,7"},
      {999999.5, u"#,##0", u"1,000,000"},
      // Scientific.
      {12345, u"0.00E+00", u"1.23E+04"},
      {0.00012, u"0.0e-0", u"1.2e-4"},
      {0, u"0.00E+00", u"0.00E+00"},
      {9.996, u"0.00E+00", u"1.00E+01"},
      {12345, u"##0.0E+0", u"123.5E+2"},
      {-1e100, u"0.0E+00", u"-1.0E+100"},
      {5, u"0E", u"5E"},
      // Literals and sections.
      {5, u"\\#0", u"#5"},
      {5, u"\"0;#\"0", u"0;#5"},
      {5, u"0\\;", u"5;"},
      {5, u"０0円", u"０5円"},
      {5, u"0\"a", u"5a"},
      {-5, u"0;(0);zero", u"(5)"},
      {0, u"0;(0);zero", u"zero"},
      {-5, u"0;;z", u"-5"},
      {0, u"0;(0)", u"0"},
      {5, u"abc", u"abc"},
      {0, u"0;(0);;e", u"0"},
      // Named patterns.
      {1234.5, u"Currency", u"\\1,235"},
      {-1234.5, u"currency", u"-\\1,235"},
      {-1.5, u"Fixed", u"-1.50"},
      {1234.5, u"Standard", u"1,234.50"},
      {0.1234, u"Percent", u"12.34%"},
      {1234.5, u"Scientific", u"1.23E+03"},
      {0, u"Yes/No", u"No"},
      {-1, u"Yes/No", u"Yes"},
      {0, u"True/False", u"False"},
      {2, u"On/Off", u"On"},
      {1e15, u"General Number", u"1E+15"},
  };
  for (const auto& row : rows) {
    CAPTURE(row.value);
    CAPTURE(row.pattern);
    CHECK(format(row.value, row.pattern) == row.text);
  }
}

TEST_CASE("text patterns") {
  const struct {
    Text text, pattern, result;
  } rows[] = {
      {u"abc", u"@@@@@", u"  abc"},
      {u"abc", u"!@@@@@", u"abc  "},
      {u"abc", u"& &", u"ab c"},
      {u"abcd", u"!& &", u"a bcd"},
      {u"12", u"@-@-@", u" -1-2"},
      {u"12", u"!@-@-@", u"1-2- "},
      {u"aB", u">", u"AB"},
      {u"aBｃ", u"<", u"abｃ"},
      {u"Ａｂ", u">@@", u"ＡＢ"},
      {u"", u"@@", u"  "},
      {u"", u"(&)", u"()"},
      {u"東京都", u"@@ @@", u" 東 京都"},
      {u"abcdef", u"(@@)", u"abcd(ef)"},
  };
  for (const auto& row : rows) {
    CAPTURE(row.text);
    CAPTURE(row.pattern);
    CHECK(formatText(row.text, row.pattern) == row.result);
  }
}

TEST_CASE("pattern match") {
  const struct {
    Text text, pattern;
    bool matches;
  } rows[] = {
      {u"", u"", true},          {u"", u"*", true},         {u"", u"?", false},
      {u"abc", u"a*c", true},    {u"aXbXc", u"*X*c", true}, {u"mississippi", u"m*iss*iss*iss*ppi", false},
      {u"5", u"#", true},        {u"５", u"#", false},      {u"東京", u"??", true},
      {u"b", u"[a-c]", true},    {u"d", u"[!a-c]", true},   {u"-", u"[-a]", true},
      {u"-", u"[a-]", true},     {u"b", u"[a-]", false},    {u"]", u"]", true},
      {u"a]", u"[a]]", true},    {u"*", u"[*]", true},      {u"[", u"[[]", true},
      {u"!", u"[!]", true},      {u"!", u"[a!]", true},     {u"ab", u"a[]b", true},
      {u"イ", u"[ア-オ]", true}, {u"A", u"[a-z]", false},   {u"a1b", u"*[0-9]*", true},
      {u"-", u"[a-c-e]", true},  {u"aaab", u"*[a]b", true},
  };
  for (const auto& row : rows) {
    CAPTURE(row.text);
    CAPTURE(row.pattern);
    CHECK(likeMatch(row.text, row.pattern) == row.matches);
  }
  for (const Text& pattern : {Text(u"["), Text(u"x[abc"), Text(u"[z-a]"), Text(u"[a][!9-0]")}) {
    CAPTURE(pattern);
    CHECK_THROWS_AS(likeMatch(u"q", pattern), Fault);
  }
  CHECK_FALSE(likeMatch(Text(20000, u'a'), u"*a*a*a*a*b"));  // no exponential search
}
