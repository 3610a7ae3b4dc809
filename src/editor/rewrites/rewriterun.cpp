#include "editor/rewrites/rewriterun.h"

#include <algorithm>

#include "editor/main/form1.h"
#include "editor/moves/moves.h"
#include "platform/host.h"
#include "store/records/records.h"
#include "store/table/cursor.h"
#include "store/table/notice.h"
#include "store/table/readonly.h"
#include "voice/progress.h"

namespace zelko {
namespace {

// Inside the new table, whatever the command left of the old place, and with its row in the cache.
void settleCursor() {
  curItem = std::clamp<std::int16_t>(curItem, 0, itemCount);
  curRec = std::clamp(curRec, 1, recCount() + 1);
  loadCache(curRec);
}

RewriteEnd rewriteWithDialog(const RewriteJob& job) {
  Progress progress(job.text, recordsOf(job.plan));
  bool refused = false;
  const auto keepGoing = [&](std::int64_t done) {
    if (progress.step(done)) return true;
    if (!job.canStop && !refused) host().beep();
    refused = true;
    return !job.canStop;
  };
  const RewriteEnd end = rewriteTable(job.plan, job.items, keepGoing);
  if (end == RewriteEnd::done && job.whenDone) job.whenDone();
  // The box that gets the focus when the dialog closes already speaks about the new table.
  settleCursor();
  return end;
}

}  // namespace

bool runRewrite(const RewriteJob& job) {
  if (refusedAsReadOnly()) {
    reloadCur();
    return false;
  }
  mainForm().storeNames();
  const RewriteEnd end = rewriteWithDialog(job);
  if (end == RewriteEnd::failed) tellWriteError();
  reloadCur();
  return end == RewriteEnd::done;
}

std::vector<Stretch> allRecords() { return {{1, recCount()}}; }

}  // namespace zelko
