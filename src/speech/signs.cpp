#include "speech/signs.h"

#include <algorithm>

#include "speech/plain.h"

namespace zelko {

namespace {

using enum SignRole;

constexpr Sign kSigns[] = {
    {u'。', stop, u"マル"},
    {u'｡', stop, u"マル"},
    {u'!', stop, u"カンタンフ"},
    {u'?', question, u"ギモンフ"},
    {u'、', pause, u"テン"},
    {u'､', pause, u"テン"},
    {u',', pause, u"コンマ"},
    {u';', pause, u"セミコロン"},
    {u':', pause, u"コロン"},
    {u'　', pause, u""},
    {u'(', pause, u"カッコハジメ"},
    {u')', pause, u"カッコトジ"},
    {u'[', pause, u"カクカッコハジメ"},
    {u']', pause, u"カクカッコトジ"},
    {u'{', pause, u"ダイカッコハジメ"},
    {u'}', pause, u"ダイカッコトジ"},
    {u'「', pause, u"カギカッコハジメ"},
    {u'」', pause, u"カギカッコトジ"},
    {u'｢', pause, u"カギカッコハジメ"},
    {u'｣', pause, u"カギカッコトジ"},
    {u'『', pause, u"ニジュウカギカッコハジメ"},
    {u'』', pause, u"ニジュウカギカッコトジ"},
    {u'【', pause, u"スミツキカッコハジメ"},
    {u'】', pause, u"スミツキカッコトジ"},
    {u'〔', pause, u"キッコウカッコハジメ"},
    {u'〕', pause, u"キッコウカッコトジ"},
    {u'〈', pause, u"ヤマカッコハジメ"},
    {u'〉', pause, u"ヤマカッコトジ"},
    {u'《', pause, u"ニジュウヤマカッコハジメ"},
    {u'》', pause, u"ニジュウヤマカッコトジ"},
    {u'…', pause, u"サンテンリーダ"},
    {u'‥', pause, u"ニテンリーダ"},
    {u'―', pause, u"ダッシュ"},
    {u'・', silent, u"ナカテン"},
    {u'･', silent, u"ナカテン"},
    {u'"', silent, u"ダブルコーテーション"},
    {u'\'', silent, u"シングルコーテーション"},
    {u'`', silent, u"アクセントマーク"},
    {u'´', silent, u"アクセントマーク"},
    {u'¨', silent, u"ウムラウト"},
    {u'〃', said, u"オナジク"},
    {u'仝', said, u"ドウ"},
    {u'々', said, u"クリカエシ"},
    {u'〆', said, u"シメ"},
    {u'.', pause, u"ピリオド"},
    {u'/', said, u"スラッシュ"},
    {u'\\', said, u"エン"},
    {u'¥', said, u"エン"},
    {u'$', said, u"ドル"},
    {u'¢', said, u"セント"},
    {u'£', said, u"ポンド"},
    {u'%', said, u"パーセント"},
    {u'#', said, u"シャープ"},
    {u'&', said, u"アンド"},
    {u'*', said, u"アスタリスク"},
    {u'@', said, u"アットマーク"},
    {u'+', said, u"プラス"},
    {u'-', said, u"ハイフン"},
    {u'=', said, u"イコール"},
    {u'<', said, u"ショウナリ"},
    {u'>', said, u"ダイナリ"},
    {u'^', said, u"ベキジョウ"},
    {u'_', said, u"アンダーバー"},
    {u'|', said, u"タテセン"},
    {u'∥', said, u"ニジュウタテセン"},
    {u'~', said, u"ナミセン"},
    {u'～', said, u"カラ"},
    {u'±', said, u"プラスマイナス"},
    {u'×', said, u"カケル"},
    {u'÷', said, u"ワル"},
    {u'≠', said, u"ノットイコール"},
    {u'≦', said, u"ショウナリイコール"},
    {u'≧', said, u"ダイナリイコール"},
    {u'≒', said, u"ニアリーイコール"},
    {u'≡', said, u"ゴウドウ"},
    {u'∞', said, u"ムゲンダイ"},
    {u'∴', said, u"ユエニ"},
    {u'∵', said, u"ナゼナラバ"},
    {u'√', said, u"ルート"},
    {u'∑', said, u"シグマ"},
    {u'Σ', said, u"シグマ"},
    {u'α', said, u"アルファ"},
    {u'β', said, u"ベータ"},
    {u'γ', said, u"ガンマ"},
    {u'π', said, u"パイ"},
    {u'μ', said, u"ミュー"},
    {u'χ', said, u"カイ"},
    {u'♂', said, u"オス"},
    {u'♀', said, u"メス"},
    {u'°', said, u"ド"},
    {u'℃', said, u"ド"},
    {u'′', said, u"フン"},
    {u'″', said, u"ビョウ"},
    {u'‰', said, u"パーミル"},
    {u'§', said, u"セクション"},
    {u'※', said, u"コメジルシ"},
    {u'〒', said, u"ユウビンバンゴウ"},
    {u'→', said, u"ミギヤジルシ"},
    {u'←', said, u"ヒダリヤジルシ"},
    {u'↑', said, u"ウエヤジルシ"},
    {u'↓', said, u"シタヤジルシ"},
    {u'○', said, u"マル"},
    {u'◯', said, u"オオマル"},
    {u'〇', said, u"マル"},
    {u'◎', said, u"ニジュウマル"},
    {u'●', said, u"クロマル"},
    {u'△', said, u"サンカク"},
    {u'▲', said, u"クロサンカク"},
    {u'▽', said, u"ギャクサンカク"},
    {u'▼', said, u"クロギャクサンカク"},
    {u'□', said, u"シカク"},
    {u'■', said, u"クロシカク"},
    {u'◇', said, u"ヒシガタ"},
    {u'◆', said, u"クロヒシガタ"},
    {u'☆', said, u"ホシ"},
    {u'★', said, u"クロボシ"},
    {u'♪', said, u"オンプ"},
    {u'♯', said, u"シャープ"},
    {u'♭', said, u"フラット"},
    {u'゛', said, u"ダクテン"},
    {u'゜', said, u"ハンダクテン"},
    {u'ー', said, u"チョウオン"},
    {u'〓', said, u"カンジ"},  // stands for a kanji that no dictionary holds
};

constexpr Sign kUnnamed{u'\0', said, u"キゴウ"};

}  // namespace

const Sign& signOf(char16_t sign) {
  const auto* found = std::find_if(std::begin(kSigns), std::end(kSigns), [&](const Sign& s) { return s.sign == sign; });
  return found == std::end(kSigns) ? kUnnamed : *found;
}

bool isSign(char16_t unit) {
  if (unit == u'゛' || unit == u'゜' || unit == u'・') return true;
  return unit != u' ' && !isDigit(unit) && !isLetter(unit) && !isHiragana(unit) && !isKatakana(unit) &&
         !isHalfWidthKana(unit) && !isKanji(unit) && unit != u'〆';
}

}  // namespace zelko
