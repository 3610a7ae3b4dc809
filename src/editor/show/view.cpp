#include "editor/show/view.h"

#include "editor/main/form1.h"
#include "editor/moves/commit.h"
#include "editor/moves/moves.h"
#include "editor/show/card.h"
#include "editor/show/sheet.h"
#include "platform/text/number.h"
#include "store/table/cursor.h"
#include "store/table/itemfile.h"
#include "store/table/mainform.h"

namespace zelko {
namespace {

// The numbers of another table are no news where they happen to be equal: emptied first, they are announced.
void forgetShownCell(Form1& main) {
  Form1::Filling filling(main);
  Form1::HeldAnnouncement held(main);
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
  main.Label8.setCaption(inputLimit == 0 ? Text(u"字数制限:項目幅") : u"制限字数:" + decimal(inputLimit));
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
