// What the form of the search says.
#include "platform/text/number.h"
#include "platform/text/sjis.h"
#include "store/records/records.h"
#include "store/table/cursor.h"
#include "tablejobs/search/searchform.h"
#include "voice/names.h"
#include "voice/narration.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr TextView kExplanation =
    u"検索文字列テキストﾎﾞｯｸｽに書かれた文字を検索します。"
    u"大文字小文字を区別して検索するか？等、各種のチェックﾎﾞｯｸｽで検索条件を設定して、"
    u"検索ﾎﾞﾀﾝをおして下さい。"
    u"検索文字列を見つけると、そこで表示がとまり、行、項目番号が読み上げられます。"
    u"検索終わりﾎﾞﾀﾝで、検索されたｾﾙにｶｰｿﾙが移動した状態で、入力画面に戻ります。"
    u"検索ﾎﾞﾀﾝを押すと、再び次の検索がはじまります。"
    u"また、検索全状態ﾎﾞﾀﾝを押すと、このﾌｫｰﾑがﾛｰﾄﾞされた時のｾﾙ位置にｶｰｿﾙが戻されて、"
    u"検索作業が終了します。"
    u"検索条件を指定するチェックボックスは４種類有ります。"
    u"ｱﾙﾄﾌﾟﾗｽSでﾌｫｰｶｽのあるチェックﾎﾞｯｸｽのキャプションがよまれますが、"
    u"後で読まれるﾅｲﾖｳｶﾞチエック状態を示します。"
    u"検索項目指定／全項目を指定チエックボックスの場合、全項目を指定、がチエック状態の検索条件です。"
    u"検討する項目テキストの中に検索文字列を含んでいれば、該当とみなすか、"
    u"テキスト全体が同じでなければならないか、現在項目より後方より検索をはじめるか、"
    u"前方からはじめるか？を指定するチエックボックス等があります。"
    u"すべて後読み項目が、チェックした場合の検索条件です。"
    u"なお、検索項目指定／全項目を検索チェックﾎﾞｯｸｽはﾊｼﾞﾒからチエック状態、すなわち、"
    u"全項目検索指定になっていますが、ノーチエックにした場合、検索項目番号を聞いてくるので、"
    u"検索する項目番号を入力してCRをたたいて下さい。"
    u"ＣＲのみをたたくと、現在の項目が項目番号としてしていされます。";
Text nameOf(int item) { return trimmed(itemName[static_cast<std::size_t>(item)]); }

Text wholeRecord() {
  takeRow(curRec);
  return trimmed(fromSjis(rowBytes(recCache[1])));
}

}  // namespace

Text frmSRCH::infG() const {
  Text words = u".検索条件/";
  words += Check1.value() == 1 ? Text(u"全項目検索") : u"項目番号" + Label2.caption() + nameOf(searchItem) + u"検索";
  words += Check2.value() == 1 ? u"､検出基準は検索文字列と一致する場合" : u"､検出基準は検索文字列を含む場合";
  words += Check3.value() == 1 ? u"､大文字　小文字を区別して検出" : u"､大文字　小文字を区別しないで検出";
  words += Check4.value() == 1 ? u"､先頭記録方向へ検索" : u"､記録末へ検索";
  if (Check5.value() == 1) words += u"､かなと全半角を区別しないで検出";
  return words;
}

Text frmSRCH::startOfSearch() const {
  return u"ｷﾞｮｳ" + decimal(curRec) + u"ｺｳﾓｸ" + decimal(curItem) + u"､" + nameOf(curItem) + infG();
}

void frmSRCH::narrate() {
  Text1.onKeyUp = [this](KeyEvent& key) {
    Text description;
    if (talkMode != 0 && isRepeatKey(key))
      description =
          u"検索文字列ﾃｷｽﾄﾎﾞｯｸｽ.ｹﾝｻｸ開始セル､" + startOfSearch() + u".現在のｷﾞｮｳ全体を読みます." + wholeRecord();
    talkTextKey(key.code, key.mask, 0, description);
  };
  Command1.onGotFocus = [this] {
    Timer1.setEnabled(false);
    talkS(*this, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ");
  };
  Command1.onKeyUp = [this](KeyEvent& key) {
    if (talkMode != 0 && isRepeatKey(key))
      talkS(*this, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ.クリックすると検索が開始されます、なお、ｹﾝｻｸ開始セルは､" + startOfSearch());
  };
  Narration voice(*this);
  voice.explain(markStop + Text(kExplanation));
  voice.say(Check1, u"ﾁｪｯｸﾎﾞｯｸｽ");
  for (CheckBox* box : {&Check2, &Check3, &Check4, &Check5}) voice.check(*box, u"ﾁｪｯｸﾎﾞｯｸｽ");
  voice.say(Command2, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ").say(Command3, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ");
}

}  // namespace zelko
