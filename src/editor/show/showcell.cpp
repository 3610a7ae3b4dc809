#include "editor/show/showcell.h"

#include <algorithm>

#include "editor/main/filling.h"
#include "editor/main/form1.h"
#include "editor/main/inputbox.h"
#include "editor/main/state.h"
#include "editor/show/card.h"
#include "editor/show/sheet.h"
#include "platform/text/number.h"
#include "store/records/records.h"
#include "store/table/cursor.h"

namespace zelko {
namespace {

// Twips of the main form as it is laid out at 100 %.
constexpr int kFormWidth = 11895, kInputLeft = 1320, kRightMargin = 200;

Text idCaption() {
  Text id = trimmed(cellOfCur(0));
  return autoIdOn == 1 ? id + u"(自動更新！)" : id;
}

void refreshAlwaysShown() {
  if (spItem == kNoItem) return;
  Form* view = screen().loaded(u"frmSPITEM");
  Control* label = view ? view->find(u"Label1") : nullptr;
  if (label) label->setCaption(trimmed(cellOfCur(spItem)));
}

bool focusBelongsElsewhere() {
  static constexpr TextView kWords[] = {u"chfln", u"move", u"moveitem",   u"moverecord",
                                        u"copy",  u"srch", u"narabekaef", u"HTYU"};
  for (TextView word : kWords) {
    if (mode == word) return true;
  }
  return false;
}

}  // namespace

void showCell(float record, float item, TextView preset, TextView) {
  Form1& main = mainForm();
  main.storeNames();
  const Filling filling;
  auto i = static_cast<std::size_t>(item);
  // A single holds no more than 24 bits: the cursor itself is meant where it rounds to the same.
  std::int32_t wanted = record == static_cast<float>(curRec) ? curRec : static_cast<std::int32_t>(record);
  takeRow(wanted);
  refreshAlwaysShown();
  main.txtREC.setText(decimal(wanted));
  takeRow(wanted);
  main.Text1.setText(decimal(itemCount));
  main.Label13.setCaption(idCaption());
  main.txtItemnum.setText(decimal(static_cast<std::int64_t>(i)));
  main.showItem(static_cast<std::int16_t>(i));
  main.txtinputbox.setWidth(std::min(itemWidth[i] * boxCharTwips, kFormWidth - kInputLeft - kRightMargin));
  main.txtinputbox.setText(preset);
  main.showMemo();
  main.Label11.setCaption(entryItemsCaption());
}

void dispAll(std::int16_t&) {
  if (viewKind == 1) {
    if (auto* card = loadedForm<frmKOJIND>()) card->repaint();
    return;
  }
  if (auto* sheet = loadedForm<frmSHEET>()) sheet->repaint();
  if (!focusBelongsElsewhere()) focusInputBox();
}

void showTitle() {
  Text drive = docDrive.empty() ? Text() : docDrive + u":";
  Form1* main = loadedForm<Form1>();
  if (!main) return;
  main->setCaption(u"Zelko (" + drive + docPath + u"/記録数:" + decimal(recCount()) + u")");
  if (auto* sheet = loadedForm<frmSHEET>()) sheet->showHead();
}

void showMark(bool shown) {
  if (Form1* main = loadedForm<Form1>()) main->Label1.setVisible(shown);
}

Text entryItemsCaption() {
  if (allItemsOn == 1) return u"全項目";
  Text caption;
  for (int item = 0; item <= itemCount; ++item)
    if (entryItem[static_cast<std::size_t>(item)] == 1) caption += decimal(item) + u",";
  return caption;
}

}  // namespace zelko
