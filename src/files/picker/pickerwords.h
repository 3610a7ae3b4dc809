// What the file picker says and shows, job by job, apart from its form.
#pragma once

#include "files/picker/picker.h"
#include "platform/forms/control.h"

namespace zelko {

// What differs between the jobs of the picker.
struct PickerJob {
  PickFor purpose;
  TextView word;  // published in `mode`
  TextView caption, pattern, command, listLabel;
  TextView prompt;   // behind the opening sentence
  bool tables;       // the list shows item files, each of which stands for a table
  bool callerWaits;  // for the word that the user gave up
};

const PickerJob& pickerJob(PickFor purpose);

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
