// Dates from text.
#include <chrono>

#include "platform/text/eras.h"

namespace zelko {
namespace {

bool isDigit(char16_t unit) { return unit >= u'0' && unit <= u'9'; }

class DateReader {
 public:
  explicit DateReader(TextView text) : rest_(text) {}

  std::optional<DateTime> read() {
    skipBlanks();
    const Era* era = takeEra();
    if (!readYear(era) || !readDay(era != nullptr)) return std::nullopt;
    skipBlanks();
    if (!rest_.empty() && !readTime()) return std::nullopt;
    skipBlanks();
    const bool whole = rest_.empty() && date_.year >= 100 && date_.year <= 9999;
    const auto day = std::chrono::year(date_.year) / date_.month / date_.day;
    return whole && day.ok() ? std::optional(date_) : std::nullopt;
  }

 private:
  const Era* takeEra() {
    for (const Era& era : kEras) {
      if (take(era.name) || take(era.name.substr(0, 1))) return &era;
      const char16_t small = static_cast<char16_t>(era.letter + 0x20);
      if (take(TextView(&era.letter, 1)) || take(TextView(&small, 1))) return &era;
    }
    return nullptr;
  }

  bool readYear(const Era* era) {
    if (era != nullptr && take(u"元")) {
      date_.year = era->year;
      return true;
    }
    const std::size_t size = readNumber(date_.year, 4);
    if (size == 0) return false;
    if (era != nullptr) {
      date_.year += era->year - 1;
      return date_.year >= era->year;
    }
    if (size <= 2) date_.year += date_.year < 30 ? 2000 : 1900;
    return true;
  }

  bool readDay(bool pointsToo) {
    if (take(u"年")) {
      return readNumber(date_.month, 2) > 0 && take(u"月") && readNumber(date_.day, 2) > 0 && take(u"日");
    }
    return takeSeparator(pointsToo) && readNumber(date_.month, 2) > 0 && takeSeparator(pointsToo) &&
           readNumber(date_.day, 2) > 0;
  }

  bool readTime() {
    if (readNumber(date_.hour, 2) == 0 || !take(u":") || readNumber(date_.minute, 2) == 0) return false;
    if (take(u":") && readNumber(date_.second, 2) == 0) return false;
    return date_.hour < 24 && date_.minute < 60 && date_.second < 60;
  }

  // How many digits there were; one more than `most` leaves the rest unread, so the reading fails there.
  std::size_t readNumber(int& value, std::size_t most) {
    skipBlanks();
    std::size_t size = 0;
    for (value = 0; size < most && size < rest_.size() && isDigit(rest_[size]); ++size) {
      value = value * 10 + (rest_[size] - u'0');
    }
    rest_.remove_prefix(size);
    return size;
  }

  bool takeSeparator(bool pointsToo) { return take(u"/") || take(u"-") || (pointsToo && take(u".")); }

  bool take(TextView what) {
    if (!rest_.starts_with(what)) return false;
    rest_.remove_prefix(what.size());
    return true;
  }

  void skipBlanks() {
    while (take(u" ")) {
    }
  }

  TextView rest_;
  DateTime date_{.hour = 0, .minute = 0, .second = 0};
};

}  // namespace

std::optional<DateTime> dateFromText(TextView text) { return DateReader(text).read(); }

}  // namespace zelko
