#include "editor/cellcommands.h"

#include "editor/commands.h"
#include "editor/exit.h"
#include "editor/form1.h"
#include "editor/itemlist.h"
#include "editor/jumps.h"
#include "editor/moves.h"
#include "editor/speechmenu.h"
#include "editor/state.h"
#include "editor/utilities.h"
#include "platform/daytime.h"
#include "platform/host.h"
#include "store/cursor.h"
#include "store/itemfile.h"
#include "voice/cells.h"
#include "voice/dialogs.h"
#include "voice/talk.h"

namespace zelko {

namespace {

// Shifts the data of the current record and shows the cell again.
void shiftData(void (*shift)(int), TextView sentence) {
  shift(curItem);
  dispAll(curItem);
  showCell(static_cast<float>(curRec), curItem, {}, {});
  talkGated(sentence);
}

void putIntoBox(TextView text) { fillInputBox(text); }

constexpr const char16_t* kHowToInsert =
    u"項目を挿入するときは、alt+"
    u"左右矢印ｷｰで項目範囲の指定を始め、ｶｰｿﾙ移動で挿入する数だけの項目を範囲に入れ、CRｷｰで範囲を決めます。"
    u"続けてInsｷｰを叩くと、範囲の先頭に同じ数の項目が挿入されます。";
constexpr const char16_t* kHowToDelete =
    u"項目を削除するときは、alt+"
    u"左右矢印ｷｰで項目範囲の指定を始め、ｶｰｿﾙ移動で削除する項目を範囲に入れ、CRｷｰで範囲を決めます。"
    u"続けてDelｷｰを叩くと、範囲の項目が削除されます。復活はできません。";
constexpr const char16_t* kHowToMove =
    u"項目を移動するときは、alt+"
    u"左右矢印ｷｰで項目範囲の指定を始め、ｶｰｿﾙ移動で移動する項目を範囲に入れ、CRｷｰで範囲を決めます。"
    u"続けて左右矢印ｷｰを叩き、移動点項目を指定して、CRｷｰで移動が実行されます。中止の場合はESCを叩きます。";

}  // namespace

void copyCellToBox() {
  fillInputBox(currentCell());
  form<Form1>().txtinputbox.setFocus();
}

void clearCell() {
  lastCleared = currentCell();
  moveFlag = 1;
  commitCell();
  nextItem();
  moveFlag = 0;
}

void registerCellCommands() {
  registerCommand(u"mnuCTRLU", copyCellToBox);
  registerCommand(u"mnuCTRLD", clearCell);
  registerCommand(u"mnuTODAY", [] { putIntoBox(shortDate(host().now())); });
  registerCommand(u"mnuNOW", [] { putIntoBox(shortTime(host().now())); });
  registerCommand(u"mnuINS", [] { shiftData(shiftRight, u"ﾃﾞｰﾀｶﾞｲﾁｺｳﾓｸﾐｷﾞｼﾌﾄｼﾏｼﾀ"); });
  registerCommand(u"mnuSLEFT", [] { shiftData(shiftLeft, u"ﾃﾞｰﾀｶﾞｲﾁｺｳﾓｸﾋﾀﾞﾘｼﾌﾄｼﾏｼﾀ"); });
  registerCommand(u"mnuIDAUTO", idAuto);
  registerCommand(u"mnuLIMIT", setLimit);
  registerCommand(u"mnuRL", [] { form<Form1>().txtLR.setFocus(); });
  registerCommand(u"mnuFbt", toggleReadOnly);
  registerCommand(u"mnuEND", leaveProgram);
  registerCommand(u"mnuITEMINS", [] { showOK(kHowToInsert, u"項目の挿入の仕方"); });
  registerCommand(u"mnuITEMDEL", [] { showOK(kHowToDelete, u"項目の削除の仕方"); });
  registerCommand(u"mnuITEMMOVE", [] { showOK(kHowToMove, u"項目の移動の仕方"); });
  registerListCaller(84, [](int item) {
    Form1& main = form<Form1>();
    curItem = static_cast<std::int16_t>(item);
    dispAll(curItem);
    showCell(static_cast<float>(curRec), curItem, {}, {});
    main.txtinputbox.setFocus();
  });
}

void wireLabels(Form1& main) {
  const auto serves = [](TextView name) { return [name] { runCommand(name); }; };
  main.Label1.onClick = serves(u"mnuFbt");
  main.Label3.onDblClick = serves(u"mnuSPITEM");
  main.Label4.onClick = serves(u"mnuIDAUTO");
  main.Label5.onClick = switchSpeech;
  main.lblSpeek.onClick = switchSpeech;
  main.Label6.onClick = serves(u"mnuItem");
  main.Label8.onClick = serves(u"mnuLIMIT");
  main.Label9.onClick = serves(u"mnuRL");
  main.lblWIDTH.onClick = serves(u"mnuFLN");
  main.Command1.onClick = serves(u"mnuCTRLU");
  main.Command2.onClick = serves(u"mnuCTRLD");
  main.Command3.onClick = [] {
    listCaller = 84;
    runCommand(u"mnuItemList");
  };
  main.Command4.onClick = serves(u"mnuSPITEM");
  main.Command5.onClick = serves(u"mnuLIMIT");
}

}  // namespace zelko
