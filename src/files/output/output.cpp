#include "files/output/output.h"

#include "files/output/convert.h"
#include "files/output/outputform.h"
#include "files/output/saveas.h"

namespace zelko {

void showOutputDialog(TextView preset) {
  unload<formHOZON>();
  formHOZON& dialog = form<formHOZON>();
  dialog.fillName(preset);
  dialog.showModal();
}

void closeOutputDialog() { unload<formHOZON>(); }

void registerOutputFiles() {
  registerForm<formHOZON>();
  registerSaveAs();
  registerConversion();
}

}  // namespace zelko
