#include "platform/text/number.h"

#include <string>

#include "platform/fault.h"
#include "platform/forms/shown.h"

using namespace zelko;

TEST_CASE("the longest prefix that makes a number counts") {
  const struct {
    Text text;
    double value;
  } rows[] = {
      {u"1e3", 1000},
      {u"1e", 1},
      {u"1.2.3", 1.2},
      {u"- 5", -5},
      {u".", 0},
      {u".5", 0.5},
      {u"", 0},
      {u"--5", 0},
      {u"  1 2\t3\n4 ", 1234},
      {u"12\r3", 12},
      {u"1d2", 100},
      {u"1D-2", 0.01},
      {u"1e+x", 1},
      {u"1e 2", 100},
      {u".e5", 0},
      {u"-.5E1", -5},
      {u"１２", 0},
      {u"3　4", 3},
      {Text(u"1\0"
            u"2",
            3),
       1},
      {u"007.50", 7.5},
      {u"0e999999999999", 0},
      {u"1e-400", 0},
      {u"4.9e-324", 4.9e-324},
      {u"1e-99999999999999999999", 0},
      {u"inf", 0},
      {u"&HFFFF", -1},
      {u"&H10000", 65536},
      {u"& H 7F", 127},
      {u"&HFFFFFFFFF", -1},
      {u"&O17", 15},
      {u"&o177777", -1},
      {u"&O37777777777", -1},
      {u"&H", 0},
      {u"-&H1", 0},
      {u"&O8", 0},
  };
  for (const auto& row : rows) {
    CAPTURE(row.text);
    CHECK(val(row.text) == row.value);
  }
  CHECK(val(Text(100000, u'0') + u"5") == 5);
  CHECK(val(u"0." + Text(100000, u'0') + u"5e100001") == 5);
}

TEST_CASE("a value beyond the range of a double is an overflow") {
  for (const Text& text : {Text(u"1e309"), Text(u"-1.8E308"), Text(u"1d99999999999999999999"), Text(400, u'9')}) {
    CAPTURE(text);
    CHECK_THROWS_AS(val(text), Fault);
  }
  CHECK(val(u"1.7976931348623157e308") > 1.79e308);
}

TEST_CASE("the text form of a double") {
  const struct {
    double value;
    Text text;
  } rows[] = {
      {-0.25, u"-.25"},
      {0, u" 0"},
      {-0.0, u" 0"},
      {1e15, u" 1E+15"},
      {123456789012345, u" 123456789012345"},
      {999999999999999, u" 999999999999999"},
      {1234567890123456, u" 1.23456789012346E+15"},
      {0.1, u" .1"},
      {0.00001, u" .00001"},
      {1.0 / 30, u" 3.33333333333333E-02"},
      {1.0 / 3, u" .333333333333333"},
      {1e-16, u" 1E-16"},
      {1.5e-15, u" 1.5E-15"},
      {0.1 + 0.2, u" .3"},
      {1e100, u" 1E+100"},
      {-1.5e-300, u"-1.5E-300"},
      {999999999999999.9, u" 1E+15"},
      {0.9999999999999999, u" 1"},
      {1.7976931348623157e308, u" 1.79769313486232E+308"},
  };
  for (const auto& row : rows) CHECK(str(row.value) == row.text);
  CHECK_THROWS_AS(str(1e308 * 10), Fault);
}

TEST_CASE("the text form of a single and of whole numbers") {
  const struct {
    float value;
    Text text;
  } rows[] = {
      {1e7F, u" 1E+07"},
      {12345678.0F, u" 1.234568E+07"},
      {1.0F / 30, u" 3.333334E-02"},
      {16777215.0F, u" 1.677722E+07"},
      {0.1F, u" .1"},
      {9999999.0F, u" 9999999"},
      {1e-7F, u" .0000001"},
      {1e-8F, u" 1E-08"},
      {36000.2F, u" 36000.2"},
  };
  for (const auto& row : rows) CHECK(str(row.value) == row.text);
  CHECK(str(0) == u" 0");
  CHECK(str(-7) == u"-7");
  CHECK(str(INT64_MIN) == u"-9223372036854775808");
  CHECK(decimal(12) == u"12");
}

TEST_CASE("whole numbers round half to even and overflow") {
  const struct {
    double value;
    int rounded;
  } rows[] = {{2.5, 2},  {3.5, 4},          {-2.5, -2},         {0.5, 0},
              {-0.5, 0}, {32767.49, 32767}, {-32768.5, -32768}, {2.500001, 3}};
  for (const auto& row : rows) {
    CHECK(toInt16(row.value) == row.rounded);
    CHECK(toInt32(row.value) == row.rounded);
  }
  for (const double value : {32767.5, -32768.6, 1e300}) CHECK_THROWS_AS(toInt16(value), Fault);
  for (const double value : {2147483647.5, -2147483649.0, 1e300 - 1e301}) CHECK_THROWS_AS(toInt32(value), Fault);
  CHECK_THROWS_AS(toInt32(std::stod("nan")), Fault);
  CHECK(toInt32(2147483647.4) == 2147483647);
}
