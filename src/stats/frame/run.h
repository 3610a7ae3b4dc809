// One run of an analysis: its report, the window in which progress and then the report stand, and the stop.
#pragma once

#include <optional>
#include <vector>

#include "parts/reading/tablewalk.h"
#include "parts/report/report.h"
#include "platform/forms/form.h"
#include "platform/text/text.h"
#include "voice/progress.h"

namespace zelko {

class AnalysisRun {
 public:
  // Nothing is opened yet. `title` heads the window of the report.
  explicit AnalysisRun(TextView title) : title_(title) {}
  // A run that is neither finished nor refused is taken for stopped.
  ~AnalysisRun();
  AnalysisRun(const AnalysisRun&) = delete;
  AnalysisRun& operator=(const AnalysisRun&) = delete;

  // Opens the report in the folder and writes title, file name, date and time. False, told, where it can't be opened.
  bool begin(TextView folder, bool anew, TextView reportTitle);
  // The same with the folder and the tick of frmOUTF.
  bool begin(TextView reportTitle);
  // The same without a head, for a report that orders its lines otherwise.
  bool beginBare();
  Report& report() { return report_; }
  // A line of a report whose window differs from its file: the window then shows what was begun with and these lines,
  // in place of the whole file.
  void windowLine(TextView line);

  // The window with its buttons disabled.
  void openWindow();
  // That window, and a dialog with the stop; `steps` of computing follow, 0 unknown.
  void compute(TextView work, std::int64_t steps);
  // Before each step: false once the user has asked to stop; analysisMode is "BREAK" then.
  bool step(std::int64_t done);
  bool stopped() const { return stopped_; }
  // Before a question: the dialog with the stop goes, unheard; compute() brings it back.
  void rest();
  // Lines of the report that are seen in the window too.
  void lines(const std::vector<Text>& lines);
  // What the names in the tables of this report stand for, by the position in it, for the walk through its window.
  void nameCells(CellNames names) { names_ = std::move(names); }
  // A line of progress: in the window, and said where the gate allows.
  void tell(TextView line);
  // The same for one of very many steps: its line stands alone in the window, and what is said may differ from it.
  void tellStep(TextView shown, TextView said);

  // Ends the run whose report is whole. The window shows the result file, the caret on this report; it has the focus.
  // `closing` is said then, without one the sentence that all reports end with. With
  // `repeats` FrmRepeat stands in front first and repeats it. The form of the analysis goes, so that Esc in the window
  // leads to the cell; the range is dropped. False, told, where the file was not written: the form stays.
  bool finish(Form& form, const Text& closing = {}, bool repeats = false);
  // Ends a run that was refused after its head was written: what stands in the report stays, the window goes.
  void refuse();
  // The same for a stop, told in the report and in words.
  void stop();

 private:
  void closeDialogs();
  void showWindow(const Text& opening, const Text& result);

  Text title_;
  std::optional<Text> window_;  // what it shows where it differs from the file
  Report report_;
  CellNames names_;
  std::optional<Progress> progress_;
  bool begun_ = false, stopped_ = false, windowOpen_ = false;
};

// "TITLE終了！結果ﾌｧｲﾙが表示されています…": how the closing sentence of a report begins or ends.
Text finishedSentence(TextView title);

// The result file that the last run wrote, for those who show it; empty before the first.
const Text& lastResultFile();
// Shows a result file in the window of reports, with `opening` said, the caret so many characters before its end.
void showResultWindow(const Text& path, const Text& title, const Text& opening, std::size_t fromEnd);
// The same with another text in the window, the caret at its head.
void showResultWindow(const Text& path, const Text& title, const Text& opening, const Text& text);

}  // namespace zelko
