#include "speech/numbers.h"

#include <vector>

#include "speech/counters.h"
#include "speech/plain.h"

namespace zelko {

namespace {

constexpr const char16_t* kDigits[] = {u"ゼロ", u"イチ", u"ニ",   u"サン", u"ヨン",
                                       u"ゴ",   u"ロク", u"ナナ", u"ハチ", u"キュウ"};
constexpr std::size_t kLongestValue = 16;  // digits: up to 9999 兆

std::size_t valueOf(char16_t digit) { return static_cast<std::size_t>(digit - u'0'); }

// Thousands, hundreds, tens and ones of a number of at most four digits.
Text fourPlaces(TextView digits, bool below10000) {
  constexpr const char16_t* hundreds[] = {u"",         u"ヒャク",     u"ニヒャク",   u"サンビャク", u"ヨンヒャク",
                                          u"ゴヒャク", u"ロッピャク", u"ナナヒャク", u"ハッピャク", u"キュウヒャク"};
  constexpr const char16_t* thousands[] = {u"",       u"セン",     u"ニセン",   u"サンゼン", u"ヨンセン",
                                           u"ゴセン", u"ロクセン", u"ナナセン", u"ハッセン", u"キュウセン"};
  Text kana;
  for (std::size_t i = 0; i < digits.size(); ++i) {
    const std::size_t value = valueOf(digits[i]);
    switch (digits.size() - i) {
      case 4:
        kana += value == 1 && !below10000 ? u"イッセン" : thousands[value];
        break;
      case 3:
        kana += hundreds[value];
        break;
      case 2:
        kana += value == 0 ? Text() : (value == 1 ? Text() : Text(kDigits[value])) + u"ジュウ";
        break;
      default:
        kana += value == 0 ? u"" : kDigits[value];
    }
  }
  return kana;
}

Text withUnit(Text kana, std::size_t unit) {
  constexpr const char16_t* units[] = {u"", u"マン", u"オク", u"チョウ"};
  if (unit == 3 && (kana.ends_with(u"イチ") || kana.ends_with(u"ハチ") || kana.ends_with(u"ジュウ")))
    kana.back() = u'ッ';
  return kana + units[unit];
}

std::size_t digitsEnd(TextView text, std::size_t at) {
  while (at < text.size() && isDigit(text[at])) ++at;
  return at;
}

bool inRange(TextView digits, int low, int high) {
  int value = 0;
  for (char16_t digit : digits) value = value * 10 + static_cast<int>(valueOf(digit));
  return digits.size() <= 4 && value >= low && value <= high;
}

TextView withoutZeros(TextView digits) {
  const std::size_t first = digits.find_first_not_of(u'0');
  return first == TextView::npos ? digits.substr(digits.size() - 1) : digits.substr(first);
}

// Groups of digits parted by one sign: "03-1234-5678", "2026/1/5", "10:05".
std::vector<TextView> groupsAt(TextView text, std::size_t at, char16_t parting) {
  std::vector<TextView> groups;
  while (true) {
    const std::size_t end = digitsEnd(text, at);
    groups.push_back(text.substr(at, end - at));
    if (end + 1 >= text.size() || text[end] != parting || !isDigit(text[end + 1])) return groups;
    at = end + 1;
  }
}

std::size_t lengthOf(const std::vector<TextView>& groups) {
  std::size_t length = groups.size() - 1;
  for (TextView group : groups) length += group.size();
  return length;
}

Text valueWith(TextView digits, TextView counter, bool afterMonth = false) {
  const TextView value = withoutZeros(digits);
  return counted(value, wholeNumberKana(value), counter, 0, afterMonth).kana;
}

SpokenNumber dateAt(const std::vector<TextView>& groups) {
  if (groups.size() != 3 || groups[0].size() != 4 || groups[1].size() > 2 || groups[2].size() > 2) return {};
  if (!inRange(groups[1], 1, 12) || !inRange(groups[2], 1, 31)) return {};
  const Text kana =
      valueWith(groups[0], u"年") + u" " + valueWith(groups[1], u"月") + u" " + valueWith(groups[2], u"日", true);
  return {lengthOf(groups), kana, true};
}

SpokenNumber timeAt(const std::vector<TextView>& groups) {
  if (groups.size() < 2 || groups.size() > 3 || groups[0].size() > 2 || !inRange(groups[0], 0, 24)) return {};
  for (std::size_t i = 1; i < groups.size(); ++i)
    if (groups[i].size() != 2 || !inRange(groups[i], 0, 59)) return {};
  Text kana = valueWith(groups[0], u"時");
  if (groups[1] != u"00" || groups.size() == 3) kana += u" " + valueWith(groups[1], u"分");
  if (groups.size() == 3) kana += u" " + valueWith(groups[2], u"秒");
  return {lengthOf(groups), kana, true};
}

// A telephone number or a postal code goes place by place; short groups, as in a house number, by value.
SpokenNumber dashedAt(const std::vector<TextView>& groups, TextView text, std::size_t at) {
  bool places = false;
  const std::size_t longGroup = groups.size() == 2 ? 4 : 3;  // "1-255" is a range
  for (TextView group : groups) places = places || group.size() >= longGroup || (group.size() > 1 && group[0] == u'0');
  Text kana;
  for (std::size_t i = 0; i + 1 < groups.size(); ++i)
    kana += (places ? placesKana(groups[i]) : wholeNumberKana(groups[i])) + u" ノ ";
  const std::size_t length = lengthOf(groups);
  if (places) return {length, kana + placesKana(groups.back()), false};
  const Text last = wholeNumberKana(groups.back());
  const CountedNumber with = counted(groups.back(), last, text, at + length, false);
  return {length + with.length, kana + (with.length == 0 ? last : with.kana), with.length != 0};
}

// The end of "1,234,567" that begins at `at`, or `at` where the commas part no thousands.
std::size_t thousandsEnd(TextView text, std::size_t at) {
  std::size_t end = digitsEnd(text, at);
  if (end - at > 3 || text[at] == u'0') return at;
  const std::size_t first = end;
  while (end < text.size() && text[end] == u',' && digitsEnd(text, end + 1) == end + 4) end += 4;
  return end == first ? at : end;
}

Text decimalsKana(TextView whole, TextView decimals) {
  Text kana = whole == u"0" ? Text(u"レイ") : wholeNumberKana(whole);
  if (kana.ends_with(u"イチ") || kana.ends_with(u"ハチ") || kana.ends_with(u"ジュウ")) kana.back() = u'ッ';
  kana += u"テン";
  for (char16_t digit : decimals) kana += kDigits[valueOf(digit)];
  return kana;
}

bool afterMonthAt(TextView text, std::size_t at) { return at > 0 && text[at - 1] == u'月'; }

// The digits that "5万3千" or "1億2000万" stand for; empty where no such unit is behind the digits at `at`.
struct WithUnits {
  std::size_t length = 0;
  Text digits;
};

WithUnits withUnitsAt(TextView text, std::size_t at) {
  unsigned long long total = 0;
  std::size_t behind = at, lowest = 16;
  while (true) {
    const std::size_t end = digitsEnd(text, behind);
    if (end == behind || end - behind > 4) break;
    unsigned long long part = 0;
    for (char16_t digit : text.substr(behind, end - behind)) part = part * 10 + valueOf(digit);
    const std::size_t unit = end < text.size() ? TextView(u"千万億兆").find(text[end]) : TextView::npos;
    const std::size_t zeros = unit == TextView::npos ? 0 : unit == 0 ? 3 : unit * 4;
    if (zeros >= lowest || (zeros == 3 && part > 9)) break;
    lowest = zeros;
    for (std::size_t i = 0; i < zeros; ++i) part *= 10;
    total += part;
    behind = zeros == 0 ? end : end + 1;
    if (zeros == 0) break;
  }
  if (lowest == 16 || (behind > at && digitsEnd(text, at) == behind) || total == 0) return {};
  const std::string digits = std::to_string(total);
  return {behind - at, Text(digits.begin(), digits.end())};
}

// One number without a sign.
SpokenNumber plainAt(TextView text, std::size_t at) {
  if (const WithUnits units = withUnitsAt(text, at); units.length != 0) {
    const Text whole = wholeNumberKana(units.digits);
    const CountedNumber with = counted(units.digits, whole, text, at + units.length, false);
    return {units.length + with.length, with.length == 0 ? whole : with.kana, true};
  }
  const std::size_t commas = thousandsEnd(text, at);
  const std::size_t end = commas == at ? digitsEnd(text, at) : commas;
  Text digits;
  for (char16_t unit : text.substr(at, end - at))
    if (isDigit(unit)) digits += unit;
  if (end + 1 < text.size() && text[end] == u'.' && isDigit(text[end + 1]) && digits.size() <= kLongestValue) {
    const std::size_t behind = digitsEnd(text, end + 1);
    const Text kana = decimalsKana(withoutZeros(digits), text.substr(end + 1, behind - end - 1));
    const CountedNumber with = counted({}, kana, text, behind, false);
    return {behind - at + with.length, with.length == 0 ? kana : with.kana, with.length != 0};
  }
  const TextView value = withoutZeros(digits);
  const bool places = digits.size() > kLongestValue || (digits.size() > 1 && digits[0] == u'0');
  const CountedNumber with = value.size() > kLongestValue
                                 ? CountedNumber{}
                                 : counted(value, wholeNumberKana(value), text, end, afterMonthAt(text, at));
  if (with.length != 0 && (!places || digits.size() == 2)) return {end - at + with.length, with.kana, true};
  return {end - at, places ? placesKana(digits) : wholeNumberKana(value), false};
}

SpokenNumber unsignedAt(TextView text, std::size_t at) {
  for (char16_t parting : {u'-', u'/', u':'}) {
    const std::vector<TextView> groups = groupsAt(text, at, parting);
    if (groups.size() < 2) continue;
    const SpokenNumber date = parting == u':' ? timeAt(groups) : dateAt(groups);
    if (date.length != 0) return date;
    if (parting == u'-') return dashedAt(groups, text, at);
  }
  return plainAt(text, at);
}

// Behind a single kanji of a number the dictionary knows words (一番, 一部, 十分); of these counters it knows too few.
constexpr TextView kCountsAfterOne = u"個回冊匹杯枚台件歳階週秒桁列頭軒画";

std::size_t kanjiDigit(char16_t unit) { return TextView(u"〇一二三四五六七八九").find(unit); }

// The value of a well-formed number in kanji below 10 to the 12th, 0 for anything else.
unsigned long long kanjiValue(TextView text) {
  unsigned long long total = 0, part = 0, digit = 0;
  unsigned long long lastSmall = 10000, lastLarge = 1000000000000ULL;
  for (char16_t unit : text) {
    if (const std::size_t value = kanjiDigit(unit); value != TextView::npos) {
      if (digit != 0 || value == 0) return 0;
      digit = value;
      continue;
    }
    const unsigned long long place = unit == u'十' ? 10 : unit == u'百' ? 100 : unit == u'千' ? 1000 : 0;
    const unsigned long long large = unit == u'万' ? 10000 : unit == u'億' ? 100000000 : 0;
    if (place != 0) {
      if (place >= lastSmall) return 0;
      part += (digit == 0 ? 1 : digit) * place;
      lastSmall = place;
    } else if (large == 0 || large >= lastLarge || part + digit == 0) {
      return 0;
    } else {
      total += (part + digit) * large;
      part = 0, lastSmall = 10000, lastLarge = large;
    }
    digit = 0;
  }
  return total + part + digit;
}

}  // namespace

Text wholeNumberKana(TextView digits) {
  if (digits.size() > kLongestValue) return placesKana(digits);
  if (digits.find_first_not_of(u'0') == TextView::npos) return kDigits[0];
  Text kana;
  for (std::size_t left = digits.size(), unit = (left + 3) / 4; unit-- > 0;) {
    const std::size_t length = left - unit * 4;
    const Text part = fourPlaces(digits.substr(digits.size() - left, length), unit == 0);
    left -= length;
    if (part.empty()) continue;
    if (!kana.empty()) kana += u' ';
    kana += withUnit(part, unit);
  }
  return kana;
}

Text placesKana(TextView digits) {
  Text kana;
  for (char16_t digit : digits) {
    if (!kana.empty()) kana += u' ';
    kana += digit == u'2' ? u"ニー" : digit == u'5' ? u"ゴー" : kDigits[valueOf(digit)];
  }
  return kana;
}

SpokenNumber readNumber(TextView text, std::size_t at) {
  if (isDigit(text[at])) return unsignedAt(text, at);
  const bool digitBehind = at + 1 < text.size() && isDigit(text[at + 1]);
  const bool wordBefore = at > 0 && (isDigit(text[at - 1]) || isLetter(text[at - 1]) || text[at - 1] == u')');
  if (!digitBehind || wordBefore) return {};
  const auto signedNumber = [&](const char16_t* before, const char16_t* behind) {
    SpokenNumber number = plainAt(text, at + 1);
    return SpokenNumber{number.length + 1, before + number.kana + behind, *behind != 0 || number.counted};
  };
  switch (text[at]) {
    case u'-':
      return signedNumber(u"マイナス ", u"");
    case u'+':
      return signedNumber(u"プラス ", u"");
    case u'¥':
    case u'\\':
      return signedNumber(u"", u"エン");
    case u'$':
      return signedNumber(u"", u"ドル");
    default:
      return {};
  }
}

SpokenNumber readKanjiNumber(TextView text, std::size_t at) {
  std::size_t end = at;
  while (end < text.size() && TextView(u"〇一二三四五六七八九十百千万億").find(text[end]) != TextView::npos) ++end;
  const bool lone = end == at + 1;
  const bool countsThings = lone && end < text.size() && kCountsAfterOne.find(text[end]) != TextView::npos;
  if (end == at || (lone && !countsThings) || !counterAt(text, end)) return {};
  const TextView number = text.substr(at, end - at);
  std::string digits;
  if (lone && number != u"十") {
    digits = static_cast<char>('0' + kanjiDigit(number[0]));
    if (kanjiDigit(number[0]) == TextView::npos || number == u"〇") return {};
  } else if (number.find_first_of(u"十百千万億") == TextView::npos) {
    if (number.size() != 4 || text[end] != u'年') return {};
    for (char16_t unit : number) digits += static_cast<char>('0' + kanjiDigit(unit));
  } else {
    const unsigned long long value = kanjiValue(number);
    if (value == 0) return {};
    digits = std::to_string(value);
  }
  const Text decimal(digits.begin(), digits.end());
  const CountedNumber with = counted(decimal, wholeNumberKana(decimal), text, end, afterMonthAt(text, at));
  if (with.length == 0) return {};
  return {number.size() + with.length, with.kana, true};
}

}  // namespace zelko
