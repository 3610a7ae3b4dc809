// Date patterns.
#include <algorithm>
#include <iterator>

#include "platform/text/eras.h"
#include "platform/text/number.h"

namespace zelko {
namespace {

enum class Field {
  dayPlain,
  day,
  dayShort,
  dayLong,
  dayKanji,
  dayKanjiLong,
  weekday,
  week,
  monthPlain,
  month,
  monthShort,
  monthLong,
  monthKanji,
  quarter,
  yearDay,
  yearShort,
  year,
  eraLetter,
  eraKanji,
  eraName,
  eraYearPlain,
  eraYear,
  hourPlain,
  hour,
  minutePlain,
  minute,
  secondPlain,
  second,
  halfUpper,
  halfLower,
  halfUpperLetter,
  halfLowerLetter
};

struct Word {
  TextView letters;
  Field field;
};

// A longer word stands before its beginning. The halves of the day are told apart by the case of their letters.
constexpr Word kHalves[] = {{u"AM/PM", Field::halfUpper},     {u"AM/P", Field::halfUpper},
                            {u"am/pm", Field::halfLower},     {u"am/p", Field::halfLower},
                            {u"A/P", Field::halfUpperLetter}, {u"a/p", Field::halfLowerLetter}};
constexpr Word kWords[] = {
    {u"dddd", Field::dayLong},      {u"ddd", Field::dayShort},   {u"dd", Field::day},      {u"d", Field::dayPlain},
    {u"aaaa", Field::dayKanjiLong}, {u"aaa", Field::dayKanji},   {u"ww", Field::week},     {u"w", Field::weekday},
    {u"mmmm", Field::monthLong},    {u"mmm", Field::monthShort}, {u"mm", Field::month},    {u"m", Field::monthPlain},
    {u"oooo", Field::monthKanji},   {u"q", Field::quarter},      {u"yyyy", Field::year},   {u"yy", Field::yearShort},
    {u"y", Field::yearDay},         {u"ggg", Field::eraName},    {u"gg", Field::eraKanji}, {u"g", Field::eraLetter},
    {u"ee", Field::eraYear},        {u"e", Field::eraYearPlain}, {u"hh", Field::hour},     {u"h", Field::hourPlain},
    {u"nn", Field::minute},         {u"n", Field::minutePlain},  {u"ss", Field::second},   {u"s", Field::secondPlain},
};

constexpr TextView kDays[] = {u"Sunday", u"Monday", u"Tuesday", u"Wednesday", u"Thursday", u"Friday", u"Saturday"};
constexpr TextView kKanjiDays = u"日月火水木金土";
constexpr TextView kMonths[] = {u"January", u"February", u"March",     u"April",   u"May",      u"June",
                                u"July",    u"August",   u"September", u"October", u"November", u"December"};

Text digits(int value, std::size_t size) {
  const Text plain = decimal(value);
  return plain.size() < size ? Text(size - plain.size(), u'0') + plain : plain;
}

int dayOfYear(const DateTime& when) {
  return dayNumber(when) - dayNumber({.year = when.year, .month = 1, .day = 1}) + 1;
}

int weekOfYear(const DateTime& when) {
  return (dayOfYear(when) - 1 + dayOfWeek({.year = when.year, .month = 1, .day = 1})) / 7 + 1;
}

Text nameOfDay(const DateTime& when) { return Text(kDays[dayOfWeek(when)]); }
Text kanjiOfDay(const DateTime& when) { return Text(1, kKanjiDays[static_cast<std::size_t>(dayOfWeek(when))]); }
Text nameOfMonth(const DateTime& when) { return Text(kMonths[when.month - 1]); }

Text eraName(const DateTime& when, std::size_t size) {
  const Era* era = eraOf(when);
  return era == nullptr ? Text() : Text(era->name.substr(0, size));
}

Text eraLetter(const DateTime& when) {
  const Era* era = eraOf(when);
  return era == nullptr ? Text() : Text(1, era->letter);
}

int eraYear(const DateTime& when) {
  const Era* era = eraOf(when);
  return era == nullptr ? when.year : when.year - era->year + 1;
}

int hourOfHalf(int hour) { return hour % 12 == 0 ? 12 : hour % 12; }

class DateFiller {
 public:
  DateFiller(const DateTime& when, TextView pattern) : when_(when), pattern_(pattern) {}

  Text filled() {
    halves_ = hasHalves();
    for (at_ = 0; at_ < pattern_.size();) {
      if (literal()) continue;
      if (const Word* word = wordAt()) {
        at_ += word->letters.size();
        last_ = meant(word->field);
        result_ += text(last_);
      } else {
        result_ += pattern_[at_++];
      }
    }
    return result_;
  }

 private:
  const Word* wordAt() const {
    const TextView rest = pattern_.substr(at_);
    for (const Word& word : kHalves) {
      if (rest.starts_with(word.letters)) return &word;
    }
    const Text small = lowerCase(rest.substr(0, 4));
    const auto found = std::ranges::find_if(kWords, [&](const Word& word) { return small.starts_with(word.letters); });
    return found == std::end(kWords) ? nullptr : found;
  }

  bool hasHalves() {
    for (at_ = 0; at_ < pattern_.size();) {
      const std::size_t before = result_.size();
      if (literal()) {
        result_.resize(before);
        continue;
      }
      const Word* word = wordAt();
      if (word != nullptr && word->field >= Field::halfUpper) return true;
      at_ += word == nullptr ? 1 : word->letters.size();
    }
    return false;
  }

  // Takes "\" and its character, or a quoted text.
  bool literal() {
    const char16_t unit = pattern_[at_];
    if (unit == u'\\' && at_ + 1 < pattern_.size()) {
      result_ += pattern_[at_ + 1];
      at_ += 2;
      return true;
    }
    if (unit != u'"') return false;
    const std::size_t end = std::min(pattern_.find(u'"', at_ + 1), pattern_.size());
    result_ += pattern_.substr(at_ + 1, end - at_ - 1);
    at_ = end + 1;
    return true;
  }

  // Behind the hours, "m" is the minutes.
  Field meant(Field field) const {
    if (last_ != Field::hour && last_ != Field::hourPlain) return field;
    if (field == Field::month) return Field::minute;
    return field == Field::monthPlain ? Field::minutePlain : field;
  }

  Text text(Field field) const {
    const int hour = halves_ ? hourOfHalf(when_.hour) : when_.hour;
    const bool morning = when_.hour < 12;
    switch (field) {
      case Field::dayPlain:
        return decimal(when_.day);
      case Field::day:
        return digits(when_.day, 2);
      case Field::dayShort:
        return nameOfDay(when_).substr(0, 3);
      case Field::dayLong:
        return nameOfDay(when_);
      case Field::dayKanji:
        return kanjiOfDay(when_);
      case Field::dayKanjiLong:
        return kanjiOfDay(when_) + u"曜日";
      case Field::weekday:
        return decimal(dayOfWeek(when_) + 1);
      case Field::week:
        return decimal(weekOfYear(when_));
      case Field::monthPlain:
        return decimal(when_.month);
      case Field::month:
        return digits(when_.month, 2);
      case Field::monthShort:
        return nameOfMonth(when_).substr(0, 3);
      case Field::monthLong:
        return nameOfMonth(when_);
      case Field::monthKanji:
        return decimal(when_.month) + u"月";
      case Field::quarter:
        return decimal((when_.month + 2) / 3);
      case Field::yearDay:
        return decimal(dayOfYear(when_));
      case Field::yearShort:
        return digits(when_.year % 100, 2);
      case Field::year:
        return digits(when_.year, 4);
      case Field::eraLetter:
        return eraLetter(when_);
      case Field::eraKanji:
        return eraName(when_, 1);
      case Field::eraName:
        return eraName(when_, 2);
      case Field::eraYearPlain:
        return decimal(eraYear(when_));
      case Field::eraYear:
        return digits(eraYear(when_), 2);
      case Field::hourPlain:
        return decimal(hour);
      case Field::hour:
        return digits(hour, 2);
      case Field::minutePlain:
        return decimal(when_.minute);
      case Field::minute:
        return digits(when_.minute, 2);
      case Field::secondPlain:
        return decimal(when_.second);
      case Field::second:
        return digits(when_.second, 2);
      case Field::halfUpper:
        return morning ? u"AM" : u"PM";
      case Field::halfLower:
        return morning ? u"am" : u"pm";
      case Field::halfUpperLetter:
        return morning ? u"A" : u"P";
      case Field::halfLowerLetter:
        return morning ? u"a" : u"p";
    }
    return Text();
  }

  const DateTime& when_;
  TextView pattern_;
  std::size_t at_ = 0;
  bool halves_ = false;
  Field last_ = Field::dayPlain;
  Text result_;
};

struct Named {
  TextView name, pattern;
};

constexpr Named kNamed[] = {
    {u"general date", u"yyyy/mm/dd hh:nn:ss"},
    {u"long date", u"yyyy年m月d日"},
    {u"medium date", u"yy-mm-dd"},
    {u"short date", u"yyyy/mm/dd"},
    {u"long time", u"hh:nn:ss"},
    {u"short time", u"hh:nn"},
};

}  // namespace

Text formatDate(const DateTime& when, TextView pattern) {
  const Text name = lowerCase(pattern);
  if (name == u"medium time") {
    return digits(hourOfHalf(when.hour), 2) + u":" + digits(when.minute, 2) + (when.hour < 12 ? u" 午前" : u" 午後");
  }
  const auto named = std::ranges::find(kNamed, TextView(name), &Named::name);
  return DateFiller(when, named == std::end(kNamed) ? pattern : named->pattern).filled();
}

}  // namespace zelko
