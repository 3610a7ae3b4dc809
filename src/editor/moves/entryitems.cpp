#include "editor/moves/entryitems.h"

#include <algorithm>

#include "editor/main/commands.h"
#include "editor/main/form1.h"
#include "editor/main/state.h"
#include "editor/show/showcell.h"
#include "platform/host.h"
#include "platform/text/number.h"
#include "store/table/cursor.h"
#include "voice/narration.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr int kMarkColumn = 2;
constexpr const char16_t* kHowTo = u" Yｷｰで指定、ｽﾍﾟｰｽｷｰで解除";

std::size_t index(int item) { return static_cast<std::size_t>(item); }

void chooseEntryItems() {
  allItemsOn = 0;
  form<Form5>().showModal();
  showCell(static_cast<float>(curRec), curItem, {}, {});
}

void visitAllItems() {
  allItemsOn = 1;
  mainForm().Label11.setCaption(entryItemsCaption());
  talkGated(u"全項目(0～" + decimal(itemCount) + u")");
}

}  // namespace

Form5::Form5() : Form(kName, u"記入項目の指定") {
  Grid1.setCols(kMarkColumn + 1);
  Grid1.setRows(itemCount + 2);
  Grid1.fixedCols = kMarkColumn;
  Grid1.setCellText(0, 0, u"項目番号");
  Grid1.setCellText(0, 1, u"項目名");
  Grid1.setCellText(0, kMarkColumn, u"指定");
  for (int item = 0; item <= itemCount; ++item) {
    Grid1.setCellText(item + 1, 0, decimal(item));
    Grid1.setCellText(item + 1, 1, trimmed(itemName[index(item)]));
    Grid1.setCellText(item + 1, kMarkColumn, entryItem[index(item)] == 1 ? u"Y" : u"");
  }
  Grid1.setCell(1, kMarkColumn);
  Grid1.onKeyPress = [this](CharEvent& event) { Form5_Grid1_KeyPress(event); };
  Grid1.onClick = [this] { mark(true); };
  Grid1.onRowColChange = [this] {
    if (gateOpens()) talkNow(rowSentence() + kHowTo);
  };
  Command1.onClick = [this] { Form5_Command1_Click(); };
  Command2.onClick = [this] { Form5_Command2_Click(); };
  Command2.isCancel = true;
  onClose = [this] { Form5_Command2_Click(); };
  Narration(*this)
      .explain(u"。記入項目を指定します。上下矢印キーで項目を移動し、Yｷｰで指定、ｽﾍﾟｰｽｷｰで解除します。OKで終わります。")
      .say(Grid1, [this] { return rowSentence() + kHowTo; })
      .say(Command1, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ")
      .say(Command2, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ");
}

Text Form5::rowSentence() const {
  const bool on = Grid1.cell(Grid1.row(), kMarkColumn) == u"Y";
  return Grid1.cell(Grid1.row(), 0) + u"､" + Grid1.cell(Grid1.row(), 1) + (on ? u" 指定" : u" 指定なし");
}

void Form5::mark(bool on) {
  Grid1.setCellText(Grid1.row(), kMarkColumn, on ? u"Y" : u"");
  talkGated(on ? u" 指定" : u" 指定解除");
}

void Form5::Form5_Grid1_KeyPress(CharEvent& event) {
  if (event.ch == u'Y' || event.ch == u'y')
    mark(true);
  else if (event.ch == u' ')
    mark(false);
  else if (event.ch == key::Enter)
    Form5_Command1_Click();  // closes the form
  else
    return;
  event.ch = 0;
}

void Form5::Form5_Command1_Click() {
  const auto marked = [this](int item) { return Grid1.cell(item + 1, kMarkColumn) == u"Y"; };
  bool any = false;
  for (int item = 0; item <= itemCount; ++item) any = any || marked(item);
  if (!any) {  // a walk without any entry item would never end
    host().beep();
    return;
  }
  for (int item = 0; item <= itemCount; ++item) entryItem[index(item)] = marked(item) ? 1 : 0;
  unload<Form5>();
}

void Form5::Form5_Command2_Click() {
  allItemsOn = 1;
  unload<Form5>();
}

void registerEntryItems() {
  registerForm<Form5>();
  registerCommand(u"mnuItem", chooseEntryItems);
  registerCommand(u"mnuWHOLE", visitAllItems);
}

}  // namespace zelko
