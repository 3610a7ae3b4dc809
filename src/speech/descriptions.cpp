#include "speech/descriptions.h"

#include <algorithm>
#include <cstdint>
#include <iterator>

#include "platform/text/sjis.h"
#include "speech/latin.h"
#include "speech/plain.h"
#include "speech/signnames.h"

namespace zelko {

namespace {

struct Kanji {
  char16_t sign;
  std::uint8_t strokes;
  const char16_t* words;
};

constexpr Kanji kKanji[] = {
#include <descriptions.inc>  // made while the program is built
};

const Kanji* kanjiOf(TextView character) {
  if (character.size() != 1) return nullptr;
  const auto* found = std::lower_bound(std::begin(kKanji), std::end(kKanji), character[0],
                                       [](const Kanji& row, char16_t sign) { return row.sign < sign; });
  return found != std::end(kKanji) && found->sign == character[0] ? found : nullptr;
}

// Kana of the same sound, and the small ones, by what they are made of.
Text kanaWords(char16_t katakana) {
  switch (katakana) {
    case u'ヂ':
      return u"チにダクテン";
    case u'ヅ':
      return u"ツにダクテン";
    case u'ヰ':
      return u"ワ行のイ";
    case u'ヱ':
      return u"ワ行のエ";
    case u'ヲ':
      return u"ワ行のオ";
    case u'ー':
      return u"チョウオン";
    default:
      break;
  }
  constexpr TextView small = u"ァアィイゥウェエォオッツャヤュユョヨヮワヵカヶケ";
  const std::size_t at = small.find(katakana);
  return at != TextView::npos && at % 2 == 0 ? u"小さい" + Text(1, small[at + 1]) : Text(1, katakana);
}

Text halfWidthWords(char16_t unit) {
  if (isDigit(unit)) return Text(u"数字の") + unit;
  if (isLetter(unit)) return Text(unit <= u'Z' ? u"大文字" : u"小文字").append(letterName(unit));
  return unit == u' ' ? Text(u"スペース") : signName(unit);
}

bool isControl(char16_t unit) { return unit < 0x20 || (unit >= 0x7F && unit < 0xA0); }

Text unitWords(char16_t unit) {
  if (unit == u'\n' || unit == u'\r') return u"改行";
  if (unit == u'\t') return u"タブ";
  if (isControl(unit)) return u"制御文字";
  if (unit < 0x7F) return u"半角" + halfWidthWords(unit);
  if (unit == u'　') return u"全角スペース";
  if (unit == u'＼') return u"全角バックスラッシュ";
  if (unit >= 0xFF01 && unit <= 0xFF5E) return u"全角" + halfWidthWords(static_cast<char16_t>(unit - 0xFEE0));
  if (unit == u'ﾞ' || unit == u'ﾟ') return Text(u"半角") + (unit == u'ﾞ' ? u"ダクテン" : u"ハンダクテン");
  if (isHalfWidthKana(unit)) return u"半角カタカナの" + kanaWords(fullWidthKana(Text(1, unit))[0]);
  if (TextView(u"｡｢｣､･").find(unit) != TextView::npos) return u"半角" + signName(unit);
  if (isHiragana(unit)) return u"ひらがなの" + kanaWords(static_cast<char16_t>(unit + 0x60));
  if (isKatakana(unit)) return u"カタカナの" + kanaWords(unit);
  if (unit >= 0xE000 && unit <= 0xF8FF) return u"外字";
  return signName(unit);
}

Text places(std::uint32_t code, int digits) {
  Text text;
  for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4) {
    text += u' ';
    text += u"0123456789ABCDEF"[(code >> shift) & 0xF];
  }
  return text;
}

std::uint32_t codePoint(TextView character) {
  if (character.size() < 2) return character[0];
  return 0x10000U + ((character[0] - 0xD800U) << 10U) + (character[1] - 0xDC00U);
}

}  // namespace

bool isDescribedKanji(TextView character) { return kanjiOf(character) != nullptr; }

Text characterDescription(TextView character) {
  if (character.empty()) return {};
  if (const Kanji* kanji = kanjiOf(character)) return kanji->words;
  if (character == u"𠮷") return u"吉の異体字、つちよし";
  if (character.size() == 1 && !isKanji(character[0])) return unitWords(character[0]);
  if (character == u"々") return u"漢字のくりかえし";
  return u"表に無い字、ユニコード" + places(codePoint(character), character.size() > 1 ? 5 : 4);
}

Text characterCode(TextView character) {
  if (character.empty()) return {};
  Text words;
  const std::string bytes = toSjis(character);
  if (bytes != "?" || character == u"?") {
    std::uint32_t code = 0;
    for (char byte : bytes) code = code << 8U | static_cast<unsigned char>(byte);
    words = u"シフトJIS" + places(code, static_cast<int>(bytes.size()) * 2) + u"、";
  }
  const std::uint32_t code = codePoint(character);
  words += u"ユニコード" + places(code, code > 0xFFFF ? 5 : 4);
  if (const Kanji* kanji = kanjiOf(character)) {
    const std::string strokes = std::to_string(kanji->strokes);
    words += u"、" + Text(strokes.begin(), strokes.end()) + u"画";
  }
  return words;
}

}  // namespace zelko
