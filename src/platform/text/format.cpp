// Numeric patterns.
#include "platform/text/format.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "platform/text/decimaldigits.h"
#include "platform/text/number.h"

namespace zelko {
namespace {

struct Token {
  enum class Kind { literal, place, point, exponent };
  Kind kind;
  char16_t unit;  // a literal's character; "0" or "#"; the exponent's letter
};

// What one section of a pattern asks for.
struct Section {
  std::vector<Token> tokens;
  int wholePlaces = 0, wholeForced = 0;        // digit places before the point; those from the first "0" on
  int decimalPlaces = 0, decimalForced = 0;    // behind it; those up to the last "0"
  int exponentPlaces = 0, exponentForced = 0;  // behind the exponent's letter
  bool exponentPlus = false;                   // "E+": a plus sign is printed too
  bool thousands = false;
  int powerOfTen = 0;  // by which the value is moved: "%" and commas behind the whole places

  bool hasPlaces() const { return wholePlaces + decimalPlaces > 0; }
};

bool isPlace(char16_t unit) { return unit == u'0' || unit == u'#'; }

// Cuts a pattern at its semicolons; those in quotes or behind "\" are none.
std::vector<TextView> sectionsOf(TextView pattern) {
  std::vector<TextView> sections;
  std::size_t start = 0;
  bool quoted = false;
  for (std::size_t i = 0; i < pattern.size(); ++i) {
    if (pattern[i] == u'"') quoted = !quoted;
    if (quoted) continue;
    if (pattern[i] == u'\\')
      ++i;
    else if (pattern[i] == u';') {
      sections.push_back(pattern.substr(start, i - start));
      start = i + 1;
    }
  }
  sections.push_back(pattern.substr(start));
  return sections;
}

class SectionReader {
 public:
  explicit SectionReader(TextView pattern) : pattern_(pattern) {}

  Section read() {
    while (at_ < pattern_.size()) readToken();
    return section_;
  }

 private:
  void readToken() {
    const char16_t unit = pattern_[at_++];
    if (isPlace(unit)) return place(unit);
    if (unit == u',' && comma()) return;
    if (unit == u'.' && part_ == Part::whole) {
      part_ = Part::decimals;
      return add(Token::Kind::point, unit);
    }
    if ((unit == u'E' || unit == u'e') && exponent(unit)) return;
    if (unit == u'%') section_.powerOfTen += 2;
    if (unit == u'"') return quotedText();
    if (unit == u'\\' && at_ < pattern_.size()) return add(Token::Kind::literal, pattern_[at_++]);
    add(Token::Kind::literal, unit);
  }

  void place(char16_t unit) {
    int& places = part_ == Part::whole      ? section_.wholePlaces
                  : part_ == Part::decimals ? section_.decimalPlaces
                                            : section_.exponentPlaces;
    ++places;
    if (part_ == Part::whole) {
      if (unit == u'0' || section_.wholeForced > 0) ++section_.wholeForced;
    } else if (part_ == Part::decimals) {
      if (unit == u'0') section_.decimalForced = places;
    } else if (unit == u'0' || section_.exponentForced > 0) {
      ++section_.exponentForced;
    }
    add(Token::Kind::place, unit);
  }

  // Between digit places a comma parts thousands; right behind the last whole one it divides.
  bool comma() {
    if (part_ != Part::whole || section_.wholePlaces == 0) return false;
    const std::size_t end = std::min(pattern_.find(u'.', at_), pattern_.size());
    if (std::any_of(pattern_.begin() + static_cast<std::ptrdiff_t>(at_),
                    pattern_.begin() + static_cast<std::ptrdiff_t>(end), isPlace)) {
      section_.thousands = true;
      return true;
    }
    std::size_t before = at_ - 1;
    while (pattern_[before] == u',') --before;
    if (!isPlace(pattern_[before])) return false;
    section_.powerOfTen -= 3;
    return true;
  }

  bool exponent(char16_t letter) {
    const TextView rest = pattern_.substr(at_);
    const bool isOne = rest.size() > 1 && (rest[0] == u'+' || rest[0] == u'-') && isPlace(rest[1]);
    if (!isOne || part_ == Part::exponent || !section_.hasPlaces()) return false;
    section_.exponentPlus = rest[0] == u'+';
    ++at_;
    part_ = Part::exponent;
    add(Token::Kind::exponent, letter);
    return true;
  }

  void quotedText() {
    while (at_ < pattern_.size() && pattern_[at_] != u'"') add(Token::Kind::literal, pattern_[at_++]);
    ++at_;
  }

  void add(Token::Kind kind, char16_t unit) { section_.tokens.push_back({kind, unit}); }

  enum class Part { whole, decimals, exponent };

  TextView pattern_;
  std::size_t at_ = 0;
  Part part_ = Part::whole;
  Section section_;
};

// Moves the point so that the whole places are filled, and gives the power of ten that this takes away.
int takeExponent(DecimalDigits& number, const Section& section) {
  if (number.digits.empty()) return 0;
  const int shift = number.point - section.wholePlaces;
  number.point = section.wholePlaces;
  roundToPlaces(number, section.decimalPlaces);
  if (number.point == section.wholePlaces) return shift;
  number.point = section.wholePlaces;  // 9.99 has become 10.0
  return shift + 1;
}

// Lays the digits of a number into the tokens of a section.
class Filler {
 public:
  Filler(DecimalDigits number, const Section& section) : section_(section) {
    number.point += number.digits.empty() ? 0 : section.powerOfTen;
    const bool scientific = section.exponentPlaces > 0;
    const int exponent = scientific ? takeExponent(number, section) : 0;
    if (!scientific) roundToPlaces(number, section.decimalPlaces);
    split(number);
    const std::string power = std::to_string(std::abs(exponent));
    exponent_ = padded(power, std::max(section.exponentForced, 1));
    if (exponent < 0)
      exponent_.insert(0, "-");
    else if (section.exponentPlus)
      exponent_.insert(0, "+");
  }

  Text filled() {
    Text result;
    for (const Token& token : section_.tokens) {
      if (token.kind == Token::Kind::place) {
        place(result);
        continue;
      }
      if (token.kind == Token::Kind::point) {
        wholeDigits(result, 0);  // all of them, where no place stood in front of the point
        behindPoint_ = true;
      }
      result += token.unit;
      if (token.kind != Token::Kind::exponent) continue;
      result.append(exponent_.begin(), exponent_.end());
      behindExponent_ = true;
    }
    return result;
  }

 private:
  static std::string padded(const std::string& digits, int size) {
    const auto wanted = static_cast<std::size_t>(size);
    return digits.size() < wanted ? std::string(wanted - digits.size(), '0') + digits : digits;
  }

  void split(const DecimalDigits& number) {
    const auto& digits = number.digits;
    if (number.point > 0) {
      whole_ = digits.substr(0, static_cast<std::size_t>(number.point));
      whole_.resize(digits.empty() ? 0 : static_cast<std::size_t>(number.point), '0');
      decimals_ = digits.substr(std::min(digits.size(), whole_.size()));
    } else {
      decimals_ = std::string(static_cast<std::size_t>(-number.point), '0') + digits;
    }
    if (digits.empty()) decimals_.clear();
    whole_ = padded(whole_, section_.wholeForced);
    const auto forced = static_cast<std::size_t>(section_.decimalForced);
    if (decimals_.size() < forced) decimals_.resize(forced, '0');
  }

  void place(Text& result) {
    if (behindExponent_) return;
    if (behindPoint_) {
      if (decimal_ < decimals_.size()) result += static_cast<char16_t>(decimals_[decimal_++]);
      return;
    }
    // The first place takes all digits that have no place of their own.
    wholeDigits(result, static_cast<std::size_t>(section_.wholePlaces - ++wholePlace_));
  }

  // Lays down the whole digits up to those that `behind` further places take.
  void wholeDigits(Text& result, std::size_t behind) {
    while (wholeDigit_ < whole_.size() && whole_.size() - wholeDigit_ > behind) {
      result += static_cast<char16_t>(whole_[wholeDigit_++]);
      const std::size_t left = whole_.size() - wholeDigit_;
      if (section_.thousands && left > 0 && left % 3 == 0) result += u',';
    }
  }

  const Section& section_;
  std::string whole_, decimals_, exponent_;
  std::size_t wholeDigit_ = 0, decimal_ = 0;
  int wholePlace_ = 0;
  bool behindPoint_ = false, behindExponent_ = false;
};

Text general(double value) {
  Text text = trimmed(str(value));
  const std::size_t point = text.starts_with(u'-') ? 1 : 0;
  if (text.substr(point).starts_with(u'.')) text.insert(point, u"0");
  return text;
}

struct Named {
  TextView name, pattern;
};

constexpr Named kNamed[] = {
    {u"currency", u"\\\\#,##0"},
    {u"fixed", u"0.00"},
    {u"standard", u"#,##0.00"},
    {u"percent", u"0.00%"},
    {u"scientific", u"0.00E+00"},
    {u"yes/no", u"\"Yes\";\"Yes\";\"No\""},
    {u"on/off", u"\"On\";\"On\";\"Off\""},
    {u"true/false", u"\"True\";\"True\";\"False\""},
};

TextView patternOf(TextView pattern) {
  const Text name = lowerCase(pattern);
  const auto named = std::ranges::find(kNamed, TextView(name), &Named::name);
  return named == std::end(kNamed) ? pattern : named->pattern;
}

}  // namespace

Text format(double value, TextView pattern) {
  if (pattern.empty() || lowerCase(pattern) == u"general number") return general(value);
  const DecimalDigits number = decimalDigits(value);
  const std::vector<TextView> sections = sectionsOf(patternOf(pattern));
  const std::size_t wanted = number.digits.empty() ? 2 : number.negative ? 1 : 0;
  const bool own = wanted < sections.size() && !sections[wanted].empty();
  const Section section = SectionReader(sections[own ? wanted : 0]).read();
  const Text text = Filler(number, section).filled();
  return number.negative && !(own && wanted == 1) ? u"-" + text : text;
}

}  // namespace zelko
