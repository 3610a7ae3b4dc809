#include "app/wiring.h"

#include "editor/registereditor.h"
#include "files/design.h"
#include "files/disk.h"
#include "files/help.h"
#include "files/hozon.h"
#include "files/lunch.h"
#include "voice/dialogs.h"
#include "voice/narration.h"

namespace zelko {

void wireProgram() {
  registerVoiceForms();
  registerEditor();
  registerLunch();
  registerFilePicker();
  registerHelp();
  registerTableDesign();
  registerOutputFiles();
  narrateMenus();
}

void startProgram(TextView table) { startFromLunch(table); }

}  // namespace zelko
