#include "files/output/output.h"

#include "files/output/convert.h"
#include "files/output/outputform.h"
#include "files/output/saveas.h"
#include "store/table/cursor.h"

namespace zelko {

void showOutputDialog(TextView word, TextView preset) {
  unload<formHOZON>();
  formHOZON& dialog = form<formHOZON>();
  dialog.take(word);
  dialog.fillName(preset);
  dialog.showModal();
  if (mode == word) mode.clear();
}

void closeOutputDialog() { unload<formHOZON>(); }

void registerOutputFiles() {
  registerForm<formHOZON>();
  registerSaveAs();
  registerConversion();
}

}  // namespace zelko
