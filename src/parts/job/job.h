// Long work over the open table: what comes before the first record and behind the last one stands here once.
#pragma once

#include <cstdint>
#include <functional>

#include "platform/text/text.h"

namespace zelko {

class Progress;

enum class JobEnd {
  done,
  stopped,  // by the user
  failed,   // not told yet
  refused,  // it did not begin; the user has been told
};

struct JobCounts {
  std::int64_t done = 0;
  std::int64_t skipped = 0;  // left as they were
  std::int64_t cut = 0;      // stored, but shortened to their width
  Text unit = u"件";
};

struct Job {
  Text work;               // what the progress dialog says is being done
  std::int64_t steps = 0;  // 0 where their number is not known
  bool changes = false;    // the table's records: a read-only table is refused
  bool storesBox = true;   // what stands in the input box goes into its cell first
  bool keepsRange = false;
  // Does the work; progress.step() for each record, and the end when it says false. done, stopped or failed.
  std::function<JobEnd(Progress& progress, JobCounts& counts)> run;
  // What is said at the end; without it countsSentence. An empty text: the cell, where the focus is, speaks for itself.
  std::function<Text(JobEnd end, const JobCounts& counts)> sentence = {};
  // How a failure is told; without it as a write error.
  std::function<void()> tellFailure = {};
};

// Asks whether the table may be changed, stores names, box and row, runs the work behind a progress dialog, loads the
// cursor's place and the title again, tells a failure, and says what came of it. A fault goes through, the dialog
// closed.
JobEnd runJob(const Job& job);

// The two ends of it, for work that stops at every candidate and so has no single run.
// False where the job may not begin, told.
bool beginJob(bool changes, bool storesBox);
// `said` empty: the cell that has the focus speaks.
void endJob(JobEnd end, bool keepsRange, const Text& said, const std::function<void()>& tellFailure = {});

// "終了しました。12件処理、3件そのまま、1件は項目幅に切りました。", or that it was stopped, with the same counts.
Text countsSentence(JobEnd end, const JobCounts& counts);

}  // namespace zelko
