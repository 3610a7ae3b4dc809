#include "speech/latin.h"

#include <algorithm>

#include "speech/plain.h"

namespace zelko {

namespace {

constexpr const char16_t* kLetters[] = {u"エー",   u"ビー",       u"シー",     u"ディー", u"イー",  u"エフ",   u"ジー",
                                        u"エッチ", u"アイ",       u"ジェイ",   u"ケー",   u"エル",  u"エム",   u"エヌ",
                                        u"オー",   u"ピー",       u"キュー",   u"アール", u"エス",  u"ティー", u"ユー",
                                        u"ブイ",   u"ダブリュー", u"エックス", u"ワイ",   u"ゼット"};

struct Word {
  const char16_t* latin;  // lower case
  const char16_t* kana;
};

constexpr Word kWords[] = {
    {u"zelko", u"ゼルコ"},
    {u"ok", u"オーケー"},
    {u"enter", u"エンター"},
    {u"return", u"リターン"},
    {u"escape", u"エスケープ"},
    {u"esc", u"エスケープ"},
    {u"ctrl", u"コントロール"},
    {u"control", u"コントロール"},
    {u"ctr", u"コントロール"},
    {u"kekka", u"ケッカ"},
    {u"alt", u"オルト"},
    {u"shift", u"シフト"},
    {u"tab", u"タブ"},
    {u"insert", u"インサート"},
    {u"ins", u"インサート"},
    {u"delete", u"デリート"},
    {u"del", u"デリート"},
    {u"home", u"ホーム"},
    {u"end", u"エンド"},
    {u"page", u"ページ"},
    {u"up", u"アップ"},
    {u"down", u"ダウン"},
    {u"left", u"レフト"},
    {u"right", u"ライト"},
    {u"space", u"スペース"},
    {u"on", u"オン"},
    {u"off", u"オフ"},
    {u"yes", u"イエス"},
    {u"no", u"ノー"},
    {u"speek", u"スピーク"},
    {u"readonly", u"リードオンリー"},
    {u"read", u"リード"},
    {u"only", u"オンリー"},
    {u"window", u"ウィンドウ"},
    {u"windows", u"ウィンドウズ"},
    {u"agent", u"エージェント"},
    {u"msagent", u"エムエスエージェント"},
    {u"genie", u"ジーニー"},
    {u"robby", u"ロビー"},
    {u"peedy", u"ピーディー"},
    {u"merlin", u"マーリン"},
    {u"ver", u"バージョン"},
    {u"version", u"バージョン"},
    {u"txt", u"テキスト"},
    {u"text", u"テキスト"},
    {u"com", u"コム"},
    {u"net", u"ネット"},
    {u"mail", u"メール"},
    {u"user", u"ユーザー"},
    {u"users", u"ユーザーズ"},
    {u"root", u"ルート"},
    {u"name", u"ネーム"},
    {u"file", u"ファイル"},
    {u"data", u"データ"},
    {u"date", u"デート"},
    {u"sample", u"サンプル"},
    {u"example", u"エグザンプル"},
    {u"table", u"テーブル"},
    {u"time", u"タイム"},
    {u"test", u"テスト"},
    {u"note", u"ノート"},
    {u"memo", u"メモ"},
    {u"error", u"エラー"},
    {u"help", u"ヘルプ"},
    {u"menu", u"メニュー"},
    {u"sheet", u"シート"},
    {u"copy", u"コピー"},
    {u"print", u"プリント"},
    {u"stop", u"ストップ"},
    {u"desktop", u"デスクトップ"},
    {u"documents", u"ドキュメンツ"},
    {u"download", u"ダウンロード"},
    {u"downloads", u"ダウンロード"},
    {u"work", u"ワーク"},
    {u"one", u"ワン"},
    {u"the", u"ザ"},
    {u"and", u"アンド"},
    {u"site", u"サイト"},
    {u"game", u"ゲーム"},
    {u"some", u"サム"},
};

// Roman syllables: the consonant, and its row with a, i, u, e, o (a blank where Japanese has none).
struct Row {
  const char16_t* consonant;
  const char16_t* kana[5];
};

constexpr Row kRows[] = {
    {u"ky", {u"キャ", u"", u"キュ", u"", u"キョ"}},
    {u"sh", {u"シャ", u"シ", u"シュ", u"シェ", u"ショ"}},
    {u"ch", {u"チャ", u"チ", u"チュ", u"チェ", u"チョ"}},
    {u"ts", {u"", u"", u"ツ", u"", u""}},
    {u"ny", {u"ニャ", u"", u"ニュ", u"", u"ニョ"}},
    {u"hy", {u"ヒャ", u"", u"ヒュ", u"", u"ヒョ"}},
    {u"my", {u"ミャ", u"", u"ミュ", u"", u"ミョ"}},
    {u"ry", {u"リャ", u"", u"リュ", u"", u"リョ"}},
    {u"gy", {u"ギャ", u"", u"ギュ", u"", u"ギョ"}},
    {u"by", {u"ビャ", u"", u"ビュ", u"", u"ビョ"}},
    {u"py", {u"ピャ", u"", u"ピュ", u"", u"ピョ"}},
    {u"k", {u"カ", u"キ", u"ク", u"ケ", u"コ"}},
    {u"s", {u"サ", u"", u"ス", u"セ", u"ソ"}},
    {u"t", {u"タ", u"", u"", u"テ", u"ト"}},
    {u"n", {u"ナ", u"ニ", u"ヌ", u"ネ", u"ノ"}},
    {u"h", {u"ハ", u"ヒ", u"", u"ヘ", u"ホ"}},
    {u"f", {u"", u"", u"フ", u"", u""}},
    {u"m", {u"マ", u"ミ", u"ム", u"メ", u"モ"}},
    {u"y", {u"ヤ", u"", u"ユ", u"", u"ヨ"}},
    {u"r", {u"ラ", u"リ", u"ル", u"レ", u"ロ"}},
    {u"w", {u"ワ", u"", u"", u"", u""}},
    {u"g", {u"ガ", u"ギ", u"グ", u"ゲ", u"ゴ"}},
    {u"z", {u"ザ", u"", u"ズ", u"ゼ", u"ゾ"}},
    {u"j", {u"ジャ", u"ジ", u"ジュ", u"", u"ジョ"}},
    {u"d", {u"ダ", u"", u"", u"デ", u"ド"}},
    {u"b", {u"バ", u"ビ", u"ブ", u"ベ", u"ボ"}},
    {u"p", {u"パ", u"ピ", u"プ", u"ペ", u"ポ"}},
    {u"", {u"ア", u"イ", u"ウ", u"エ", u"オ"}},
};

Text lower(TextView word) {
  Text small(word);
  for (char16_t& unit : small)
    if (unit >= u'A' && unit <= u'Z') unit = static_cast<char16_t>(unit + 32);
  return small;
}

// Takes one syllable off the front of `rest`; empty where it is none.
Text syllable(TextView& rest) {
  for (const Row& row : kRows) {
    const TextView consonant = row.consonant;
    if (!rest.starts_with(consonant) || rest.size() == consonant.size()) continue;
    const std::size_t vowel = TextView(u"aiueo").find(rest[consonant.size()]);
    if (vowel == TextView::npos) continue;
    if (*row.kana[vowel] == 0) return Text();
    rest.remove_prefix(consonant.size() + 1);
    return row.kana[vowel];
  }
  return Text();
}

// Empty where the word is no Japanese in Roman spelling.
Text syllables(TextView rest) {
  constexpr TextView doubled = u"kstpgzbd";
  Text kana;
  while (!rest.empty()) {
    if (rest.size() > 2 && rest[0] == rest[1] && doubled.find(rest[0]) != TextView::npos) {
      kana += u'ッ';
      rest.remove_prefix(1);
    }
    if (const Text next = syllable(rest); !next.empty()) {
      kana += next;
    } else if (rest.front() == u'n' || rest.starts_with(u"mb") || rest.starts_with(u"mp")) {
      kana += u'ン';
      rest.remove_prefix(1);
    } else {
      return Text();
    }
  }
  return kana;
}

Text letterByLetter(TextView word) {
  Text kana;
  for (char16_t unit : word) kana += letterName(unit);
  return kana;
}

}  // namespace

TextView letterName(char16_t letter) { return kLetters[letter >= u'a' ? letter - u'a' : letter - u'A']; }

Text latinKana(TextView word) {
  const Text small = lower(word);
  for (const Word& known : kWords)
    if (small == known.latin) return known.kana;
  const bool capitals = std::all_of(word.begin(), word.end(), [](char16_t unit) { return unit <= u'Z'; });
  if (word.size() >= 4 && !capitals)
    if (const Text kana = syllables(small); !kana.empty()) return kana;
  return letterByLetter(small);
}

}  // namespace zelko
