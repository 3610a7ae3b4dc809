#include "app/wiring.h"

#include "dial/telform.h"
#include "editor/registereditor.h"
#include "files/csv/csvform.h"
#include "files/design/design.h"
#include "files/manual/manual.h"
#include "files/output/output.h"
#include "files/picker/picker.h"
#include "files/start/help.h"
#include "files/start/startscreen.h"
#include "speech/descriptions.h"
#include "stats/calculators/calculatorform.h"
#include "stats/cluster/registercluster.h"
#include "stats/correlation/registercorrelation.h"
#include "stats/crosstable/registercrosstable.h"
#include "stats/distribution/registerdistribution.h"
#include "stats/factor/factorrun.h"
#include "stats/frame/registerframe.h"
#include "stats/frequency/registerfrequency.h"
#include "stats/twogroups/tform.h"
#include "stats/twogroups/uform.h"
#include "stats/variance/registervariance.h"
#include "tablejobs/blocks/blocks.h"
#include "tablejobs/extract/form7.h"
#include "tablejobs/replace/registerreplace.h"
#include "tablejobs/search/search.h"
#include "tablejobs/sort/sortcommands.h"
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
  registerManual();
  registerTableDesign();
  registerOutputFiles();
  registerCsv();
  registerSorting();
  registerBlocks();
  registerSearch();
  registerExtraction();
  registerReplacement();
  registerAnalysisFrame();
  registerCalculators();
  registerTForm();
  registerUForm();
  registerFrequency();
  registerDistribution();
  registerCorrelation();
  registerCrossTable();
  registerFactor();
  registerCluster();
  registerVariance();
  registerDialling();
  narrateMenus();
  characterHooks.description = characterDescription;
  characterHooks.code = characterCode;
  characterHooks.isKanji = isDescribedKanji;
}

void startProgram(TextView table) { startFromLunch(table); }

}  // namespace zelko
