// Date and time: values, their short forms, their patterns, and reading them from text.
#pragma once

#include <optional>

#include "platform/text/text.h"

namespace zelko {

struct DateTime {
  int year = 2026, month = 1, day = 5;    // the proleptic Gregorian calendar
  int hour = 10, minute = 0, second = 0;  // 24 hours

  bool operator==(const DateTime&) const = default;
};

// The system's own forms, every part with two digits.
Text shortDate(const DateTime& when);  // "2026/01/05"
Text shortTime(const DateTime& when);  // "09:05:00"

// 0 Sunday to 6 Saturday.
int dayOfWeek(const DateTime& when);
// Days since 1970-01-01, and back (the time of day is 0:00:00).
int dayNumber(const DateTime& when);
DateTime fromDayNumber(int days);

// The date patterns and the named ones ("Long Date" and so on), in either case of their letters. "\" and quotes make
// literals, every other character stands. A day before the first era (1868/1/25) has an empty era and its full year.
// Weeks begin on Sunday, the one of 1 January is the first. With AM/PM in the pattern hours go from 1 to 12.
Text formatDate(const DateTime& when, TextView pattern);

// yyyy/m/d, yy/m/d (00 to 29 is 2000 to 2029), yyyy年m月d日, era letters and kanji with e.m.d or 年月日 (元 is 1), "-"
// as
// "/", optional h:m[:s]; blanks in front of a number are skipped. Without a time it is 0:00:00. Nothing for a day that
// the calendar doesn't have, for a year below 100, or where anything is left over.
std::optional<DateTime> dateFromText(TextView text);

}  // namespace zelko
