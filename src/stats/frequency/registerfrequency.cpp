#include "stats/frequency/registerfrequency.h"

#include "editor/main/commands.h"
#include "platform/forms/form.h"
#include "stats/frame/datacheck.h"
#include "stats/frequency/frequencyform.h"

namespace zelko {

void registerFrequency() {
  registerForm<frmDISP>();
  registerCommand(u"mnuFREQ", [] { showAnalysisForm<frmDISP>(); });
}

}  // namespace zelko
