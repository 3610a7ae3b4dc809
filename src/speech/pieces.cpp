#include "speech/pieces.h"

#include "speech/latin.h"
#include "speech/numbers.h"
#include "speech/plain.h"
#include "speech/signs.h"

namespace zelko {

namespace {

using Kind = Piece::Kind;

constexpr const char16_t* kNumberSurface = u"０";
constexpr const char16_t* kWordSurface = u"\uE000";  // in no dictionary, so that nothing joins it
constexpr std::size_t kRunSaidOnce = 3;              // a ruled line of signs is named once

class Cutter {
 public:
  Cutter(TextView plain, bool nameAll) : text_(plain), nameAll_(nameAll) {}

  std::vector<Piece> pieces() {
    while (at_ < text_.size()) cutOne();
    return std::move(pieces_);
  }

 private:
  void cutOne() {
    const char16_t unit = text_[at_];
    if (takeWeekday()) return;
    if (takeNumber()) return;
    if (unit == u' ') return add(Kind::blank, u" ", u" ", 1);
    if (isLetter(unit)) return takeLatin();
    if (isHalfWidthKana(unit)) return takeWrittenKana();
    if (isSign(unit)) return takeSign();
    takeJapanese();
  }

  void add(Kind kind, Text surface, Text kana, std::size_t length) {
    at_ += length;
    const bool joins = (kind == Kind::word || kind == Kind::number) && !pieces_.empty() &&
                       (pieces_.back().kind == Kind::word || pieces_.back().kind == Kind::number);
    if (!joins) {
      pieces_.push_back({kind, std::move(surface), std::move(kana)});
      return;
    }
    pieces_.back().kana += u" " + kana;
    pieces_.back().kind = kind;
    pieces_.back().surface = std::move(surface);
  }

  bool takeNumber() {
    SpokenNumber number = readNumber(text_, at_);
    if (number.length == 0) number = readKanjiNumber(text_, at_);
    if (number.length == 0) return false;
    add(number.counted ? Kind::word : Kind::number, number.counted ? kWordSurface : kNumberSurface, number.kana,
        number.length);
    return true;
  }

  // "（月）" behind a date.
  bool takeWeekday() {
    constexpr const char16_t* names[] = {u"ニチヨウ", u"ゲツヨウ", u"カヨウ", u"スイヨウ",
                                         u"モクヨウ", u"キンヨウ", u"ドヨウ"};
    if (text_[at_] != u'(' || behind() == 0 || text_.substr(at_ + 2, 1) != u")") return false;
    const std::size_t day = TextView(u"日月火水木金土").find(behind());
    if (day == TextView::npos) return false;
    add(Kind::word, kWordSurface, names[day], 3);
    return true;
  }

  void takeLatin() {
    std::size_t end = at_;
    while (end < text_.size() && isLetter(text_[end])) ++end;
    add(Kind::word, kWordSurface, latinKana(text_.substr(at_, end - at_)), end - at_);
  }

  // The voiced marks alone are signs; behind a kana they belong to it.
  void takeWrittenKana() {
    std::size_t end = at_;
    while (end < text_.size() && isHalfWidthKana(text_[end])) ++end;
    const Text kana = fullWidthKana(text_.substr(at_, end - at_));
    at_ = end;
    Text run;
    const auto flush = [&] {
      if (!run.empty()) pieces_.push_back({Kind::written, run, run});
      run.clear();
    };
    for (char16_t unit : kana) {
      const bool loneMark = unit == u'゛' || unit == u'゜' || (unit == u'ー' && kana.size() == 1 && !afterKana());
      if (!loneMark) {
        run += unit;
        continue;
      }
      flush();
      add(Kind::word, kWordSurface, signOf(unit).name, 0);
    }
    flush();
  }

  bool afterKana() const {
    return !pieces_.empty() && (pieces_.back().kind == Kind::japanese || pieces_.back().kind == Kind::written);
  }

  void takeJapanese() {
    std::size_t end = at_;
    while (end < text_.size() && continuesJapanese(end)) ++end;
    if (end == at_) ++end;
    const TextView run = text_.substr(at_, end - at_);
    if (run == u"ー" && !afterKana()) return add(Kind::word, kWordSurface, signOf(u'ー').name, 1);
    pieces_.push_back({Kind::japanese, Text(run), Text()});
    at_ = end;
  }

  bool continuesJapanese(std::size_t at) const {
    const char16_t unit = text_[at];
    if (unit == u' ' || isDigit(unit) || isLetter(unit) || isHalfWidthKana(unit) || isSign(unit)) return false;
    return at == at_ || readKanjiNumber(text_, at).length == 0;
  }

  void takeSign() {
    const char16_t unit = text_[at_];
    std::size_t length = 1;
    while (at_ + length < text_.size() && text_[at_ + length] == unit) ++length;
    if (length < kRunSaidOnce) length = 1;
    const Sign& sign = signOf(unit);
    const SignRole role = nameAll_ && unit != u'　' ? SignRole::said : roleHere(sign, length);
    switch (role) {
      case SignRole::said:
        return add(Kind::word, kWordSurface, nameHere(sign), length);
      case SignRole::pause:
        return add(Kind::pause, unit == u'　' ? u" " : u"、", u"、", length);
      case SignRole::stop:
        return add(Kind::stop, u"。", u"。", length);
      case SignRole::question:
        return add(Kind::question, u"？", u"？", length);
      case SignRole::silent:
        return add(Kind::blank, u" ", u" ", length);
    }
  }

  char16_t before() const { return at_ == 0 ? u'\0' : text_[at_ - 1]; }
  char16_t behind() const { return at_ + 1 < text_.size() ? text_[at_ + 1] : u'\0'; }
  static bool isAscii(char16_t unit) { return isDigit(unit) || isLetter(unit); }

  // A few signs are words in one place and only part their neighbours in another.
  SignRole roleHere(const Sign& sign, std::size_t length) const {
    if (quoted()) return SignRole::said;
    if (length >= kRunSaidOnce && TextView(u"-=_*―").find(sign.sign) != TextView::npos) return SignRole::pause;
    switch (sign.sign) {
      case u'.':
        return partsName() ? SignRole::said : SignRole::stop;
      case u'/':  // the program parts row and item with it
        return isDigit(before()) && !isAscii(behind()) ? SignRole::pause : SignRole::said;
      case u':':
        return isLetter(before()) && isPath(behind()) ? SignRole::said : SignRole::pause;
      case u'&':  // the letter of a menu entry
        return isLetter(behind()) && (before() == u'(' || before() == u',') ? SignRole::silent : SignRole::said;
      case u'～':
        return before() == u'\0' || behind() == u'\0' ? SignRole::pause : SignRole::said;
      default:
        return sign.role;
    }
  }

  // A sign that is talked about: "「,」".
  bool quoted() const {
    return before() != 0 && behind() != 0 && TextView(u"「｢『").find(before()) != TextView::npos &&
           TextView(u"」｣』").find(behind()) != TextView::npos;
  }
  static bool isPath(char16_t unit) { return unit == u'/' || unit == u'\\'; }

  // The dot in "example.com", "Ver.3" and "住所録.txt", but not the stop before a word such as "ID".
  bool partsName() const {
    if (!isAscii(behind())) return false;
    if (isAscii(before())) return true;
    std::size_t end = at_ + 1;
    while (end < text_.size() && isLetter(text_[end])) ++end;
    return (behind() >= u'a' && behind() <= u'z') || end - at_ == 4;
  }

  Text nameHere(const Sign& sign) const {
    if (nameAll_ || quoted()) return sign.name;
    if (sign.sign == u'.') return u"ドット";
    const auto isText = [](char16_t unit) { return unit > u' ' && !isSign(unit); };
    if (sign.sign == u'×' && !(isText(before()) && isText(behind()))) return u"バツ";
    return sign.name;
  }

  TextView text_;
  bool nameAll_;
  std::size_t at_ = 0;
  std::vector<Piece> pieces_;
};

}  // namespace

std::vector<Piece> piecesOf(TextView plain, bool nameAll) { return Cutter(plain, nameAll).pieces(); }

}  // namespace zelko
