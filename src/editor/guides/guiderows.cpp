#include "editor/guides/guides.h"

namespace zelko {

namespace {

constexpr GuideRow kAltRows[] = {
    {u"Command1", u"ｱﾙﾄﾌﾟﾗｽ", u"F", u"ﾌｧｲﾙﾒﾆｭｰ(読み込み.印字等)"},
    {u"Command2", u"ｱﾙﾄﾌﾟﾗｽ", u"J", u"項目移動ﾒﾆｭｰ"},
    {u"Command3", u"ｱﾙﾄﾌﾟﾗｽ", u"Y", u"ｸﾘｯﾌﾟ貼り付けﾒﾆｭｰ"},
    {u"Command4", u"ｱﾙﾄﾌﾟﾗｽ", u"K", u"表ﾃﾞｻﾞｲﾝの変更ﾒﾆｭｰ"},
    {u"Command5", u"ｱﾙﾄﾌﾟﾗｽ", u"H", u"編集1ﾒﾆｭｰ(記録や項目の挿入削除)"},
    {u"Command6", u"ｱﾙﾄﾌﾟﾗｽ", u"E", u"編集2ﾒﾆｭｰ(文字変換、置換､並べ替え等)"},
    {u"Command7", u"ｱﾙﾄﾌﾟﾗｽ", u"S", u"統計処理ﾒﾆｭｰ"},
    {u"Command8", u"ｱﾙﾄﾌﾟﾗｽ", u"P", u"その他ﾃﾞｰﾀ利用ﾒﾆｭｰ(採点､宛名ｼｰﾙ)"},
    {u"Command9", u"ｱﾙﾄﾌﾟﾗｽ", u"O", u"ﾊﾞﾘｴｰｼｮﾝﾌｧｲﾙ作成ﾒﾆｭｰ(抽出､並べ替えﾌｧｲﾙ等)"},
    {u"Command10", u"ｱﾙﾄﾌﾟﾗｽ", u"T", u"電話ﾒﾆｭｰ"},
    {u"Command11", u"ｱﾙﾄﾌﾟﾗｽ", u"L", u"ｷｰ操作一覧等ﾒﾆｭｰ"},
    {u"Command12", u"ｱﾙﾄﾌﾟﾗｽ", u"Z", u"ﾍﾙﾌﾟﾒﾆｭｰ"},
    {u"Command13", u"ｼﾌﾄﾌﾟﾗｽｺﾝﾄﾛｰﾙ", u"A", u"ﾌｫｰｶｽのあるﾌｫｰﾑのﾀｲﾄﾙ読み上げ､ﾌｫｰﾑの説明｡全ﾌｫｰﾑでｻﾎﾟｰﾄ"},
    {u"Command14", u"ｼﾌﾄﾌﾟﾗｽｺﾝﾄﾛｰﾙ", u"S",
     u"入力場面では､ﾌｫｰｶｽのあるｺﾝﾄﾛｰﾙの種類､状態よみあげと教示｡範囲指定中では､いまの範囲指定状態を､項目番号と記録番号で"
     u"案内"},
    {u"Command15", u"ｼﾌﾄﾌﾟﾗｽｺﾝﾄﾛｰﾙ", u"D",
     u"入力場面では､既存のｾﾙ内のﾃﾞｰﾀ読み上げ｡範囲指定中でも､いまの範囲指定ｶｰｿﾙのある項目の内容を読む"},
    {u"Command16", u"ｼﾌﾄﾌﾟﾗｽｺﾝﾄﾛｰﾙ", u"Q",
     u"編集中のﾌｧｲﾙ名､記録数等を読み上げ・範囲指定中では範囲指定操作中に範囲指定内の全ﾃｷｽﾄを読む"},
    {u"Command17", u"ｼﾌﾄﾌﾟﾗｽｺﾝﾄﾛｰﾙ", u"W", u"いまのｾﾙの記録番号読み上げ"},
    {u"Command18", u"ｼﾌﾄﾌﾟﾗｽｺﾝﾄﾛｰﾙ", u"E", u"書き込み項目の指定状態､入力字数制限状態の音声案内"},
    {u"Command19", u"ｱﾙﾄﾌﾟﾗｽ", u"G", u"常時表示項目の読み上げ(ﾃﾞｰﾀ入力場面のみ)"},
    {u"Command20", u"ｼﾌﾄﾌﾟﾗｽｺﾝﾄﾛｰﾙ", u"R", u"今のｾﾙの項目番号、項目名､配置の音声案内"},
    {u"Command21", u"ﾌｧﾝｸｼｮﾝ", u"F12", u"現在入力ﾃｷｽﾄｷｬﾚｯﾄ位置"},
    {u"Command24", u"ｱﾙﾄﾌﾟﾗｽｼﾀﾔｼﾞﾙｼ", u"↓", u"記録範囲指定開始"},
    {u"Command25", u"ｱﾙﾄﾌﾟﾗｽｳｴﾔｼﾞﾙｼ", u"↑", u"記録範囲指定開始"},
    {u"Command26", u"ｱﾙﾄﾌﾟﾗｽ", u"N", u"現在ｾﾙﾃｷｽﾄ読み上げ"},
    {u"Command27", u"ｱﾙﾄﾌﾟﾗｽ", u"M", u"現在行ﾃｷｽﾄ読み上げ"},
    {u"Command31", u"ｱﾙﾄﾌﾟﾗｽ", u"矢印", u"結果表示の窓で､表をｾﾙごとに読み上げ"},
    {u"Command28", u"ｼﾌﾄﾌﾟﾗｽｺﾝﾄﾛｰﾙ", u"N", u"同じ条件で前を検索"},
    {u"Command29", u"ｼﾌﾄﾌﾟﾗｽｺﾝﾄﾛｰﾙ", u"H", u"検索件数と何件目か"},
    {u"Command30", u"ｼﾌﾄﾌﾟﾗｽｺﾝﾄﾛｰﾙ", u"K",
     u"ｷｬﾚｯﾄ位置の文字の詳細読み､続けてもう一度叩くと文字ｺｰﾄﾞと画数｡全ﾃｷｽﾄﾎﾞｯｸｽでｻﾎﾟｰﾄ｡移動だけで漢字を読ませるには､読"
     u"み上げﾒﾆｭｰで"
     u"ﾁｪｯｸ"},
};

constexpr GuideRow kCtrlRows[] = {
    {u"Command1", u"ｺﾝﾄﾛｰﾙﾌﾟﾗｽ", u"↑", u"記録先頭へ"},
    {u"Command2", u"ｺﾝﾄﾛｰﾙﾌﾟﾗｽ", u"↓", u"記録末へ"},
    {u"Command3", u"ｺﾝﾄﾛｰﾙﾌﾟﾗｽ", u"→", u"最終項目へ"},
    {u"Command4", u"ｺﾝﾄﾛｰﾙﾌﾟﾗｽ", u"←", u"先頭項目へ"},
    {u"Command5", u"ｺﾝﾄﾛｰﾙﾌﾟﾗｽ", u"K", u"記録削除"},
    {u"Command6", u"ｺﾝﾄﾛｰﾙﾌﾟﾗｽ", u"G", u"記録挿入"},
    {u"Command7", u"ｺﾝﾄﾛｰﾙﾌﾟﾗｽ", u"J", u"記録ジャンプ"},
    {u"Command8", u"ｺﾝﾄﾛｰﾙﾌﾟﾗｽ", u"H", u"項目ジャンプ"},
    {u"Command9", u"ｺﾝﾄﾛｰﾙﾌﾟﾗｽ", u"B", u"入力字数制限/解除"},
    {u"Command10", u"ｺﾝﾄﾛｰﾙﾌﾟﾗｽ", u"W", u"ﾜｰﾌﾟﾛ風編集"},
    {u"Command11", u"ｺﾝﾄﾛｰﾙﾌﾟﾗｽ", u"F", u"書式によるﾃﾞｰﾀ書換"},
    {u"Command12", u"ｺﾝﾄﾛｰﾙﾌﾟﾗｽ", u"D", u"現項目ﾃﾞｰﾀ消去次項目へ"},
    {u"Command14", u"ｺﾝﾄﾛｰﾙﾌﾟﾗｽ", u"P", u"次記録第１項目へ"},
    {u"Command15", u"ｺﾝﾄﾛｰﾙﾌﾟﾗｽ　", u"0", u"現項目迄のﾃﾞｰﾀ横合計"},
    {u"Command16", u"ｺﾝﾄﾛｰﾙﾌﾟﾗｽ　", u"1", u"現記録迄のﾃﾞｰﾀ縦合計"},
    {u"Command17", u"ｺﾝﾄﾛｰﾙﾌﾟﾗｽ　", u"2", u"任意項目の偏差値記入"},
    {u"Command18", u"3から9", u"3", u"ﾕｰｻﾞ定義式値入力"},
    {u"Command19", u"3から9", u"9", u"ﾕｰｻﾞ定義式値入力"},
    {u"Command20", u"ｼﾌﾄﾌﾟﾗｽ", u"←", u"対角範囲指定開始"},
    {u"Command21", u"ｼﾌﾄﾌﾟﾗｽ", u"→", u"対角範囲指定開始"},
    {u"Command22", u"ｼﾌﾄﾌﾟﾗｽ", u"↑", u"対角範囲指定開始"},
    {u"Command23", u"ｼﾌﾄﾌﾟﾗｽ", u"↓", u"対角範囲指定開始"},
    {u"Command25", u"ｺﾝﾄﾛｰﾙﾌﾟﾗｽ", u"space", u"項目幅ちじめる"},
    {u"Command26", u"ｼﾌﾄﾌﾟﾗｽ", u"space", u"項目幅広げる"},
    {u"Command27", u"ｺﾝﾄﾛｰﾙﾌﾟﾗｽ", u"Y", u"挿入貼り付け"},
    {u"Command28", u"ｺﾝﾄﾛｰﾙﾌﾟﾗｽ", u"I", u"貼り付け取り消し"},
    {u"Command29", u"ｼﾌﾄﾌﾟﾗｽ", u"ｐａｇｅＤｏｗｎ", u"いまのﾌｫｰｶｽｺﾝﾄﾛｰﾙの入力案内ctrl+alt+Sと同機能"},
    {u"Command31", u"ｺﾝﾄﾛｰﾙﾌﾟﾗｽ", u"pageDown", u"最終行+1(新規行)へ"},
    {u"Command32", u"ｺﾝﾄﾛｰﾙﾌﾟﾗｽ", u"ｐａｇｅＵＰ", u"先頭行へ"},
    {u"Command33", u"ｺﾝﾄﾛｰﾙﾌﾟﾗｽ", u"A", u"常時表示項目設定/解除"},
    {u"Command34", u"ｼﾌﾄﾌﾟﾗｽ", u"ｐａｇｅＵＰ", u"いまのｾﾙの記録番号読み上げctrl+alt+Wと同機能"},
    {u"Command36", u"ｺﾝﾄﾛｰﾙﾌﾟﾗｽ", u"O", u"上書き貼り付け"},
    {u"Command37", u"ｺﾝﾄﾛｰﾙﾌﾟﾗｽ", u"L", u"項目名一覧ﾌｫｰﾑ表示"},
    {u"Command38", u"ｺﾝﾄﾛｰﾙﾌﾟﾗｽ", u"U", u"既存ﾃﾞｰﾀ入力ﾎﾞｯｸｽにｺﾋﾟｰ"},
    {u"command39", u"ｺﾝﾄﾛｰﾙﾌﾟﾗｽ", u"Insert", u"範囲指定中､ｸﾘｯﾌﾟﾌｧｲﾙ作成"},
    {u"Command40", u"ｺﾝﾄﾛｰﾙﾌﾟﾗｽ", u"N", u"同じ条件で次を検索"},
};

constexpr GuideRow kFunctionRows[] = {
    {u"Command1", u"", u"f1", u"ID自働"},       {u"Command2", u"", u"f2", u"記録並べ替え"},
    {u"Command3", u"", u"f3", u"検索"},         {u"Command4", u"", u"f4", u"置換"},
    {u"Command5", u"", u"f5", u"表ﾃﾞｻﾞｲﾝ"},     {u"Command6", u"", u"f6", u"全項目記入"},
    {u"Command7", u"", u"f7", u"記入項目指定"}, {u"Command8", u"", u"f8", u"式値入力/式設定"},
    {u"Command9", u"", u"f9", u"印字"},         {u"Command10", u"", u"f11", u"ﾃﾞｰﾀ読み上げ"},
    {u"Command13", u"", u"f12", u"キャレット"}, {u"Command14", u"", u"f10", u"未使用"},
};

constexpr GuideRow kShiftFunctionRows[] = {
    {u"Command1", u"ｼﾌﾄﾌﾟﾗｽ", u"f1", u"ｺ-ﾄﾞﾌｧｲﾙによる置換"},
    {u"Command2", u"ｼﾌﾄﾌﾟﾗｽ", u"f2", u"順序指定ﾌｧｲﾙによる並べ替え"},
    {u"Command3", u"ｼﾌﾄﾌﾟﾗｽ", u"f3", u"本日日付入力"},
    {u"Command4", u"ｼﾌﾄﾌﾟﾗｽ", u"f4", u"現在時間入力"},
    {u"Command5", u"ｼﾌﾄﾌﾟﾗｽ", u"f5", u"未使用"},
    {u"Command6", u"ｼﾌﾄﾌﾟﾗｽ", u"f6", u"ﾃﾞｰﾀ頻度"},
    {u"Command7", u"ｼﾌﾄﾌﾟﾗｽ", u"f7", u"度数分布"},
    {u"Command8", u"ｼﾌﾄﾌﾟﾗｽ", u"f8", u"未使用"},
    {u"Command9", u"ｼﾌﾄﾌﾟﾗｽ", u"f9", u"記録ｶｰﾄﾞ印字"},
    {u"Command10", u"ｺﾝﾄﾛｰﾙﾌﾟﾗｽ", u"f11", u"詳細読み上げ"},
    {u"Command13", u"ｺﾝﾄﾛｰﾙﾌﾟﾗｽ", u"f12", u"読み上げon/off"},
    {u"Command14", u"ｼﾌﾄﾌﾟﾗｽ", u"f12", u"読み上げ速度調整"},
    {u"Command15", u"ｼﾌﾄﾌﾟﾗｽ", u"f11", u"度数分布の形の読み上げ､続けて押すと音"},
};

constexpr GuideType kAlt = {
    u"frmALT",
    u"Alt,shift+ctrlｷｰの一覧",
    u"Alt,Ctrl,shift+ctrlｷｰを押しながら行うｼｮｰﾄｶｯﾄｷｰの一覧を音声案内します。"
    u"タブキーや矢印キーで、ボタンを移動すると、キーとその働きが読み上げられます。"
    u"CRキーで入力ボックスに戻ります。escキーで、この画面を消して戻ります。",
    u"Command22",
    u"Command23",
    kAltRows,
};

constexpr GuideType kCtrl = {
    u"frmCTRLK",
    u"ctrlまたはshiftｷｰの一覧",
    u"ctrlまたはshiftｷｰを押しながら行うｼｮｰﾄｶｯﾄｷｰの一覧を音声案内します。"
    u"タブキーや矢印キーで、ボタンを移動すると、キーとその働きが読み上げられます。"
    u"CRキーで入力ボックスに戻ります。escキーで、この画面を消して戻ります。",
    u"Command13",
    u"Command24",
    kCtrlRows,
};

constexpr GuideType kFunction = {
    u"frmFUNC",
    u"ファンクションｷｰの一覧",
    u"f1からf12のファンクションｷｰ機能を音声案内します。"
    u"タブキーや矢印キーで、ボタンを移動すると、キーとその働きが読み上げられます。"
    u"CRキーで入力ボックスに戻ります。escキーで、この画面を消して戻ります。",
    u"Command11",
    u"Command12",
    kFunctionRows,
};

constexpr GuideType kShiftFunction = {
    u"frmSFUNC",
    u"shiftまたはctrl+ファンクションｷｰの一覧",
    u"shiftまたはctrlｷｰを押しているときに働く、f1からf12のファンクションｷｰ機能を音声案内します。"
    u"タブキーや矢印キーで、ボタンを移動すると、キーとその働きが読み上げられます。"
    u"CRキーで入力ボックスに戻ります。escキーで、この画面を消して戻ります。",
    u"Command11",
    u"Command12",
    kShiftFunctionRows,
};

}  // namespace

const GuideType& altGuide() { return kAlt; }
const GuideType& ctrlGuide() { return kCtrl; }
const GuideType& functionGuide() { return kFunction; }
const GuideType& shiftFunctionGuide() { return kShiftFunction; }

}  // namespace zelko
