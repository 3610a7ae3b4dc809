// What the hearer gets: each row a text and its sound.
#include "speech/kana.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <chrono>
#include <random>

#include "speech/utterance.h"

using namespace zelko;

namespace {

struct Row {
  const char* text;
  const char* kana;
};

std::string kanaOf(TextView text) {
  static Dictionary dictionary;
  return toUtf8(kanaForSpeech(text, dictionary));
}

void check(std::initializer_list<Row> rows) {
  for (const Row& row : rows) {
    CAPTURE(row.text);
    CHECK(kanaOf(fromUtf8(row.text)) == row.kana);
  }
}

bool isSpeakable(char16_t unit) {
  return unit == u' ' || unit == u'、' || unit == u'。' || unit == u'？' ||
         (unit >= u'ァ' && unit <= u'ー' && unit != u'・');
}

}  // namespace

TEST_CASE("sentences of the program") {
  check({
      {"鈴木花子。ギョウ12 項目1氏名", "スズキ ハナコ。ギョウ ジュウニ コーモク イチ、シメイ"},
      {"ﾌﾞﾗﾝｸ  ｷﾞｮｳ1 ｺｳﾓｸ2住所", "ブランク ギョウ イチ コウモク ニ、ジューショ"},
      {"ギョウ3/項目2/東京､データ入力ﾃｷｽﾄﾎﾞｯｸｽ",
       "ギョウ サン、コーモク ニ、トーキョー、データ ニューリョク テキストボックス"},
      {"､ﾌｧｲﾙ名は/home/太郎/住所録.txt",
       "ファイルメイワ スラッシュ ホーム スラッシュ タロー スラッシュ ジューショロク ドット テキスト"},
      {"ｲﾏﾉ ｺｳﾓｸﾉ ｷｿﾞﾝﾃﾞｰﾀｦ ﾖﾐｱｹﾞﾏｼﾀ。", "イマノ コウモクノ キゾンデータオ ヨミアゲマシタ。"},
      {"ｶﾞｾﾝﾀｸｻﾚﾃｲﾏｽ.ｶｰｿﾙﾜ ﾖﾐｱｹﾞｹﾞﾝｺｳﾉ  ﾊｼﾞﾒﾆ ｱﾘﾏｽ",
       "ガセンタクサレテイマス。カーソルワ ヨミアゲゲンコウノ ハジメニ アリマス"},
      {"は ざん8バイト", "ハ ザン ハチバイト"},
      {"ｾﾞﾝｶｸ ５", "ゼンカク ゴ"},
      {"全項目ｷﾆｭｳｺｳﾓｸわ.IDｺｳﾓｸ.", "ゼン コーモク キニュウコウモクワ。アイディー コウモク。"},
      {"。はい､わＹ、いいえ、わＮ、ｷｬﾝｾﾙ　わ　esc　を　叩きます",
       "ハイ、ワ ワイ、イーエ、ワ エヌ、キャンセル、ワ、エスケープ、オ、タタキマス"},
      {"先頭ぎょう1もじめキャレット東京都", "セントー ギョウ イチモジメ キャレット トーキョート"},
      {"行、項目番号付き読み上げ", "ギョウ、コーモク バンゴーツキ ヨミアゲ"},
      {"Zelko終了しますか？", "ゼルコ シューリョー シマスカ？"},
      {"保存しますか?[はい](Y)､ｺﾏﾝﾄﾞぼたん", "ホゾン シマスカ？ハイ、ワイ、コマンド ボタン"},
      {"Zelkoは､1行254文字を区切り", "ゼルコワ、イチギョウ ニヒャクゴジュウヨンモジオ クギリ"},
  });
}

TEST_CASE("numbers and counters") {
  check({
      {"123", "ヒャクニジュウサン"},
      {"0", "ゼロ"},
      {"300 600 800 1000 3000 8000", "サンビャク ロッピャク ハッピャク セン サンゼン ハッセン"},
      {"10000", "イチマン"},
      {"1000万", "イッセンマン"},
      {"5万3千円", "ゴマン サンゼンエン"},
      {"9999999999999999",
       "キュウセンキュウヒャクキュウジュウキュウチョウ キュウセンキュウヒャクキュウジュウキュウオク "
       "キュウセンキュウヒャクキュウジュウキュウマン キュウセンキュウヒャクキュウジュウキュウ"},
      {"12345678901234567", "イチ ニー サン ヨン ゴー ロク ナナ ハチ キュウ ゼロ イチ ニー サン ヨン ゴー ロク ナナ"},
      {"007", "ゼロ ゼロ ナナ"},
      {"1,234", "センニヒャクサンジュウヨン"},
      {"1,23", "イチ、ニジュウサン"},
      {"-5", "マイナス ゴ"},
      {"０．５", "レイテンゴ"},
      {"10.25", "ジュッテンニゴ"},
      {"３月 ２０日 ４月1日 1日", "サンガツ ハツカ シガツ ツイタチ イチニチ"},
      {"4時 7時 9時 3分 4分 8分", "ヨジ シチジ クジ サンプン ヨンプン ハップン"},
      {"1回 6件 8個 10項目 3階 100回", "イッカイ ロッケン ハッコ ジュッコウモク サンガイ ヒャッカイ"},
      {"1本 3本 4本 6本", "イッポン サンボン ヨンホン ロッポン"},
      {"1人 2人 4人 14円 20歳", "ヒトリ フタリ ヨニン ジュウヨエン ハタチ"},
      {"1回目 5分間 1時間半 3年後半", "イッカイメ ゴフンカン イチジカンハン サンネン コーハン"},
      {"三百円 二十日 八百屋 千葉", "サンビャクエン ハツカ ヤオヤ チバ"},
      {"2026-01-05 10:05", "ニセンニジュウロクネン イチガツ イツカ ジュウジ ゴフン"},
      {"〒123-4567", "ユウビンバンゴウ イチ ニー サン ノ ヨン ゴー ロク ナナ"},
      {"03-1234-5678", "ゼロ サン ノ イチ ニー サン ヨン ノ ゴー ロク ナナ ハチ"},
      {"1-2-3", "イチ ノ ニ ノ サン"},
      {"1-255", "イチ ノ ニヒャクゴジュウゴ"},
      {"￥1,980 100% 5kg", "センキュウヒャクハチジュウエン ヒャクパーセント ゴキログラム"},
  });
}

TEST_CASE("letters, signs and rare characters") {
  check({
      {"ＡＢＣ abc Enter", "エービーシー エービーシー エンター"},
      {"tanaka@example.com", "タナカ アットマーク エグザンプル ドット コム"},
      {"髙島屋 﨑山 𠮷野家", "タカシマヤ サキヤマ ヨシノヤ"},
      {"①㈱", "イチ カブシキガイシャ"},
      {"1～5 A→B 10×20", "イチ カラ ゴ エー ミギヤジルシ ビー ジュウ カケル ニジュウ"},
      {"ﾌﾟﾘﾝﾀｰ ｳﾞｧｲｵﾘﾝ ｦ", "プリンター ヴァイオリン オ"},
      {"サ－ビス いすゞ 佐々木", "サービス イスズ ササキ"},
      {"私は東京へ本を", "ワタシワ トーキョーエ ホンオ"},
      {"へ", "ヘ"},
      {"｢", "カギカッコハジメ"},
      {"文中に｢,｣がある", "ブンチューニ、コンマ、ガアル"},
      {"挿入(&H) 処理×処理 ○×△", "ソーニュー、エッチ、ショリ カケル ショリ マル バツ サンカク"},
      {"結果----表 読込 設定値 値 F値", "ケッカ、ヒョウ ヨミコミ セッテイチ アタイ エフ チ"},
      {"記録1項目2へ", "キロク イチ、コーモク ニエ"},
      {"。", "マル"},
      {"----------", "ハイフン"},
      {"ﾟ", "ハンダクテン"},
      {"", ""},
      {"  　 ", ""},
      {"\x01\x1b\x7f\n\t", ""},
      {"あ\x07い\r\nう", "アイ、ウ"},
  });
}

TEST_CASE("every typed kanji is heard") {
  for (const char* kanji : {"亜", "挨", "彁", "駆", "蒔"}) CHECK_FALSE(kanaOf(fromUtf8(kanji)).empty());
}

TEST_CASE("any input becomes something an engine can say") {
  std::mt19937 random(20260105);
  const TextView pool =
      u"0189,.-/:¥$%()　 aZxはへアｱﾞﾟ゛ー三百円二十日月年分本人つ件目間前後〇①髙。､?～々〆ゝ\xD842\xDFB7\n";
  for (int round = 0; round < 3000; ++round) {
    Text text;
    for (auto left = random() % 20; left > 0; --left)
      text += random() % 4 != 0 ? pool[random() % pool.size()] : static_cast<char16_t>(random());
    static Dictionary dictionary;
    const Text kana = kanaForSpeech(text, dictionary);
    CAPTURE(toUtf8(kana));
    CHECK(std::all_of(kana.begin(), kana.end(), isSpeakable));
  }
}

TEST_CASE("a long text takes its time once, and is cut at a word") {
  for (TextView unit : {u"カ", u"ｶﾞ", u"三", u"1/", u"東京1､"}) {
    Text text;
    while (text.size() < 300000) text += unit;
    CAPTURE(toUtf8(unit));
    const auto start = std::chrono::steady_clock::now();
    CHECK(kanaOf(text).size() > text.size() / 4);
    CHECK(std::chrono::steady_clock::now() - start < std::chrono::seconds(8));
  }
  Dictionary dictionary;
  CHECK(kanaForSpeech(u"東京都の記録を読む", dictionary, 11) == u"トーキョートノ。イカ リャク");
  CHECK(kanaForSpeech(u"東京都の記録を読む", dictionary, 15) == u"トーキョートノ キロクオ ヨム");
  CHECK(longestKana(std::nullopt) == 3000);
  CHECK(longestKana(100) == 7800);
}

TEST_CASE("tags set the voice and are not spoken") {
  const Utterance slow = clipboardUtterance(u"＜速さ０＞速度調整0"), fast = clipboardUtterance(u"あ＜速さ９＞い");
  CHECK(slow.words == u"速度調整0");
  CHECK(slow.rate == -100);
  CHECK(fast.words == u"あい");
  CHECK(fast.speed == 9);
  CHECK(fast.rate == 100);
  CHECK_FALSE(clipboardUtterance(u"＜速さ＞").speed);
  CHECK(clipboardUtterance(u"＜速さ１").words == u"＜速さ１");
  CHECK(agentUtterance(u"\\Spd=500スピード2").words == u"スピード2");
  CHECK(agentUtterance(u"\\Spd=5003行").words == u"3行");
  CHECK(agentUtterance(u"\\Spd=0\\あ").rate < agentUtterance(u"\\Spd=6000\\あ").rate);
  CHECK(agentUtterance(u"\\PIT=0\\高さ1").pitch < agentUtterance(u"\\PIT=60000\\高さ2").pitch);
  CHECK_FALSE(agentUtterance(u"ファイル\\名").rate);
}
