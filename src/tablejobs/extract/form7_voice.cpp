// What the form of the conditions says.
#include "platform/text/number.h"
#include "tablejobs/extract/form7.h"
#include "voice/names.h"
#include "voice/narration.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr TextView kExplanation =
    u"検索条件ヒョウの検索条件に合致する記録を探し、"
    u"その記録だけを抽出し,新しいﾌｧｲﾙを作ります｡検索条件表を埋めて下さい。"
    u"ヒョウには条件番号に続いて、条件比較が文字ﾃﾞｰﾀとして行うか、"
    u"数値として行うかをLまたはＮで指定する判断ﾀｲﾌﾟ欄、"
    u"検索対象になる項目番号を記入する、判断ﾃﾞｰﾀ項目番号欄、関係演算記号を記入する比較判断記号欄、"
    u"検索条件を記述する条件欄があります。"
    u"条件番号１のｷﾞｮｳの各欄に、Ｌ、３、イコール、山田,と記述した場合、第３項目が山田と記入されている、"
    u"記録を抽出します。"
    u"比較判断記号欄には大小比較記号、イコール、ｶｸｶｯｺとｶｸｶｯｺ閉じる、および縦線,が使用できます。"
    u"大小比較記号は"
    u"文字型比較の場合文字コードの大小で比較されます。"
    u"ｶｸｶｯｺは条件欄に記述されるﾃｷｽﾄを含む場合という意味、ｶｸｶｯｺ閉じは、含まないという意味です。"
    u"縦線は、条件欄のﾃｷｽﾄをひな型にして比べます。アスタリスクは何文字でも、"
    u"クエスチョンマークはどんな一文字でも、シャープは数字一文字に、"
    u"ｶｸｶｯｺとｶｸｶｯｺ閉じるで囲んだ文字は、そのどれか一文字に当てはまります。"
    u"数値型の条件欄に、アットマークに続けて項目番号を書くと、同じ記録のその項目の数値と比べます。"
    u"アットマーク３アスタリスク２のような式も書けます。"
    u"なん条件も設定できます、条件ヒョウの行数を増やして記述してください、"
    u"すべての条件に合致した記録が抽出されます。"
    u"なお逐一・自動チェックﾎﾞｯｸｽがノーチェックの時は、抽出するかスキップかを聞いてくるので、"
    u"抽出またはskipﾎﾞﾀﾝを押して下さい。";

// What each column is for, behind the state of its cell.
constexpr TextView kColumns[] = {
    u"ｹﾝｻｸﾋｮｳﾆ　ｼﾞｮｳｹﾝをｷﾆｭｳして　ください ",
    u"ﾓｼﾞﾄｼﾃ ﾋｶｸｽﾙﾄｷﾜ Ｌ､ｽｳﾁﾄｼﾃ ﾋｶｸｽﾙﾄｷﾜ Ｎ､ﾄ ﾆｭｳﾘｮｸｼﾃｸﾀﾞｻｲ",
    u"ﾊﾝﾀﾞﾝﾉ対象二なるﾃﾞｰﾀの書かれているｺｳﾓｸﾊﾞﾝｺﾞｳ　ｦ ﾆｭｳﾘｮｸｼﾃｸﾀﾞｻｲ。ｿﾉｺｳﾓｸｦ ｼﾗﾍﾞ　ｶﾞｲﾄｳｽﾚﾊﾞ　ｿﾉｷﾞｮｳを　ﾁｭｳｼｭﾂｼﾏｽ　",
    u"比較判断し､ダイショウ､イコール､コのジガタの左右かっこ　ﾀﾃﾎﾞｳ符号とケンサク文字列を使ってキジュツしてください",
    u"ﾋｶｸｽﾙ ﾓｼﾞﾏﾀﾜ ｽｳﾁｦ ﾆｭｳﾘｮｸｼﾃｸﾀﾞｻｲ。ｽｳﾁｶﾞﾀﾃﾞﾜ､ｱｯﾄﾏｰｸﾄ ｺｳﾓｸﾊﾞﾝｺﾞｳﾃﾞ ﾎｶﾉｺｳﾓｸﾉ ｽｳﾁﾄ ｸﾗﾍﾞﾗﾚﾏｽ",
};

}  // namespace

// In front of the words for the cell what it holds, and the row where it is another one.
Text Form7::cellSentence(int row, int col) {
  const Text cell = Grid1.cell(row, col);
  Text sentence = row == saidRow_ ? Text() : u"条件番号" + decimal(row) + markPause;
  saidRow_ = row;
  if (!cell.empty()) sentence += cell + markPause;
  return sentence + u"セルニュウリョクテキストボックス" + markPause + heading(col).caption() + markStop +
         u"ｦ　ﾆｭｳﾘｮｸｼﾃｸﾀﾞｻｲ";
}

Text Form7::cellState() const {
  const Text cell = cells_.textAt(cells_.row(), cells_.col());
  return (cell.empty() ? Text(u"ｲﾏﾉ セル ﾜ ﾌﾞﾗﾝｸﾃﾞｽ") : cell) + u"　条件ﾊﾞﾝｺﾞｳ" + decimal(cells_.row()) + markStop +
         Text(kColumns[0]) + markStop + Text(kColumns[cells_.col()]);
}

void Form7::narrate() {
  Text1.onGotFocus = [this] {
    saidRow_ = 0;
    if (talkMode != 0) talkS(*this, cellSentence(cells_.row(), cells_.col()));
  };
  Text1.onKeyUp = [this](KeyEvent& key) {
    if (!isRepeatKey(key)) return talkTextKey(key.code, key.mask, 0, {});
    if (talkMode != 0) talkS(*this, cellState());
  };
  Narration voice(*this);
  voice.explain(markStop + Text(kExplanation));
  for (CheckBox* box : {&Check1, &Check2, &Check3}) voice.check(*box, u"ﾁｪｯｸﾎﾞｯｸｽ");
  voice.say(Command1, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ").say(Command4, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ");
  voice.say(Command2, [this] { return extraction_.stopSentence(); });
  voice.say(Command3, [this] { return extraction_.candidateSentence(); });
}

}  // namespace zelko
