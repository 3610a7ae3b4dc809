#include "platform/text/daytime.h"

#include <chrono>

namespace zelko {
namespace {

std::chrono::sys_days daysOf(const DateTime& when) { return std::chrono::year(when.year) / when.month / when.day; }

}  // namespace

Text shortDate(const DateTime& when) { return formatDate(when, u"yyyy/mm/dd"); }
Text shortTime(const DateTime& when) { return formatDate(when, u"hh:nn:ss"); }

int dayOfWeek(const DateTime& when) { return static_cast<int>(std::chrono::weekday(daysOf(when)).c_encoding()); }

int dayNumber(const DateTime& when) { return static_cast<int>(daysOf(when).time_since_epoch().count()); }

DateTime fromDayNumber(int days) {
  const std::chrono::year_month_day date{std::chrono::sys_days(std::chrono::days(days))};
  return {.year = static_cast<int>(date.year()),
          .month = static_cast<int>(static_cast<unsigned>(date.month())),
          .day = static_cast<int>(static_cast<unsigned>(date.day())),
          .hour = 0,
          .minute = 0,
          .second = 0};
}

}  // namespace zelko
