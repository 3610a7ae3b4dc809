#include "editor/show/view.h"

#include "editor/main/filling.h"
#include "editor/main/form1.h"
#include "editor/main/inputbox.h"
#include "editor/main/state.h"
#include "editor/moves/limit.h"
#include "editor/show/card.h"
#include "editor/show/sheet.h"
#include "editor/show/showcell.h"
#include "store/table/cursor.h"
#include "store/table/itemfile.h"

namespace zelko {
namespace {

// The numbers of another table are no news where they happen to be equal: emptied first, they are announced.
void forgetShownCell(Form1& main) {
  const Filling filling;
  const HeldAnnouncement held;
  main.txtREC.setText(u"");
  main.txtItemnum.setText(u"");
  emptyInputBox();
}

void hideForm(Form* form) {
  if (form && form->visible()) form->hide();
}

}  // namespace

void enterEditor() {
  Form1& main = form<Form1>();
  // A block of another table is none of this one.
  hideRangeMask();
  dropRange();
  forgetShownCell(main);
  main.Label8.setCaption(limitCaption());
  showTitle();
  showCell(static_cast<float>(curRec), curItem, u"", u"");
  main.txtinputbox.setFocus();
  main.show();
  showView(viewKind);
}

bool openAndEnter(TextView fullName) {
  Text error;
  openTable(fullName, error);
  if (!error.empty()) return false;
  enterEditor();
  return true;
}

void showView(std::int16_t kind) {
  viewKind = kind;
  bool card = kind == 1;
  hideForm(screen().loaded(card ? frmSHEET::kName : frmKOJIND::kName));
  Form& view = card ? static_cast<Form&>(form<frmKOJIND>()) : form<frmSHEET>();
  if (!view.visible()) view.showWithoutFocus();
  showTitle();
  dispAll(curItem);
}

void registerEditorForms() {
  registerForm<Form1>();
  registerForm<frmSHEET>();
  registerForm<frmKOJIND>();
}

}  // namespace zelko
