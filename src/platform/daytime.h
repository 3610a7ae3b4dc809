// Date and time: values, their short forms, their patterns, and reading them from text.
#pragma once

#include <optional>

#include "platform/text.h"

namespace zelko {

struct DateTime {
  int year = 2026, month = 1, day = 5;    // the proleptic Gregorian calendar
  int hour = 10, minute = 0, second = 0;  // 24 hours

  bool operator==(const DateTime&) const = default;
};

Text shortDate(const DateTime& when);  // "2026/11/22"
Text shortTime(const DateTime& when);  // "10:05:00"

// 0 Sunday to 6 Saturday.
int dayOfWeek(const DateTime& when);
// Days since 1970-01-01, and back (the time of day stays 0).
int dayNumber(const DateTime& when);
DateTime fromDayNumber(int days);

// The date patterns and the named ones ("Long Date" and so on).
Text formatDate(const DateTime& when, TextView pattern);

// yyyy/m/d, yy/m/d, yyyy年m月d日, era letters and kanji with e.m.d or 年月日, "-" as "/", optional h:m[:s].
std::optional<DateTime> dateFromText(TextView text);

}  // namespace zelko
