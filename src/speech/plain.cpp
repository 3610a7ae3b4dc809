#include "speech/plain.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace zelko {

namespace {

// Each pair: the form met in names, the form that dictionaries know.
constexpr std::u16string_view kVariants =
    u"髙高﨑崎嵜崎德徳濵浜濱浜邉辺邊辺栁柳桒桑槗橋瀨瀬黑黒緖緒綠緑曻昇寬寛增増昻昂橫横淸清溫温靑青薰薫曉暁琇秀敎教晧皓"
    u"桺柳渕淵"
    u"冝宜齋斎齊斉澤沢廣広國国嶋島嶌島冨富眞真惠恵榮栄龍竜淺浅壽寿實実圓円學学會会藏蔵櫻桜鐵鉄禮礼彥彦﨟臈"
    u"\uf929朗\uf9dc隆\ufa10塚\ufa12晴\ufa15凞\ufa16猪\ufa17益\ufa18礼\ufa19神\ufa1a祥\ufa1b福\ufa1c靖\ufa1d精"
    u"\ufa1e羽\ufa20蘒\ufa22諸\ufa25逸\ufa26都\ufa2a飯\ufa2b飼\ufa2c館\ufa2d鶴";

struct Spelled {
  char16_t sign;
  const char16_t* text;
};

constexpr Spelled kSpelled[] = {
    {u'㈱', u"株式会社"},
    {u'㈲', u"有限会社"},
    {u'㈹', u"代表"},
    {u'㊤', u"上"},
    {u'㊥', u"中"},
    {u'㊦', u"下"},
    {u'㊧', u"左"},
    {u'㊨', u"右"},
    {u'№', u"ナンバー"},
    {u'℡', u"電話"},
    {u'㏍', u"株式会社"},
    {u'㍾', u"明治"},
    {u'㍽', u"大正"},
    {u'㍼', u"昭和"},
    {u'㍻', u"平成"},
    {u'㋿', u"令和"},
    {u'㎏', u"kg "},
    {u'㎜', u"mm "},
    {u'㎝', u"cm "},
    {u'㎞', u"km "},
    {u'㎎', u"mg "},
    {u'㏄', u"cc "},
    {u'㎡', u"平方メートル"},
    {u'㍉', u"ミリ"},
    {u'㌔', u"キロ"},
    {u'㌢', u"センチ"},
    {u'㍍', u"メートル"},
    {u'㌘', u"グラム"},
    {u'㌧', u"トン"},
    {u'㌃', u"アール"},
    {u'㌶', u"ヘクタール"},
    {u'㍑', u"リットル"},
    {u'㍗', u"ワット"},
    {u'㌍', u"カロリー"},
    {u'㌦', u"ドル"},
    {u'㌣', u"セント"},
    {u'㌫', u"%"},
    {u'㍊', u"ミリバール"},
    {u'㌻', u"ページ"},
    {u'〇', u"〇"},
    {u'￥', u"¥"},
    {u'￠', u"¢"},
    {u'￡', u"£"},
    {u'￢', u"¬"},
    {u'−', u"-"},
    {u'‐', u"-"},
    {u'–', u"-"},
    {u'—', u"―"},
    {u'〜', u"～"},
    {u'‖', u"∥"},
    {u'“', u"\""},
    {u'”', u"\""},
    {u'‘', u"'"},
    {u'’', u"'"},
    {u'￤', u"|"},
    {u'¦', u"|"},
    {u'\u00a0', u" "},
};

bool isHighSurrogate(char16_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
bool isLowSurrogate(char16_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }
bool isControl(char16_t unit) {
  return unit < 0x20 || (unit >= 0x7F && unit < 0xA0) || (unit >= 0x200B && unit <= 0x200F) ||
         (unit >= 0x2028 && unit <= 0x202E) || (unit >= 0xFE00 && unit <= 0xFE0F) || unit == 0xFEFF;
}

char16_t commonKanji(char16_t unit) {
  for (std::size_t i = 0; i + 1 < kVariants.size(); i += 2)
    if (kVariants[i] == unit) return kVariants[i + 1];
  return unit;
}

Text number(int value) {
  const std::string digits = std::to_string(value);
  return Text(digits.begin(), digits.end()) + u" ";
}

// A character beyond the basic plane: a rare kanji, or a picture.
Text pairSpelled(char16_t high, char16_t low) {
  if (high == 0xD842 && low == 0xDFB7) return u"吉";  // the name's form with the short lower stroke
  return high >= 0xD840 && high <= 0xD88D ? u"〓" : u"\uFFFD";
}

// A minus that stands for the long mark inside a katakana word is a frequent slip of typing.
bool isMistypedLongMark(TextView text, std::size_t at) {
  const char16_t unit = text[at];
  if (unit != u'－' && unit != u'−' && unit != u'‐' && unit != u'―') return false;
  if (at == 0 || !isKatakana(text[at - 1]) || at + 1 >= text.size()) return false;
  return isKatakana(text[at + 1]) || (unit != u'―' && isKanji(text[at + 1]));
}

Text spelled(char16_t unit) {
  for (const Spelled& entry : kSpelled)
    if (entry.sign == unit) return entry.text;
  if (unit == u'～') return u"～";
  if (unit >= 0xFF01 && unit <= 0xFF5E) return Text(1, static_cast<char16_t>(unit - 0xFEE0));
  if (unit >= u'①' && unit <= u'⑳') return number(unit - u'①' + 1);
  if (unit >= u'Ⅰ' && unit <= u'Ⅻ') return number(unit - u'Ⅰ' + 1);
  if (unit >= u'ⅰ' && unit <= u'ⅻ') return number(unit - u'ⅰ' + 1);
  return Text(1, isKanji(unit) ? commonKanji(unit) : unit);
}

constexpr std::u16string_view kFullKana =  // of U+FF66 to U+FF9F
    u"ヲァィゥェォャュョッーアイウエオカキクケコサシスセソタチツテトナニヌネノハヒフヘホマミムメモヤユヨラリルレロワン"
    u"゛゜";

// The kana with the mark behind it, or nothing where the two do not join.
char16_t voiced(char16_t kana, char16_t mark) {
  constexpr std::u16string_view takesMark = u"カキクケコサシスセソタチツテトハヒフヘホ";
  if (mark == u'ﾞ' && kana == u'ウ') return u'ヴ';
  if (mark == u'ﾞ' && takesMark.find(kana) != takesMark.npos) return static_cast<char16_t>(kana + 1);
  if (mark == u'ﾟ' && kana >= u'ハ' && kana <= u'ホ') return static_cast<char16_t>(kana + 2);
  return 0;
}

// The kana that an iteration mark stands for, or nothing.
char16_t repeated(TextView before, char16_t mark) {
  if (before.empty() || (!isKatakana(before.back()) && !isHiragana(before.back()))) return 0;
  if (mark == u'ゝ' || mark == u'ヽ') return before.back();
  if (mark != u'ゞ' && mark != u'ヾ') return 0;
  const bool hiragana = isHiragana(before.back());
  const auto kana = static_cast<char16_t>(before.back() + (hiragana ? 0x60 : 0));
  const char16_t joined = voiced(kana, u'ﾞ');
  if (joined == 0) return before.back();
  return static_cast<char16_t>(joined - (hiragana ? 0x60 : 0));
}

// Spellings that the dictionary cuts apart.
Text fullySpelled(Text text) {
  constexpr std::pair<TextView, TextView> words[] = {
      {u"読込み", u"読み込み"}, {u"読込", u"読み込み"},   {u"書込み", u"書き込み"},
      {u"書込", u"書き込み"},   {u"元配置", u"げん配置"},
  };
  for (const auto& [word, spelling] : words) text = replaceAll(text, word, spelling);
  return text;
}

}  // namespace

bool isHalfWidthKana(char16_t unit) { return unit >= 0xFF66 && unit <= 0xFF9F; }
bool isKatakana(char16_t unit) { return unit >= 0x30A1 && unit <= 0x30FC && unit != u'・'; }
bool isHiragana(char16_t unit) { return unit >= 0x3041 && unit <= 0x3096; }
bool isKanji(char16_t unit) {
  return (unit >= 0x3400 && unit <= 0x9FFF) || (unit >= 0xF900 && unit <= 0xFAFF) || unit == u'々';
}
bool isDigit(char16_t unit) { return unit >= u'0' && unit <= u'9'; }
bool isLetter(char16_t unit) { return (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z'); }

Text plainSpelling(TextView text) {
  Text plain;
  plain.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char16_t unit = text[i];
    if (isHighSurrogate(unit) && i + 1 < text.size() && isLowSurrogate(text[i + 1])) {
      plain += pairSpelled(unit, text[++i]);
    } else if (isHighSurrogate(unit) || isLowSurrogate(unit)) {
      continue;
    } else if (unit == u'\n' || unit == u'\r' || unit == u'\t') {
      plain += u'　';
    } else if (const char16_t again = repeated(plain, unit); again != 0) {
      plain += again;
    } else if (isMistypedLongMark(text, i)) {
      plain += u'ー';
    } else if (!isControl(unit)) {
      plain += spelled(unit);
    }
  }
  return fullySpelled(std::move(plain));
}

Text fullWidthKana(TextView text) {
  Text full;
  for (char16_t unit : text) {
    const char16_t joined = full.empty() ? u'\0' : voiced(full.back(), unit);
    if (joined != 0)
      full.back() = joined;
    else
      full += isHalfWidthKana(unit) ? kFullKana[static_cast<std::size_t>(unit - 0xFF66)] : unit;
  }
  return full;
}

}  // namespace zelko
