// What the file picker says and shows, job by job, apart from its form.
#pragma once

#include <vector>

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

// A file name as it is said: what is no character of any text is replaced.
Text spokenName(TextView name);
// An item file without its leading letter is the name of its table.
Text tableOfItemFile(TextView itemFile);
// "/" stands once between them.
Text pathIn(TextView folder, TextView name);

// The box that has the focus, named behind a report; empty for everything else.
TextView boxWord(const Control* focused);

// Said once when the form opens.
Text openingSentence(const PickerJob& job, bool listIsEmpty);
// After a change of folder: the folder, the first of the names (already as they are said), the box with the focus.
Text folderReport(TextView folder, const std::vector<Text>& names, TextView box);
// The selected file, or that there is none, in front of what the control with the focus adds.
Text fileReport(TextView selected, TextView whereTheFocusIs);
// Behind the caption: what the form is for and how it is worked.
Text pickerHelp(const PickerJob& job);
// What the toggle of the list does next.
TextView toggleReport(bool showsAllFiles);

inline constexpr std::size_t kNamesInReport = 3;

extern const TextView kNoFileHere;  // for a list without an entry
extern const TextView kCsvHint;     // how a CSV file is read
extern const TextView kListHint;

}  // namespace zelko
