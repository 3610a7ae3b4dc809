#include "tablejobs/search/fold.h"

#include <array>
#include <memory>

namespace zelko {

namespace {

struct KanjiForm {
  char16_t form, standing;
};

constexpr KanjiForm kKanjiForms[] = {
#include "tablejobs/search/kanji_forms.inc"
};

// Of U+FF61 to U+FF9F, in hiragana where there is one.
constexpr TextView kOfHalfWidthKana =
    u"｡｢｣､･をぁぃぅぇぉゃゅょっーあいうえおかきくけこさしすせそたちつてとなにぬねのはひふへほまみむめもやゆよらりるれろ"
    u"わん゛゜";
constexpr char16_t kFirstHalfWidthKana = 0xFF61, kLastHalfWidthKana = 0xFF9F;
static_assert(kOfHalfWidthKana.size() == kLastHalfWidthKana - kFirstHalfWidthKana + 1);

constexpr TextView kSigns = u"　￥’”。「」、・";
constexpr TextView kOfSigns = u" \\'\"｡｢｣､･";
static_assert(kSigns.size() == kOfSigns.size());

constexpr TextView kVoiced = u"がぎぐげござじずぜぞだぢづでどばびぶべぼヴ";
constexpr TextView kOfVoiced = u"かきくけこさしすせそたちつてとはひふへほう";
constexpr TextView kHalfVoiced = u"ぱぴぷぺぽ";
constexpr TextView kOfHalfVoiced = u"はひふへほ";
constexpr char16_t kVoicing = u'゛', kHalfVoicing = u'゜';

using Table = std::array<char16_t, 0x10000>;

std::unique_ptr<const Table> madeTable() {
  auto table = std::make_unique<Table>();
  for (std::size_t unit = 0; unit < table->size(); ++unit) (*table)[unit] = static_cast<char16_t>(unit);
  for (char16_t ch = 0xFF01; ch <= 0xFF5E; ++ch) (*table)[ch] = static_cast<char16_t>(ch - 0xFEE0);
  for (char16_t ch = u'ァ'; ch <= u'ン'; ++ch) (*table)[ch] = static_cast<char16_t>(ch - u'ァ' + u'ぁ');
  (*table)[u'ヽ'] = u'ゝ';
  (*table)[u'ヾ'] = u'ゞ';
  for (std::size_t i = 0; i < kOfHalfWidthKana.size(); ++i) (*table)[kFirstHalfWidthKana + i] = kOfHalfWidthKana[i];
  for (std::size_t i = 0; i < kSigns.size(); ++i) (*table)[kSigns[i]] = kOfSigns[i];
  for (const KanjiForm& kanji : kKanjiForms) (*table)[kanji.form] = kanji.standing;
  return table;
}

// 0 where the kana takes no such mark.
char16_t withMark(char16_t kana, char16_t mark) {
  const bool half = mark == kHalfVoicing;
  const std::size_t at = (half ? kOfHalfVoiced : kOfVoiced).find(kana);
  return at == TextView::npos ? char16_t{0} : (half ? kHalfVoiced : kVoiced)[at];
}

}  // namespace

Text folded(TextView text) {
  static const std::unique_ptr<const Table> table = madeTable();
  Text out;
  out.reserve(text.size());
  for (const char16_t unit : text) {
    const char16_t ch = (*table)[unit];
    const bool mark = ch == kVoicing || ch == kHalfVoicing;
    const char16_t joined = mark && !out.empty() ? withMark(out.back(), ch) : char16_t{0};
    if (joined)
      out.back() = joined;
    else
      out += ch;
  }
  return out;
}

}  // namespace zelko
