#include "speech/counters.h"

#include <cstdint>

#include "speech/plain.h"

namespace zelko {

namespace {

enum class Sound : std::uint8_t {
  plain,        // nothing changes
  k,            // イッカイ ロッカイ ハッカイ ジュッカイ
  kVoiced,      // the same, サンガイ
  s,            // イッサイ ハッサイ ジュッサイ
  hVoiced,      // イッポン サンボン ロッポン
  hHalfVoiced,  // イップン サンプン ヨンプン
};

struct Counter {
  const char16_t* sign;
  const char16_t* kana;
  Sound sound = Sound::plain;
  const char16_t* digits = u"";  // last digits that sound otherwise: "4ヨ9ク"
};

using enum Sound;

// Longer signs stand before those they begin with.
constexpr Counter kCounters[] = {
    {u"項目", u"コウモク", k},
    {u"ヶ月", u"カゲツ", k},
    {u"ケ月", u"カゲツ", k},
    {u"か月", u"カゲツ", k},
    {u"カ月", u"カゲツ", k},
    {u"ヵ月", u"カゲツ", k},
    {u"箇月", u"カゲツ", k},
    {u"ヶ所", u"カショ", k},
    {u"か所", u"カショ", k},
    {u"カ所", u"カショ", k},
    {u"箇所", u"カショ", k},
    {u"ヶ国", u"カコク", k},
    {u"か国", u"カコク", k},
    {u"月", u"ガツ", plain, u"4シ7シチ9ク"},
    {u"年", u"ネン", plain, u"4ヨ"},
    {u"時", u"ジ", plain, u"4ヨ7シチ9ク"},
    {u"分", u"フン", hHalfVoiced},
    {u"秒", u"ビョウ"},
    {u"週", u"シュウ", s},
    {u"円", u"エン", plain, u"4ヨ"},
    {u"回", u"カイ", k},
    {u"件", u"ケン", k},
    {u"個", u"コ", k},
    {u"箇", u"コ", k},
    {u"記録", u"キロク", k},
    {u"行", u"ギョウ"},
    {u"文字", u"モジ"},
    {u"字", u"ジ"},
    {u"画", u"カク", k},
    {u"桁", u"ケタ", k},
    {u"列", u"レツ"},
    {u"点", u"テン", s},
    {u"歳", u"サイ", s},
    {u"才", u"サイ", s},
    {u"階", u"カイ", kVoiced},
    {u"本", u"ホン", hVoiced},
    {u"匹", u"ヒキ", hVoiced},
    {u"杯", u"ハイ", hVoiced},
    {u"票", u"ヒョウ", hVoiced},
    {u"枚", u"マイ"},
    {u"冊", u"サツ", s},
    {u"台", u"ダイ"},
    {u"名", u"メイ"},
    {u"人前", u"ニンマエ", plain, u"4ヨ"},
    {u"番地", u"バンチ"},
    {u"番", u"バン"},
    {u"丁目", u"チョウメ", s},
    {u"号", u"ゴウ"},
    {u"条", u"ジョウ"},
    {u"組", u"クミ"},
    {u"級", u"キュウ", k},
    {u"位", u"イ"},
    {u"度", u"ド"},
    {u"倍", u"バイ"},
    {u"割", u"ワリ"},
    {u"種類", u"シュルイ", s},
    {u"種", u"シュ", s},
    {u"世帯", u"セタイ", s},
    {u"軒", u"ケン", kVoiced},
    {u"通", u"ツウ", s},
    {u"部", u"ブ"},
    {u"頁", u"ページ", s},
    {u"頭", u"トウ", s},
    {u"着", u"チャク", s},
    {u"足", u"ソク", s},
    {u"語", u"ゴ"},
    {u"問", u"モン"},
    {u"バイト", u"バイト"},
    {u"ページ", u"ページ", s},
    {u"ポイント", u"ポイント", s},
    {u"パーセント", u"パーセント", s},
    {u"セット", u"セット", s},
    {u"センチ", u"センチ", s},
    {u"万円", u"マンエン"},
    {u"億円", u"オクエン"},
    {u"万", u"マン"},
    {u"億", u"オク"},
    {u"%", u"パーセント", s},
    {u"℃", u"ド"},
    {u"°", u"ド"},
    {u"kg", u"キログラム"},
    {u"km", u"キロメートル"},
    {u"cm", u"センチメートル", s},
    {u"mm", u"ミリメートル"},
    {u"mg", u"ミリグラム"},
    {u"ml", u"ミリリットル"},
    {u"mL", u"ミリリットル"},
    {u"cc", u"シーシー"},
    {u"KB", u"キロバイト"},
    {u"MB", u"メガバイト"},
    {u"GB", u"ギガバイト"},
    {u"m", u"メートル"},
    {u"g", u"グラム"},
    {u"L", u"リットル"},
};

// What may stand behind a counter and would be read otherwise alone.
struct Tail {
  char16_t sign;
  const char16_t* kana;
  const char16_t* behind;     // the counters' last signs it goes with
  const char16_t* notBefore;  // signs that make another word of it
};

constexpr Tail kTails[] = {
    {u'目', u"メ", u"行件回番年月日週時組列個枚字人度", u"標的次"},
    {u'間', u"カン", u"年日分秒週月時", u"隔違"},
    {u'半', u"ハン", u"年時月分間", u"端分期"},
    {u'前', u"マエ", u"年日分秒週月間", u"後半期者"},
    {u'後', u"ゴ", u"年日分秒週月間", u"半期者"},
    {u'分', u"ブン", u"年日回人月行件", u""},
};

bool endsWith(TextView text, TextView tail) { return text.ends_with(tail); }

// The number with its last digit's kana replaced, as in ヨネン for ヨンネン.
Text otherwise(TextView digits, Text number, TextView exceptions) {
  if (digits.empty()) return number;
  const std::size_t at = exceptions.find(digits.back());
  if (at == TextView::npos) return number;
  std::size_t end = at + 1;
  while (end < exceptions.size() && !isDigit(exceptions[end])) ++end;
  const std::size_t cut = digits.back() == u'9' ? 3 : 2;  // キュウ, else ヨン, ナナ
  return number.substr(0, number.size() - cut) + Text(exceptions.substr(at + 1, end - at - 1));
}

// The number with its end shortened to ッ where the counter's sound asks for it; false where it stays.
bool shortened(Text& number, Sound sound) {
  if (sound == plain) return false;
  const bool strong = sound != s;  // k and h rows shorten ロク and ヒャク too
  const auto cut = [&](TextView end, std::size_t units) {
    if (!endsWith(number, end)) return false;
    number.replace(number.size() - units, units, u"ッ");
    return true;
  };
  if (cut(u"イチ", 1) || cut(u"ハチ", 1)) return true;
  if (endsWith(number, u"ジュウ")) return cut(u"ジュウ", 1);
  return strong && (cut(u"ロク", 1) || cut(u"ヒャク", 1) || cut(u"ビャク", 1) || cut(u"ピャク", 1));
}

Text shifted(Text kana, int by) {
  kana.front() = static_cast<char16_t>(kana.front() + by);
  return kana;
}

Text joined(TextView digits, const Text& whole, const Counter& counter) {
  Text number = otherwise(digits, whole, counter.digits);
  const Text kana = counter.kana;
  if (digits.empty()) return number + kana;
  const bool h = counter.sound == hVoiced || counter.sound == hHalfVoiced;
  if (shortened(number, counter.sound)) return number + (h ? shifted(kana, 2) : kana);
  if (endsWith(number, u"サン") && (counter.sound == hVoiced || counter.sound == kVoiced))
    return number + shifted(kana, 1);
  const bool n = endsWith(number, u"サン") || endsWith(number, u"ヨン");
  return number + (n && counter.sound == hHalfVoiced ? shifted(kana, 2) : kana);
}

// Days, people and things have words of their own for the small numbers.
Text ownWord(TextView digits, TextView words) {
  const std::size_t at = words.find(Text(u" ") + Text(digits) + u"=");
  if (digits.empty() || at == TextView::npos) return Text();
  const std::size_t begin = at + digits.size() + 2;
  return Text(words.substr(begin, words.find(u' ', begin) - begin));
}

constexpr TextView kDays =
    u" 2=フツカ 3=ミッカ 4=ヨッカ 5=イツカ 6=ムイカ 7=ナノカ 8=ヨウカ 9=ココノカ 10=トオカ 14=ジュウヨッカ 20=ハツカ "
    u"24=ニジュウヨッカ ";
constexpr TextView kPeople = u" 1=ヒトリ 2=フタリ ";
constexpr TextView kThings = u" 1=ヒトツ 2=フタツ 3=ミッツ 4=ヨッツ 5=イツツ 6=ムッツ 7=ナナツ 8=ヤッツ 9=ココノツ ";
constexpr Counter kDay{u"日", u"ニチ", plain, u"7シチ9ク"};
constexpr Counter kPerson{u"人", u"ニン", plain, u"4ヨ"};

Text daysKana(TextView digits, const Text& number, bool afterMonth) {
  if (digits == u"1" && afterMonth) return u"ツイタチ";
  const Text own = ownWord(digits, kDays);
  return own.empty() ? joined(digits, number, kDay) : own;
}

// The table's counter at this place; a unit in letters must not go on as a word.
const Counter* tableCounter(TextView text, std::size_t at) {
  for (const Counter& counter : kCounters) {
    const TextView sign = counter.sign;
    if (text.substr(at, sign.size()) != sign) continue;
    const std::size_t behind = at + sign.size();
    if (isLetter(sign.front()) && behind < text.size() && (isLetter(text[behind]) || isDigit(text[behind]))) continue;
    const bool nextLabel = behind < text.size() && isDigit(text[behind]) && (sign == u"項目" || sign == u"記録");
    return nextLabel ? nullptr : &counter;  // "記録1項目2" counts no items
  }
  return nullptr;
}

CountedNumber simpleCounted(TextView digits, const Text& number, TextView text, std::size_t at, bool afterMonth) {
  const char16_t first = at < text.size() ? text[at] : u'\0';
  if (first == u'つ') {
    const Text own = ownWord(digits, kThings);
    return own.empty() ? CountedNumber{} : CountedNumber{1, own};
  }
  if (first == u'日' && text.substr(at, 2) != u"日本") return {1, daysKana(digits, number, afterMonth)};
  if (first == u'人' && text.substr(at, 2) != u"人前") {
    const Text own = ownWord(digits, kPeople);
    return {1, own.empty() ? joined(digits, number, kPerson) : own};
  }
  if ((first == u'歳' || first == u'才') && digits == u"20") return {1, u"ハタチ"};
  const Counter* counter = tableCounter(text, at);
  if (counter == nullptr) return {};
  return {TextView(counter->sign).size(), joined(digits, number, *counter)};
}

const Tail* tailAt(TextView text, std::size_t at) {
  const auto has = [](TextView signs, char16_t sign) { return signs.find(sign) != TextView::npos; };
  for (const Tail& tail : kTails) {
    if (at >= text.size() || text[at] != tail.sign || !has(tail.behind, text[at - 1])) continue;
    if (at + 1 < text.size() && has(tail.notBefore, text[at + 1])) continue;
    return &tail;
  }
  return nullptr;
}

}  // namespace

bool counterAt(TextView text, std::size_t at) {
  if (at >= text.size()) return false;
  return text[at] == u'日' || text[at] == u'人' || tableCounter(text, at) != nullptr;
}

CountedNumber counted(TextView digits, const Text& number, TextView text, std::size_t at, bool afterMonth) {
  CountedNumber result = simpleCounted(digits, number, text, at, afterMonth);
  if (result.length == 0) return result;
  while (const Tail* tail = tailAt(text, at + result.length)) {
    result.kana += tail->kana;
    ++result.length;
  }
  return result;
}

}  // namespace zelko
