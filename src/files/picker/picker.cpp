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
void pickFor(TextView job) {
  storeEditedTable();
  mode = job;
  showFilePicker();
  if (mode == job || mode == u"tyusi") mode.clear();
}

}  // namespace

void showFilePicker() {
  unload<frmDISK>();
  frmDISK& picker = form<frmDISK>();
  const Form1* main = loadedForm<Form1>();
  if (main && main->visible())
    picker.showModal();
  else
    picker.show();
}

Text pickedFile() {
  const frmDISK* picker = loadedForm<frmDISK>();
  return picker ? picker->chosenFile() : Text();
}

void closeFilePicker() { unload<frmDISK>(); }

void registerFilePicker() {
  registerForm<frmDISK>();
  registerForm<frmFileNo>();
  registerCommand(u"mnuREAD", [] { pickFor(u"YOMIKOMI"); });
  registerCommand(u"mnuDEL", [] { pickFor(u"delfile"); });
}

}  // namespace zelko
