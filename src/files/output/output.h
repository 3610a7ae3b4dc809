// The dialog that asks where the output of a job goes: its doors, for every job that makes a table.
#pragma once

#include <functional>

#include "platform/text/text.h"

namespace zelko {

// What a job does with the dialog; `mode` names the job.
struct OutputJob {
  // The name is settled: a full name that ends in ".txt". The dialog is still open; the job closes it.
  std::function<void(const Text& fullName)> run;
  // The user has given up; the dialog is closed and `mode` empty. May be left out.
  std::function<void()> cancelled;
};

// The job of that word; the last one wins. With a word that nobody serves the run button beeps.
void registerOutputJob(TextView word, OutputJob job);

// Shows formHOZON, modal, for the job that `mode` names. `preset` stands in the name box at the start.
void showOutputDialog(TextView preset = {});
void closeOutputDialog();

// mnuRESAS, the picker's "CVZLKF", and the form.
void registerOutputFiles();

}  // namespace zelko
