#include "files/picker/picker.h"

#include "editor/main/commands.h"
#include "editor/main/form1.h"
#include "files/picker/filenumber.h"
#include "files/picker/pickerform.h"
#include "files/picker/pickeropening.h"
#include "store/table/cursor.h"

namespace zelko {

namespace {

// A job that the user starts from the main form.
void pickFor(PickFor purpose) {
  storeEditedTable();
  showFilePicker(purpose);
}

}  // namespace

bool showFilePicker(PickFor purpose) {
  unload<frmDISK>();
  frmDISK& picker = form<frmDISK>();
  picker.take(purpose);
  const Form1* main = loadedForm<Form1>();
  if (!main || !main->visible()) {
    picker.show();
    return true;
  }
  bool gaveUp = false;
  picker.onGivenUp = [&] { gaveUp = true; };
  picker.showModal();
  if (gaveUp) mode.clear();
  return !gaveUp;
}

Text pickedFile() {
  const frmDISK* picker = loadedForm<frmDISK>();
  return picker ? picker->chosenFile() : Text();
}

void closeFilePicker() { unload<frmDISK>(); }

void registerFilePicker() {
  registerForm<frmDISK>();
  registerForm<frmFileNo>();
  registerCommand(u"mnuREAD", [] { pickFor(PickFor::table); });
  registerCommand(u"mnuDEL", [] { pickFor(PickFor::deletion); });
}

}  // namespace zelko
