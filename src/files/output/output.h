// The dialog that asks where the output of a job goes: its doors, for every job that makes a table.
#pragma once

#include <functional>

#include "platform/text/text.h"

namespace zelko {

// What becomes of a file that has the name already, as the dialog tells it.
enum class OutputManner {
  appends,   // the records go behind those of a file that was picked
  copies,    // the same, said of the whole table
  replaces,  // it is written over
};

// What a job does with the dialog.
struct OutputJob {
  // The name is settled: a full name that ends in ".txt". The dialog is still open; the job closes it.
  std::function<void(const Text& fullName)> run;
  // The user has given up; the dialog is closed and `mode` empty.
  std::function<void()> cancelled = {};
  OutputManner manner = OutputManner::appends;
};

// The job of that word; the last one wins. With a word that nobody serves the run button beeps.
void registerOutputJob(TextView word, OutputJob job);

// Shows formHOZON, modal, for that job; the word is published in `mode` until the dialog has gone. `preset` stands in
// the name box at the start.
void showOutputDialog(TextView word, TextView preset = {});
void closeOutputDialog();

// mnuRESAS, the picker's "CVZLKF", and the form.
void registerOutputFiles();

}  // namespace zelko
