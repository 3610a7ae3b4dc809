#include "editor/show/showcell.h"

#include <algorithm>
#include <iterator>

#include "editor/main/filling.h"
#include "editor/main/form1.h"
#include "editor/main/inputbox.h"
#include "editor/main/state.h"
#include "editor/show/card.h"
#include "editor/show/sheet.h"
#include "platform/text/number.h"
#include "store/records/records.h"
#include "store/table/cursor.h"
#include "voice/talk.h"

namespace zelko {
namespace {

// Twips of the main form as it is laid out at 100 %.
constexpr int kFormWidth = 11895, kInputLeft = 1320, kRightMargin = 200;

Text idCaption(const CacheRow& row) {
  Text id = trimmed(cellOfRow(row, 0));
  return autoIdOn == 1 ? id + u"(自動更新！)" : id;
}

void refreshAlwaysShown(const CacheRow& row) {
  if (spItem == kNoItem) return;
  Form* view = screen().loaded(u"frmSPITEM");
  Control* label = view ? view->find(u"Label1") : nullptr;
  if (label) label->setCaption(trimmed(cellOfRow(row, spItem)));
}

// The main form, the views that stand beside it, and what stands there while a command works.
bool editorHasKeyboard() {
  static constexpr TextView kBeside[] = {frmSHEET::kName, frmKOJIND::kName, u"frmSPITEM", u"frmAGENT"};
  const Form* active = screen().activeForm();
  if (!active || active->name() == Form1::kName || active->liveDuringWork) return true;
  return std::ranges::find(kBeside, active->name()) != std::end(kBeside);
}

}  // namespace

void showCell(float record, float item, TextView preset, TextView) {
  Form1& main = mainForm();
  main.storeNames();
  const Filling filling;
  auto i = static_cast<std::size_t>(item);
  // A single holds no more than 24 bits: the cursor itself is meant where it rounds to the same.
  std::int32_t wanted = record == static_cast<float>(curRec) ? curRec : static_cast<std::int32_t>(record);
  const CacheRow row = rowOf(wanted);
  refreshAlwaysShown(row);
  main.txtREC.setText(decimal(wanted));
  main.Text1.setText(decimal(itemCount));
  main.Label13.setCaption(idCaption(row));
  main.txtItemnum.setText(decimal(static_cast<std::int64_t>(i)));
  main.showItem(static_cast<std::int16_t>(i));
  main.txtinputbox.setWidth(std::min(itemWidth[i] * boxCharTwips, kFormWidth - kInputLeft - kRightMargin));
  main.txtinputbox.setText(preset);
  main.showMemo();
  main.Label11.setCaption(entryItemsCaption());
}

void repaintView() {
  if (viewKind == 1) {
    if (auto* card = loadedForm<frmKOJIND>()) card->repaint();
  } else if (auto* sheet = loadedForm<frmSHEET>()) {
    sheet->repaint();
  }
}

void dispAll(std::int16_t&) {
  repaintView();
  if (viewKind != 1 && editorHasKeyboard()) focusInputBox();
}

void showUnheard() {
  const Silence silence;
  showCell(static_cast<float>(curRec), curItem, {}, {});
  repaintView();
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
