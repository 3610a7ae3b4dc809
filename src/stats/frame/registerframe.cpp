#include "stats/frame/registerframe.h"

#include "platform/forms/form.h"
#include "stats/frame/datacheckform.h"
#include "stats/frame/outputfolder.h"
#include "stats/frame/resultviewer.h"
#include "voice/narration.h"

namespace zelko {

void registerAnalysisFrame() {
  registerDataCheck();
  registerForm<frmOUTF>();
  registerResultViewer();
}

}  // namespace zelko
