#include "stats/distribution/registerdistribution.h"

#include "editor/main/commands.h"
#include "platform/forms/form.h"
#include "stats/distribution/distributionform.h"
#include "stats/distribution/groupform.h"
#include "stats/frame/analysis.h"
#include "store/table/cursor.h"
#include "voice/heard.h"
#include "voice/talk.h"

namespace zelko {

namespace {

void showDistribution() {
  if (!beginAnalysis(RangeTest::start)) return;
  unload<frmDIST>();
  frmDIST& dialog = form<frmDIST>();
  {
    const Silence silence;
    dialog.show();
  }
  dialog.readup(curItem, firstRecord, lastRecord);
}

}  // namespace

void registerDistribution() {
  registerForm<frmDIST>();
  registerForm<frmMDIST>();
  registerCommand(u"mnuSUII", showGroupDistributions);
  registerCommand(u"mnuDIST", showDistribution);
}

}  // namespace zelko
