#include "app/wiring.h"

#include "editor/registereditor.h"
#include "files/design/design.h"
#include "files/output/output.h"
#include "files/picker/picker.h"
#include "files/start/help.h"
#include "files/start/startscreen.h"
#include "speech/descriptions.h"
#include "stats/correlation/registercorrelation.h"
#include "stats/frame/registerframe.h"
#include "tablejobs/replace/registerreplace.h"
#include "voice/describe.h"
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
  registerReplacement();
  registerAnalysisFrame();
  registerCorrelation();
  narrateMenus();
  characterHooks.description = characterDescription;
  characterHooks.code = characterCode;
  characterHooks.isKanji = isDescribedKanji;
}

void startProgram(TextView table) { startFromLunch(table); }

}  // namespace zelko
