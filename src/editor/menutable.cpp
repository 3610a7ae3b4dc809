#include "editor/menutable.h"

#include "editor/commands.h"
#include "platform/form.h"
#include "platform/host.h"

namespace zelko {

namespace {

constexpr MenuRow kRows[] = {
    {0, u"mnuFILE", u"ﾌｧｲﾙ(&F)"},
    {1, u"mnuNEW", u"新規作成(&N)"},
    {1, u"mnuREAD", u"読み込み(&O)"},
    {1, u"mnuCZLK", u"他ﾌｧｲﾙ読み込み:ｲﾝﾎﾟｰﾄ(&I)"},
    {1, u"mnuRESAS", u"別の名前で保存:ｴｸｽﾎﾟｰﾄ(&E)"},
    {1, u"mnuWPF", u"ﾜｰﾌﾟﾛﾌｧｲﾙに変換(&C)"},
    {1, u"mnuCSV", u"CSVﾌｧｲﾙに変換(&V)"},
    {1, u"mnuDEL", u"ﾌｧｲﾙ削除(&D)"},
    {1, u"mnuItemList", u"項目名一覧(&L)", 'L', shift::Ctrl},
    {1, u"mnuW", u"ワープロ風編集(&W)", 'W', shift::Ctrl},
    {1, u"mnuPRINT", u"印刷(&P)", key::function(9), shift::None},
    {1, u"mnuKOJIN", u"個人記録の打ち出し(&C)", key::function(9), shift::Shift},
    {1, u"mnuLAY", u"ﾚｲｱｳﾄ印刷(&L)", key::function(9), shift::Ctrl},
    {1, u"mnuFbt", u"書き込み禁止/解除設定(&F)"},
    {1, u"mnuEND", u"終了(&X)"},
    {0, u"mnuOfile", u"他ﾌｧｲﾙ参照(&B)"},
    {1, u"mnuREF", u"表示"},
    {1, u"mnuREFadd", u"追加・表示"},
    {1, u"mnuREFCLR", u"参照ファイルクリア", 0, shift::None, true},
    {0, u"dmmi", u"項目移動(&J)"},
    {1, u"mnuJUMP", u"記録ジャンプ(&R)", 'J', shift::Ctrl},
    {1, u"mnuHJ", u"項目ジャンプ(&I)", 'H', shift::Ctrl},
    {1, u"mnuEXTD", u"最終記録へ(ctrl + ↓,&L)"},
    {1, u"mnuNr", u"最終記録+1へ(ctrl+PageDown,&N)"},
    {1, u"mnuEXTTOP", u"記録先頭へ(ctrl + ↑/PageUp,&T)"},
    {1, u"mnuEXTR", u"最終項目へ(ctrl + →,&E)"},
    {1, u"mnuEXTL", u"先頭項目へ(ctrl + ←,&S)"},
    {1, u"mnuHOME", u"記録１項目１へ(&H)"},
    {0, u"mnuCLP", u"ｸﾘｯﾌﾟ操作(&Y)"},
    {1, u"mnuClip", u"copy(ｸﾘｯﾌﾟﾌｧｲﾙ作成&M)"},
    {1, u"mnuIPASTE", u"はりつけ･挿入(&I)", 'Y', shift::Ctrl},
    {1, u"mnuPAST", u"はりつけ･上書き(&W)", 'O', shift::Ctrl},
    {1, u"mnuDEPAST", u"はりつけ取り消し(&N)", 'I', shift::Ctrl},
    {1, u"mnuCC", u"ｸﾘｯﾌﾟﾌｧｲﾙをｸﾘｯﾌﾟﾎﾞｰﾄﾞにｺﾋﾟｰ(&C)"},
    {0, u"mnuIDESIGN", u"表ﾃﾞｻﾞｲﾝ変更(&K)"},
    {1, u"mnuKOUMOKU", u"表ﾃﾞｻﾞｲﾝの全体的変更", key::function(5), shift::None},
    {1, u"mnuFLN", u"項目幅変更(shiftまたはctrl+ｽﾍﾟｰｽ)"},
    {1, u"mnuRL", u"配置（ＲまたはＬ）の変更"},
    {1, u"mnuITEMINS", u"項目の挿入の仕方"},
    {1, u"mnuITEMDEL", u"項目の削除の仕方"},
    {1, u"mnuITEMMOVE", u"項目の移動の仕方"},
    {0, u"mnuEDIT", u"編集1(&H)"},
    {1, u"mnuINSREC1", u"１記録挿入(Ctrl+Shift+Ins,&I)"},
    {1, u"mnuINSRECM", u"複数記録挿入(記録範囲指定直後Ins)", 'G', shift::Ctrl},
    {1, u"mnuINSITEM", u"項目挿入(項目範囲指定直後Ins,&L)"},
    {1, u"mnuKILLREC1", u"１記録削除(記録範囲指定直後Del,&K)"},
    {1, u"menuRKILL", u"記録の削除(記録範囲指定直後Del）", 'K', shift::Ctrl},
    {1, u"mnuKILLITEM", u"項目の削除(項目範囲指定直後+Del)"},
    {1, u"mnuMREC", u"記録移動(記録範囲直後、ﾎﾟｲﾝﾀ指定､CR)"},
    {1, u"mnuMITEM", u"項目移動(項目範囲直後、ﾎﾟｲﾝﾀ指定､CR)"},
    {1, u"mnuZDEL", u"範囲ﾃﾞｰﾀ消去(範囲指定直後､Del,&D)"},
    {0, u"mnuFE", u"編集2(&E)"},
    {1, u"mnuCTRLU", u"既存ﾃﾞｰﾀ入力boxへ(&U)", 'U', shift::Ctrl},
    {1, u"mnuCOPY", u"ﾃﾞｰﾀｺﾋﾟｰ(範囲指定直後､矢印､その後ﾎﾟｲﾝﾀ指定､CR)"},
    {1, u"mnuMOVE", u"ﾃﾞｰﾀ移動(範囲指定直後､ctrl+矢印､その後ﾎﾟｲﾝﾀ指定､CR)"},
    {1, u"mnuF", u"書式による項目ﾃﾞｰﾀかきかえ(&F)", 'F', shift::Ctrl},
    {1, u"mnuTODAY", u"本日日付入力(&D)", key::function(3), shift::Shift},
    {1, u"mnuNOW", u"現在時刻入力(&T)", key::function(4), shift::Shift},
    {1, u"mnuEOCR", u"英数字ｶﾅ半/全､大/小変換､空白削除(&C)"},
    {1, u"mnuFOMULA", u"式値入力表設定 ", key::function(8), shift::None},
    {1, u"mnuINS", u"ﾃﾞｰﾀ右へｼﾌﾄ(Ins)"},
    {1, u"mnuSLEFT", u"ﾃﾞｰﾀ左ｼﾌﾄ(Del)"},
    {1, u"mnuCTRLD", u"ｾﾙ空白後次項目", 'D', shift::Ctrl},
    {1, u"mnuCTRLP", u"次記録先頭へ(&P)", 'P', shift::Ctrl},
    {1, u"mnuIDAUTO", u"IDﾃｰﾀ自動生成", key::function(1), shift::None},
    {1, u"mnuLIMIT", u"入力字数制限(&B)", 'B', shift::Ctrl},
    {1, u"mnuItem", u"記入項目指定", key::function(7), shift::None},
    {1, u"mnuWHOLE", u"全項目記入", key::function(6), shift::None},
    {1, u"mnuSPITEM", u"常時表示項目(項目番号項目wｸﾘｯｸ)", 'A', shift::Ctrl},
    {1, u"mnuSEARCH", u"検索", key::function(3), shift::None},
    {1, u"mnuREPLACE", u"置換", key::function(4), shift::None},
    {1, u"mnuDICT", u"ｺｰﾄﾞﾌｧｲﾙによる置換", key::function(1), shift::Shift},
    {1, u"mnuSETU", u"上記機能説明"},
    {1, u"mnuSORT", u"記録並べかえ", key::function(2), shift::None},
    {1, u"mnuMSORT", u"多重記録並べかえ"},
    {1, u"IDSORT", u"他ﾌｧｲﾙ項目ﾃﾞｰﾀ順に並べかえ", key::function(2), shift::Shift},
    {1, u"mnuOSETU", u"上記機能説明"},
    {0, u"mnuSTAT", u"統計処理(&S)"},
    {1, u"mnuFREQ", u"項目入力ﾃﾞｰﾀ頻度表", key::function(6), shift::Shift},
    {1, u"mnuDIST", u"項目ﾃﾞｰﾀ度数分布(graphic)", key::function(7), shift::Shift},
    {1, u"mnuGMEAN", u"群別平均等計算"},
    {1, u"mnuSUII", u"項目ﾃﾞｰﾀ推移(graphic)"},
    {1, u"mnuRS", u"ｽﾍﾟｱﾏﾝ順位相関係数(Rs)"},
    {1, u"mnuRP", u"ﾋﾟｱｿﾝ積率相関係数(Rp)"},
    {1, u"mnuFCTOR", u"因子分析(主成分法)"},
    {1, u"mnuCLUS", u"クラスタ分析"},
    {1, u"mnuCROS", u"指定項目間ｸﾛｽ集計と連関値､ｶｲ検"},
    {1, u"mnuVAR", u"分散分析"},
    {2, u"mnu1", u"一元配置"},
    {2, u"mnu2", u"二元配置"},
    {2, u"mnu3", u"三元配置"},
    {1, u"mnuProb", u"zから確率を求める"},
    {1, u"mnuCt", u"tから確率を求める"},
    {1, u"mnuFprob", u"Fから確率を求める"},
    {1, u"mnuKD", u"ｶｲ自乗値から確率を求める"},
    {1, u"mnuBiN", u"2項分布事象ｒ回生起確率を求める"},
    {1, u"mnuT", u"t検定,F検定"},
    {1, u"mnuKAI", u"カイ自乗検定"},
    {1, u"mnunm", u"n×mカイ二乗検定"},
    {1, u"mnuU", u"U検定"},
    {1, u"mnuBi", u"2項分布における選択回数確率", 0, shift::None, true},
    {1, u"mnuKEKKA", u"KEKKAファイル表示・編集"},
    {1, u"mnuSrial", u"時系列ﾃﾞｰﾀ処理(&W)", 0, shift::None, true},
    {0, u"mnuOPRATION", u"その他ﾃﾞｰﾀ利用(&P)"},
    {1, u"mnuATENA", u"宛名シール・はがき宛名印刷"},
    {1, u"mnuSAITEN", u"採点(素点,T,z,5段階値)"},
    {1, u"mnuHENSA", u"偏差値記入(ctrl+\"2\")"},
    {1, u"mnuIQ", u"適性採点", 0, shift::None, true},
    {0, u"mnuOTHER", u"ﾊﾞﾘｴｰｼｮﾝﾌｧｲﾙ作成(&O)"},
    {1, u"mnuBROCK", u"記録ﾌﾞﾛｯｸ抽出ﾌｧｲﾙ作成(&B)"},
    {1, u"mnuMBROCK", u"多記録項目ﾌﾞﾛｯｸ抽出(&M)"},
    {1, u"mnuFIND", u"検索抽出ﾌｧｲﾙ作成(&T)"},
    {1, u"mnuMFIND", u"多重検索抽出ﾌｧｲﾙ作成(&M)"},
    {1, u"mnuSORTF", u"並べかえﾌｧｲﾙ作成(&S)"},
    {1, u"mnuMSORTF", u"多重並べかえﾌｧｲﾙ作成(&N)"},
    {0, u"mnuTEL", u"電話(&T)"},
    {0, u"mnuDTK", u"読み上(&R)"},
    {1, u"mnuDTKN", u"データのみ(&D)", key::function(11), shift::None},
    {1, u"mnuDTKEX", u"行､項目番号付き(&S)", key::function(11), shift::Ctrl},
    {1, u"mnuJY", u"常時表示項目内容を付加して読む(&A)"},
    {1, u"mnuDTKOFF", u"読み上ＯＦＦ(&O)", key::function(12), shift::Ctrl},
    {1, u"mnuVC", u"現在セル音声案内(&G)", key::function(2), shift::Ctrl},
    {1, u"mnuAGENT", u"MSAgentの使用"},
    {1, u"mnuINH", u"読み上げ禁止時間(&T)"},
    {0, u"mnuKEY", u"ｷｰ操作一覧等(&L)"},
    {1, u"mnuALT", u"音声案内ｷ-ｶﾞｲﾄﾞ､shift+ctrl?､alt+?"},
    {1, u"mnuCTRL", u"ctrlまたはshift+？"},
    {1, u"mnuFKEY", u"Function?"},
    {1, u"mnuSfunc", u"shift+Function?"},
    {1, u"mnuAR", u"form3.autoRedraw"},
    {0, u"mnuHLP", u"ﾍﾙﾌﾟ(&Z)"},
    {1, u"menuGENERAL", u"Zelkoについて(&U)"},
    {1, u"mnuWRITE", u"ﾃｷｽﾄﾃﾞｰﾀの記入の仕方(&T)"},
    {1, u"mnuGUIDE", u"音声案内について(&O)"},
    {1, u"mnuREDME", u"readme(&R)"},
};

}  // namespace

void runMenuCommand(TextView name) {
  const auto& command = commandOf(name);
  if (command)
    command();
  else
    host().beep();
}

std::span<const MenuRow> menuRows() { return kRows; }

void buildMainMenu(Form& form) {
  Menu& menu = form.menu();
  MenuEntry* parents[3] = {};
  for (const MenuRow& row : kRows) {
    MenuEntry* parent = row.level == 0 ? nullptr : parents[row.level - 1];
    MenuEntry& entry = menu.add(parent, row.name, row.caption, row.shortcutCode, row.shortcutMask);
    entry.visible = !row.hidden;
    entry.command = [name = row.name] { runMenuCommand(name); };
    parents[row.level] = &entry;
  }
}

}  // namespace zelko
