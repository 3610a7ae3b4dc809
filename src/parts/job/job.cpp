#include "parts/job/job.h"

#include <algorithm>

#include "parts/job/editorhooks.h"
#include "platform/host.h"
#include "platform/text/number.h"
#include "store/records/records.h"
#include "store/table/cursor.h"
#include "store/table/itemfile.h"
#include "store/table/notice.h"
#include "store/table/readonly.h"
#include "voice/dialogs.h"
#include "voice/heard.h"
#include "voice/progress.h"
#include "voice/talk.h"

namespace zelko {

namespace {

// Inside the table as it is now, and with its row in the cache: the box that gets the focus when the progress dialog
// closes speaks about it.
void settleCursor() {
  if (docPath.empty()) return;
  curItem = std::clamp<std::int16_t>(curItem, 0, itemCount);
  curRec = std::clamp(curRec, 1, recCount() + 1);
  loadCache(curRec);
}

JobEnd runBehindDialog(const Job& job, JobCounts& counts) {
  Progress progress(job.work, job.steps);
  const JobEnd end = job.run(progress, counts);
  settleCursor();
  return end;
}

}  // namespace

bool beginJob(bool changes, bool storesBox) {
  if (docPath.empty()) {
    host().beep();
    return false;
  }
  if (changes && refusedAsReadOnly()) return false;
  editorHooks.storeTyped(storesBox);
  // With the box the row was stored too: who held it back is not asked again.
  const bool stored = !(storesBox && storeWasHeldBack()) && flushRec();
  if (!stored) host().beep();  // where the reason was told before, nothing else is heard
  return stored;
}

void endJob(JobEnd end, bool keepsRange, const Text& said, const std::function<void()>& tellFailure) {
  if (end == JobEnd::failed) tellFailure ? tellFailure() : tellWriteError();
  if (said.empty()) {
    // The cell is news, whatever was said a moment ago.
    nextIsHeard();
    return editorHooks.reload(keepsRange);
  }
  {
    const Silence silence;
    editorHooks.reload(keepsRange);
  }
  talkBehindDialog(said);
}

JobEnd runJob(const Job& job) {
  if (!beginJob(job.changes, job.storesBox)) {
    if (!job.keepsRange && !docPath.empty()) editorHooks.reload(false);
    return JobEnd::refused;
  }
  JobCounts counts;
  const JobEnd end = runBehindDialog(job, counts);
  endJob(end, job.keepsRange, job.sentence ? job.sentence(end, counts) : countsSentence(end, counts), job.tellFailure);
  return end;
}

Text countsSentence(JobEnd end, const JobCounts& counts) {
  Text said = end == JobEnd::done      ? u"終了しました。"
              : end == JobEnd::stopped ? u"中止しました。ここまでに、"
                                       : u"途中で終わりました。ここまでに、";
  said += decimal(counts.done) + counts.unit + u"処理";
  if (counts.skipped > 0) said += u"、" + decimal(counts.skipped) + counts.unit + u"そのまま";
  if (counts.cut > 0) said += u"、" + decimal(counts.cut) + counts.unit + u"は項目幅に切りました";
  return said + markStop;
}

}  // namespace zelko
