// Characters told apart by ear.
#include "speech/descriptions.h"

#include <doctest/doctest.h>

#include <map>

#include "platform/text/sjis.h"
#include "speech/dictionary.h"
#include "speech/kana.h"

using namespace zelko;

TEST_CASE("no two characters of the code page sound alike when they are described") {
  Dictionary dictionary;
  std::map<Text, TextView> heard;
  std::vector<Text> all;
  int kanji = 0;
  for (int code = 0x20; code < 0xFD00; ++code) {
    const std::string bytes = code < 0x100 ? std::string(1, static_cast<char>(code))
                                           : std::string{static_cast<char>(code >> 8), static_cast<char>(code & 0xFF)};
    const Text character = fromSjis(bytes);
    const bool own =
        character.size() == 1 && toSjis(character) == bytes && character[0] >= 0x20 && character[0] != 0x7F;
    if (own && (character[0] < 0xE000 || character[0] > 0xF8FF)) all.push_back(character);
  }
  for (const Text& character : all) {
    kanji += isDescribedKanji(character) ? 1 : 0;
    const Text sound = kanaForSpeech(characterDescription(character), dictionary);
    CAPTURE(toUtf8(character));
    CAPTURE(toUtf8(sound));
    CHECK_FALSE(sound.empty());
    const auto [other, isNew] = heard.try_emplace(sound, character);
    CAPTURE(toUtf8(other->second));
    CHECK(isNew);
  }
  CHECK(kanji == 6355 + 360 + 1);  // levels 1 and 2, the extended ones, and 仝
}

TEST_CASE("words and codes of characters") {
  struct Row {
    TextView character, words, code;
  };
  constexpr Row rows[] = {
      {u"高", u"高所のコウ、たかい", u"シフトJIS 8 D 8 2、ユニコード 9 A D 8、10画"},
      {u"髙", u"高の異体字、はしごだか、高所のコウ", u"シフトJIS F B F C、ユニコード 9 A D 9、11画"},
      {u"峠", u"とうげ", u"シフトJIS 9 3 B B、ユニコード 5 C E 0、9画"},
      {u"彁", u"カ、セイ、ユミヘン、13画", u"シフトJIS 9 C 5 A、ユニコード 5 F 4 1、13画"},
      {u"ｱ", u"半角カタカナのア", u"シフトJIS B 1、ユニコード F F 7 1"},
      {u"へ", u"ひらがなのヘ", u"シフトJIS 8 2 D 6、ユニコード 3 0 7 8"},
      {u"Ａ", u"全角大文字エー", u"シフトJIS 8 2 6 0、ユニコード F F 2 1"},
      {u"?", u"半角ギモンフ", u"シフトJIS 3 F、ユニコード 0 0 3 F"},
      {u"\xD842\xDFB7", u"吉の異体字、つちよし", u"ユニコード 2 0 B B 7"},
      {u"", u"", u""},
  };
  for (const Row& row : rows) {
    CHECK(characterDescription(row.character) == row.words);
    CHECK(characterCode(row.character) == row.code);
  }
}
