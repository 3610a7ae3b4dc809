#include "files/hozon.h"

#include "files/hozonconvert.h"
#include "files/hozonform.h"
#include "files/saveas.h"

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
