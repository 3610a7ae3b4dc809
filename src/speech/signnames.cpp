#include "speech/signnames.h"

#include <algorithm>
#include <iterator>
#include <string>

#include "speech/signs.h"

namespace zelko {

namespace {

struct Name {
  char16_t sign;
  const char16_t* name;
};

// What signs.cpp calls otherwise, or not at all, because a sentence needs less.
constexpr Name kNames[] = {
    {u'。', u"句点"},
    {u'｡', u"句点"},
    {u'、', u"読点"},
    {u'､', u"読点"},
    {u'-', u"マイナス"},
    {u'‐', u"ハイフン"},
    {u'―', u"ダッシュ"},
    {u'~', u"チルダ"},
    {u'～', u"波線"},
    {u'〜', u"波線"},
    {u'\\', u"エン記号"},
    {u'￥', u"全角エン記号"},
    {u'￠', u"セント"},
    {u'￡', u"ポンド"},
    {u'￣', u"オーバーライン"},
    {u'‘', u"左シングルクォート"},
    {u'’', u"右シングルクォート"},
    {u'“', u"左ダブルクォート"},
    {u'”', u"右ダブルクォート"},
    {u'＇', u"全角アポストロフィ"},
    {u'＂', u"全角ダブルクォート"},
    {u'〝', u"左ダブルミニュート"},
    {u'〟', u"右ダブルミニュート"},
    {u'´', u"アクサンテギュ"},
    {u'〆', u"しめ"},
    {u'々', u"漢字のくりかえし"},
    {u'仝', u"同じの記号"},
    {u'ゝ', u"ひらがなのくりかえし"},
    {u'ゞ', u"ひらがなのくりかえしにダクテン"},
    {u'ヽ', u"カタカナのくりかえし"},
    {u'ヾ', u"カタカナのくりかえしにダクテン"},
    {u'〃', u"おなじくの記号"},
    {u'○', u"白い丸"},
    {u'〇', u"漢数字のゼロ"},
    {u'◯', u"大きい丸"},
    {u'♯', u"音楽のシャープ"},
    {u'∑', u"総和のシグマ"},
    {u'∈', u"要素として属する"},
    {u'∋', u"要素として含む"},
    {u'⊆', u"部分集合またはイコール"},
    {u'⊇', u"含む集合またはイコール"},
    {u'⊂', u"部分集合"},
    {u'⊃', u"含む集合"},
    {u'∪', u"和集合"},
    {u'∩', u"共通集合"},
    {u'∧', u"論理積"},
    {u'∨', u"論理和"},
    {u'￢', u"否定"},
    {u'⇒', u"右二重矢印"},
    {u'⇔', u"左右二重矢印"},
    {u'∀', u"すべての"},
    {u'∃', u"存在する"},
    {u'∠', u"角度の記号"},
    {u'⊥', u"垂直"},
    {u'⌒', u"弧"},
    {u'∂', u"偏微分"},
    {u'∇', u"ナブラ"},
    {u'≪', u"非常に小さい"},
    {u'≫', u"非常に大きい"},
    {u'∽', u"相似"},
    {u'∝', u"比例"},
    {u'∫', u"積分"},
    {u'∬', u"二重積分"},
    {u'∮', u"周回積分"},
    {u'∟', u"直角"},
    {u'⊿', u"直角三角"},
    {u'Å', u"オングストローム"},
    {u'†', u"短剣"},
    {u'‡', u"二重短剣"},
    {u'¶', u"段落"},
    {u'°', u"度の記号"},
    {u'℃', u"摂氏の度"},
    {u'′', u"分の記号"},
    {u'″', u"秒の記号"},
    {u'〓', u"げた"},
    {u'￤', u"破断線"},
    {u'№', u"ナンバー"},
    {u'㏍', u"ケーケー"},
    {u'℡', u"電話"},
    {u'㊤', u"丸のうえ"},
    {u'㊥', u"丸のなか"},
    {u'㊦', u"丸のした"},
    {u'㊧', u"丸のひだり"},
    {u'㊨', u"丸のみぎ"},
    {u'㈱', u"カッコ株"},
    {u'㈲', u"カッコ有"},
    {u'㈹', u"カッコ代"},
    {u'㍾', u"年号の明治"},
    {u'㍽', u"年号の大正"},
    {u'㍼', u"年号の昭和"},
    {u'㍻', u"年号の平成"},
    {u'㍉', u"単位のミリ"},
    {u'㌔', u"単位のキロ"},
    {u'㌢', u"単位のセンチ"},
    {u'㍍', u"単位のメートル"},
    {u'㌘', u"単位のグラム"},
    {u'㌧', u"単位のトン"},
    {u'㌃', u"単位のアール"},
    {u'㌶', u"単位のヘクタール"},
    {u'㍑', u"単位のリットル"},
    {u'㍗', u"単位のワット"},
    {u'㌍', u"単位のカロリー"},
    {u'㌦', u"単位のドル"},
    {u'㌣', u"単位のセント"},
    {u'㌫', u"単位のパーセント"},
    {u'㍊', u"単位のミリバール"},
    {u'㌻', u"単位のページ"},
    {u'㎜', u"単位のミリメートル"},
    {u'㎝', u"単位のセンチメートル"},
    {u'㎞', u"単位のキロメートル"},
    {u'㎎', u"単位のミリグラム"},
    {u'㎏', u"単位のキログラム"},
    {u'㏄', u"単位のシーシー"},
    {u'㎡', u"単位の平方メートル"},
    {u'\uFFFD', u"文字化け"},
};

constexpr const char16_t* kGreek[] = {u"アルファ",   u"ベータ", u"ガンマ",       u"デルタ", u"イプシロン",
                                      u"ゼータ",     u"イータ", u"シータ",       u"イオタ", u"カッパ",
                                      u"ラムダ",     u"ミュー", u"ニュー",       u"クサイ", u"オミクロン",
                                      u"パイ",       u"ロー",   u"語末のシグマ", u"シグマ", u"タウ",
                                      u"ユプシロン", u"ファイ", u"カイ",         u"プサイ", u"オメガ"};

constexpr const char16_t* kRussian[] = {
    u"アー",         u"ベー",     u"ヴェー",   u"ゲー", u"デー",     u"イェー",     u"ジェー", u"ゼー",
    u"イー",         u"短いイー", u"カー",     u"エル", u"エム",     u"エヌ",       u"オー",   u"ペー",
    u"エル、巻き舌", u"エス",     u"テー",     u"ウー", u"エフ",     u"ハー",       u"ツェー", u"チェー",
    u"シャー",       u"シシャー", u"硬音記号", u"ウィ", u"軟音記号", u"逆さのエー", u"ユー",   u"ヤー"};

// The shapes in the order of the code page; the thin ones, then the thick ones.
constexpr TextView kLines = u"─│┌┐┘└├┬┤┴┼━┃┏┓┛┗┣┳┫┻╋";
constexpr const char16_t* kLineNames[] = {u"横", u"縦", u"左上", u"右上", u"右下", u"左下",
                                          u"左", u"上", u"右",   u"下",   u"十字"};

Text numbered(const char16_t* head, int value) {
  const std::string digits = std::to_string(value);
  return head + Text(digits.begin(), digits.end());
}

Text letterOf(const char16_t* script, bool capital, const char16_t* name) {
  return Text(script) + (capital ? u"大文字" : u"小文字") + name;
}

// A sign of a row with names in order; empty where it is of none.
Text rowName(char16_t sign) {
  if (sign >= u'Α' && sign <= u'Ω') return letterOf(u"ギリシャ", true, kGreek[sign - u'Α']);
  if (sign >= u'α' && sign <= u'ω') return letterOf(u"ギリシャ", false, kGreek[sign - u'α']);
  if (sign == u'Ё' || sign == u'ё') return letterOf(u"ロシア", sign == u'Ё', u"ヨー");
  if (sign >= u'А' && sign <= u'Я') return letterOf(u"ロシア", true, kRussian[sign - u'А']);
  if (sign >= u'а' && sign <= u'я') return letterOf(u"ロシア", false, kRussian[sign - u'а']);
  if (sign >= u'①' && sign <= u'⑳') return numbered(u"丸の", sign - u'①' + 1);
  if (sign >= u'Ⅰ' && sign <= u'Ⅻ') return numbered(u"ローマ数字大文字", sign - u'Ⅰ' + 1);
  if (sign >= u'ⅰ' && sign <= u'ⅻ') return numbered(u"ローマ数字小文字", sign - u'ⅰ' + 1);
  const std::size_t line = kLines.find(sign);
  if (line == TextView::npos) return {};
  constexpr std::size_t shapes = std::size(kLineNames);
  return Text(line < shapes ? u"細い罫線、" : u"太い罫線、") + kLineNames[line % shapes];
}

}  // namespace

Text signName(char16_t sign) {
  const auto* known = std::find_if(std::begin(kNames), std::end(kNames), [&](const Name& n) { return n.sign == sign; });
  if (known != std::end(kNames)) return known->name;
  if (Text name = rowName(sign); !name.empty()) return name;
  const Sign& common = signOf(sign);
  if (common.sign != 0) return common.name;
  Text words = u"記号、ユニコード";
  for (int shift = 12; shift >= 0; shift -= 4) {
    words += u' ';
    words += u"0123456789ABCDEF"[(sign >> shift) & 0xF];
  }
  return words;
}

}  // namespace zelko
