#include "editor/main/cellcommands.h"

#include "editor/main/commands.h"
#include "editor/main/exit.h"
#include "editor/main/form1.h"
#include "editor/main/inputbox.h"
#include "editor/main/speechmenu.h"
#include "editor/main/state.h"
#include "editor/moves/commit.h"
#include "editor/moves/idauto.h"
#include "editor/moves/jumps.h"
#include "editor/moves/limit.h"
#include "editor/moves/moves.h"
#include "editor/rewrites/shifts.h"
#include "editor/show/itemlist.h"
#include "editor/show/showcell.h"
#include "parts/cells.h"
#include "platform/host.h"
#include "platform/text/daytime.h"
#include "store/table/cursor.h"
#include "store/table/readonly.h"
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

// Who is in the box already hears it again.
void goToAlignment() {
  TextBox& box = mainForm().txtLR;
  if (box.hasFocus()) return box.onGotFocus();
  box.setFocus();
}

constexpr const char16_t* kHowToInsert =
    u"項目を挿入します。挿入したい位置の項目で、alt+←またはalt+→を叩くと、項目範囲の指定が始まります。"
    u"左右矢印キーで、挿入する項目数だけ範囲を広げ、CRキーで範囲を決めて下さい。その直後にInsキーを叩き、確認に、はい、"
    u"と答えると、"
    u"範囲の前に、範囲と同じ数の項目が挿入されます。挿入項目は、項目幅１、左詰めです。中止の場合はESCを";
constexpr const char16_t* kHowToDelete =
    u"項目を削除します。削除したい項目で、alt+←またはalt+→を叩くと、項目範囲の指定が始まります。"
    u"左右矢印キーで、削除する項目を全部範囲に入れ、CRキーで範囲を決めて下さい。その直後にDelキーを叩き、確認に、はい、"
    u"と答えると、"
    u"範囲の項目が削除され、以後の項目が前に詰められます。復活はできません。ID項目は削除できません。中止の場合はESCを";
constexpr const char16_t* kHowToMove =
    u"項目を移動します。移動したい項目で、alt+←またはalt+→を叩くと、項目範囲の指定が始まります。"
    u"左右矢印キーで、移動する項目を全部範囲に入れ、CRキーで範囲を決めて下さい。その直後に←または→キーを叩くと、移動点"
    u"の指定が始まります。"
    u"左右矢印キーで、移動点項目を指定し、CRキーを叩くと、範囲の項目が、移動点項目の前に移動します。中止の場合はESCを";

}  // namespace

void copyCellToBox() {
  fillBoxWithCell();
  focusInputBox();
  if (inputText().empty()) talkGated(u"ブランク");
}

void clearCell() {
  lastCleared = currentCell();
  MoveScope moving;
  commitCell();
  nextItem();
}

void registerCellCommands() {
  registerCommand(u"mnuCTRLU", copyCellToBox);
  registerCommand(u"mnuCTRLD", clearCell);
  registerCommand(u"mnuTODAY", [] { fillInputBox(shortDate(host().now())); });
  registerCommand(u"mnuNOW", [] { fillInputBox(shortTime(host().now())); });
  registerCommand(u"mnuINS", [] { shiftData(shiftRight, u"ﾃﾞｰﾀｶﾞｲﾁｺｳﾓｸﾐｷﾞｼﾌﾄｼﾏｼﾀ"); });
  registerCommand(u"mnuSLEFT", [] { shiftData(shiftLeft, u"ﾃﾞｰﾀｶﾞｲﾁｺｳﾓｸﾋﾀﾞﾘｼﾌﾄｼﾏｼﾀ"); });
  registerCommand(u"mnuIDAUTO", idAuto);
  registerCommand(u"mnuLIMIT", setLimit);
  registerCommand(u"mnuRL", goToAlignment);
  registerCommand(u"mnuFbt", toggleReadOnly);
  registerCommand(u"mnuEND", leaveProgram);
  registerCommand(u"mnuITEMINS", [] { showOK(kHowToInsert, u"項目の挿入の仕方"); });
  registerCommand(u"mnuITEMDEL", [] { showOK(kHowToDelete, u"項目の削除の仕方"); });
  registerCommand(u"mnuITEMMOVE", [] { showOK(kHowToMove, u"項目の移動の仕方"); });
  registerListCaller(84, [](int item) {
    MoveScope moving;
    if (!commitBox()) return;
    curItem = static_cast<std::int16_t>(item);
    showCell(static_cast<float>(curRec), curItem, {}, {});
    dispAll(curItem);
    focusInputBox();
    announceCell();  // also where the cursor stood there already
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
}

}  // namespace zelko
