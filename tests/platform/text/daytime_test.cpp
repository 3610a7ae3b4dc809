#include "platform/text/daytime.h"

#include "platform/forms/shown.h"

using namespace zelko;

namespace {

DateTime at(int year, int month, int day, int hour = 0, int minute = 0, int second = 0) {
  return {year, month, day, hour, minute, second};
}

}  // namespace

TEST_CASE("the short forms and the day numbers") {
  CHECK(shortDate(at(2026, 1, 5)) == u"2026/01/05");
  CHECK(shortTime(at(2026, 1, 5, 9, 5, 0)) == u"09:05:00");
  CHECK(dayOfWeek(at(2026, 11, 22)) == 0);
  CHECK(dayOfWeek(at(1900, 1, 1)) == 1);
  CHECK(dayNumber(at(1970, 1, 1)) == 0);
  CHECK(dayNumber(at(2000, 2, 29)) == 11016);
  CHECK(dayNumber(at(1969, 12, 31, 23)) == -1);
  for (const int day : {-200000, -1, 0, 11016, 20000}) CHECK(dayNumber(fromDayNumber(day)) == day);
  CHECK(fromDayNumber(11016) == at(2000, 2, 29));
}

TEST_CASE("date patterns") {
  const DateTime morning = at(2026, 11, 22, 10, 5, 0), evening = at(1989, 1, 7, 15, 30, 9), midnight = at(2019, 5, 1);
  const struct {
    DateTime when;
    Text pattern, text;
  } rows[] = {
      {morning, u"General Date", u"2026/11/22 10:05:00"},
      {morning, u"Long Date", u"2026年11月22日"},
      {morning, u"Medium Date", u"26-11-22"},
      {morning, u"Short Date", u"2026/11/22"},
      {morning, u"Long Time", u"10:05:00"},
      {morning, u"Medium Time", u"10:05 午前"},
      {evening, u"Medium Time", u"03:30 午後"},
      {midnight, u"Medium Time", u"12:00 午前"},
      {morning, u"Short Time", u"10:05"},
      {evening, u"d-mmmm h:mm", u"7-January 15:30"},
      {evening, u"dddd, mmmm dd, yyyy", u"Saturday, January 07, 1989"},
      {evening, u"g ee/mm/dd", u"S 64/01/07"},
      {evening, u"ggg e年m月d日 aaaa", u"昭和 64年1月7日 土曜日"},
      {evening, u"h:mm:ss a/p", u"3:30:09 p"},
      {evening, u"hh:mm AM/P", u"03:30 PM"},
      {at(1989, 1, 8), u"ggge", u"平成1"},
      {at(2019, 4, 30), u"gge", u"平31"},
      {at(1926, 12, 24), u"ggge", u"大正15"},
      {at(1926, 12, 25), u"ggge", u"昭和1"},
      {at(1912, 7, 29), u"ge", u"M45"},
      {at(1912, 7, 30), u"ge", u"T1"},
      {at(1868, 1, 24), u"ge", u"1868"},
      {morning, u"ddd aaa w q y", u"Sun 日 1 4 326"},
      {at(2026, 1, 1), u"ww y", u"1 1"},
      {at(2026, 1, 4), u"ww", u"2"},
      {at(2028, 12, 31), u"ww y", u"54 366"},
      {morning, u"oooo", u"11月"},
      {morning, u"hh:mm mm", u"10:05 11"},
      {morning, u"n", u"5"},
      {midnight, u"h am/pm", u"12 am"},
      {at(2026, 1, 1, 12), u"h AM/PM", u"12 PM"},
      {morning, u"YYYY/MM/DD", u"2026/11/22"},
      {morning, u"\\dd \"dd\" d", u"d22 dd 22"},
      {morning, u"", u""},
      {evening, u"\"AM/PM\" h", u"AM/PM 15"},
  };
  for (const auto& row : rows) {
    CAPTURE(row.pattern);
    CHECK(formatDate(row.when, row.pattern) == row.text);
  }
}

TEST_CASE("dates from text") {
  const struct {
    Text text;
    std::optional<DateTime> date;
  } rows[] = {
      {u"2026/11/22", at(2026, 11, 22)},
      {u"29/1/5", at(2029, 1, 5)},
      {u"30/1/5", at(1930, 1, 5)},
      {u"2026年1月5日", at(2026, 1, 5)},
      {u"H8.4.1", at(1996, 4, 1)},
      {u"昭和64年1月7日", at(1989, 1, 7)},
      {u"令和元年5月1日", at(2019, 5, 1)},
      {u"平31.4.30", at(2019, 4, 30)},
      {u"M1.1.25", at(1868, 1, 25)},
      {u" 2026/ 1/ 5 10:05 ", at(2026, 1, 5, 10, 5)},
      {u"2026/1/5 23:59:58", at(2026, 1, 5, 23, 59, 58)},
      {u"2024/2/29", at(2024, 2, 29)},
      {u"2026/2/29", {}},
      {u"2026/13/1", {}},
      {u"2026/1/32", {}},
      {u"2026.1.5", {}},
      {u"H0.1.1", {}},
      {u"", {}},
      {u"2026/1", {}},
      {u"2026/1/5x", {}},
      {u"2026/1/5 24:00", {}},
      {u"2026/1/5 10:", {}},
      {u"２０２６/1/5", {}},
      {u"20260105", {}},
      {u"99999/1/1", {}},
      {u"099/1/1", {}},
      {u"昭和", {}},
  };
  for (const auto& row : rows) {
    CAPTURE(row.text);
    CHECK((dateFromText(row.text) == row.date));
  }
}
