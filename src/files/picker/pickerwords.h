// What the file picker says and shows, job by job, apart from its form.
#pragma once

#include "platform/forms/control.h"

namespace zelko {

// What differs between the jobs of the picker; `mode` names the job.
struct PickerJob {
  TextView mode;
  TextView caption, pattern, command, listLabel;
  TextView prompt;  // behind the opening sentence
  bool tables;      // the list shows item files, each of which stands for a table
};

// Empty, "YOMIKOMI" and every word that is no job of the picker: opening a table.
const PickerJob& pickerJob(TextView mode);

// Said once when the form opens.
Text openingSentence(const PickerJob& job, bool listIsEmpty);
// The selected file, or that there is none, in front of what the control with the focus adds.
Text fileReport(TextView selected, TextView whereTheFocusIs);
// Behind the caption: what the form is for and how it is worked.
Text pickerHelp(const PickerJob& job);
// What the toggle of the list does next.
TextView toggleReport(bool showsAllFiles);

extern const TextView kCsvHint;  // how a CSV file is read
extern const TextView kListHint;

}  // namespace zelko
