#include "speech/kana.h"

#include <algorithm>
#include <vector>

#include "speech/pieces.h"
#include "speech/plain.h"
#include "speech/signs.h"

namespace zelko {

namespace {

using Kind = Piece::Kind;

bool isPauseOrStop(char16_t unit) { return unit == u'、' || unit == u'。' || unit == u'？'; }

char16_t katakanaOf(char16_t unit) {
  return unit >= 0x3041 && unit <= 0x3096 ? static_cast<char16_t>(unit + 0x60) : unit;
}

bool isAllKatakana(TextView text) { return !text.empty() && std::all_of(text.begin(), text.end(), isKatakana); }

// Words of tables and lists that the dictionary reads in another sense.
const char16_t* ownReading(TextView word, TextView found) {
  if (word == u"行") return u"ギョウ";
  if (word == u"表" && found == u"オモテ") return u"ヒョウ";
  if (word == u"等" && found == u"ヒトシ") return u"ナド";
  if (word == u"既存") return u"キゾン";
  return nullptr;
}

// The spoken text as it grows: one blank between words, one pause or stop between sentences, none in front.
class Spoken {
 public:
  void append(TextView kana) {
    for (char16_t unit : kana) put(unit);
  }
  void blank() {
    if (!text_.empty() && text_.back() != u' ' && !isPauseOrStop(text_.back())) text_ += u' ';
  }
  bool atStart() const { return text_.empty() || isPauseOrStop(text_.back()); }
  bool endsWord() const { return !text_.empty() && text_.back() != u' ' && !isPauseOrStop(text_.back()); }
  bool anythingToHear() const {
    return std::any_of(text_.begin(), text_.end(), [](char16_t unit) { return unit != u' ' && !isPauseOrStop(unit); });
  }
  std::size_t size() const { return text_.size(); }
  // Ends at the last word that has room, with a word about the rest.
  void cutTo(std::size_t limit) {
    const std::size_t word = text_.find_last_of(u" 、。？", limit);
    text_.resize(word == Text::npos || word < limit / 2 ? limit : word);
    append(u"。イカ リャク");
  }
  Text finished() && {
    while (!text_.empty() && (text_.back() == u' ' || text_.back() == u'、')) text_.pop_back();
    return std::move(text_);
  }

 private:
  void put(char16_t unit) {
    if (unit == u' ') return blank();
    if (!isPauseOrStop(unit)) {
      text_ += heard(unit);
      return;
    }
    while (!text_.empty() && text_.back() == u' ') text_.pop_back();
    if (text_.empty()) return;
    if (!isPauseOrStop(text_.back()))
      text_ += unit;
    else if (text_.back() == u'、')
      text_.back() = unit;  // the stronger one stays
  }

  // Kana that engines do not know alone.
  static char16_t heard(char16_t unit) {
    switch (unit) {
      case u'ヲ':
        return u'オ';
      case u'ヮ':
        return u'ワ';
      case u'ヵ':
        return u'カ';
      case u'ヶ':
        return u'ケ';
      default:
        return unit;
    }
  }

  Text text_;
};

class Reading {
 public:
  Reading(std::vector<Piece> pieces, Dictionary& dictionary, Spoken& spoken)
      : pieces_(std::move(pieces)), dictionary_(dictionary), spoken_(spoken) {
    for (std::size_t i = 0; i < pieces_.size(); ++i) {
      surface_ += pieces_[i].surface;
      owner_.insert(owner_.end(), pieces_[i].surface.size(), i);
    }
  }

  void sayAll() {
    const std::vector<Morpheme> words = dictionary_.morphemes(surface_);
    std::size_t at = 0;
    for (const Morpheme& word : words) {
      sayUnits(at, word.begin);
      say(word);
      at = word.begin + word.length;
    }
    sayUnits(at, surface_.size());
  }

 private:
  Kind kindAt(std::size_t at) const { return pieces_[owner_[at]].kind; }

  bool allOf(const Morpheme& word, Kind kind) const {
    for (std::size_t i = word.begin; i < word.begin + word.length; ++i)
      if (kindAt(i) != kind) return false;
    return true;
  }

  void say(const Morpheme& word) {
    const bool fresh = !word.leansBack || kindAt(word.begin) == Kind::word || kindAt(word.begin) == Kind::number;
    if (fresh && !insideWord(word.begin)) spoken_.blank();
    if (!allOf(word, Kind::japanese)) return sayUnits(word.begin, word.begin + word.length);
    if (word.begin > 0 && kindAt(word.begin - 1) == Kind::number && isNumberOfWord(word)) spoken_.append(u"、");
    const TextView surface = TextView(surface_).substr(word.begin, word.length);
    if (word.particle && (surface == u"は" || surface == u"へ") && spoken_.atStart())
      return spoken_.append(surface == u"は" ? u"ハ" : u"ヘ");  // no particle stands in front: the kana itself
    if (surface == u"値") return spoken_.append(endsCompound(word.begin) ? u"チ" : u"アタイ");
    if (const char16_t* own = ownReading(surface, word.pronunciation)) return spoken_.append(own);
    if (!isAllKatakana(word.pronunciation)) return sayUnits(word.begin, word.begin + word.length);
    const bool strike = surface.front() == u'叩' && word.pronunciation.starts_with(u"ハタ");
    spoken_.append(strike ? u"タタ" + word.pronunciation.substr(2) : word.pronunciation);
  }

  // "項目2氏名": the number belongs to the word before it, and a new word follows.
  bool isNumberOfWord(const Morpheme& next) const {
    const std::size_t number = owner_[next.begin - 1];
    if (next.leansBack || number == 0) return false;
    const Text& label = pieces_[number - 1].surface;
    constexpr const char16_t* labels[] = {u"項目", u"コウモク", u"行",   u"ギョウ",
                                          u"記録", u"キロク",   u"番号", u"バンゴウ"};
    return std::any_of(std::begin(labels), std::end(labels), [&](TextView end) { return label.ends_with(end); });
  }

  bool endsCompound(std::size_t at) const {
    if (at == 0) return false;
    const Kind before = kindAt(at - 1);
    return before == Kind::word || before == Kind::number ||
           (before == Kind::japanese && !isHiragana(surface_[at - 1]));
  }

  // The dictionary may cut the program's own kana anywhere, and hiragana often wrongly: both are said in one go.
  bool insideWord(std::size_t at) const {
    if (at == 0 || owner_[at] != owner_[at - 1]) return false;
    return kindAt(at) == Kind::written || (isHiragana(surface_[at]) && isHiragana(surface_[at - 1]));
  }

  void sayUnits(std::size_t begin, std::size_t end) {
    for (std::size_t i = begin; i < end; ++i) {
      switch (kindAt(i)) {
        case Kind::japanese:
          sayAlone(surface_[i]);
          break;
        case Kind::written:
          spoken_.append(TextView(&surface_[i], 1));
          break;
        case Kind::blank:
          spoken_.blank();
          break;
        case Kind::pause:
        case Kind::stop:
        case Kind::question:
          spoken_.append(pieces_[owner_[i]].kana);
          break;
        case Kind::number:
        case Kind::word:
          spoken_.blank();
          spoken_.append(pieces_[owner_[i]].kana);
      }
    }
  }

  void sayAlone(char16_t unit) {
    if (unit == u'々' || unit == u'〆') return spoken_.append(signOf(unit).name);
    if (!isKanji(unit)) return spoken_.append(Text(1, katakanaOf(unit)));
    const Text reading = dictionary_.kanjiReading(unit);
    if (!reading.empty()) return spoken_.append(reading);
    spoken_.append(dictionary_.found() ? Text(u"カンジ") : Text(1, unit));
  }

  std::vector<Piece> pieces_;
  Dictionary& dictionary_;
  Text surface_;
  std::vector<std::size_t> owner_;  // of each unit of the surface
  Spoken& spoken_;
};

// The dictionary and some rules look ahead to the end of a run of like signs, at each of them: no stretch handed to
// them is longer than this, so that the work grows evenly with the text.
constexpr std::size_t kLongestStretch = 500;

// The units of the next stretch; the cut is behind a pause where one stands in its second half.
std::size_t stretchOf(TextView plain) {
  if (plain.size() <= kLongestStretch) return plain.size();
  const std::size_t pause = plain.find_last_of(u" 　。､、｡", kLongestStretch - 1);
  return pause == TextView::npos || pause < kLongestStretch / 2 ? kLongestStretch : pause + 1;
}

Spoken spokenOf(TextView plain, bool nameAll, Dictionary& dictionary, std::size_t limit) {
  Spoken spoken;
  while (!plain.empty() && spoken.size() <= limit) {
    const std::size_t length = stretchOf(plain);
    Reading(piecesOf(plain.substr(0, length), nameAll), dictionary, spoken).sayAll();
    plain.remove_prefix(length);
  }
  if (spoken.size() > limit) spoken.cutTo(limit);
  return spoken;
}

}  // namespace

Text kanaForSpeech(TextView sentence, Dictionary& dictionary, std::size_t limit) {
  const Text plain = plainSpelling(sentence);
  Spoken spoken = spokenOf(plain, false, dictionary, limit);
  if (!spoken.anythingToHear()) spoken = spokenOf(plain, true, dictionary, limit);
  return std::move(spoken).finished();
}

}  // namespace zelko
