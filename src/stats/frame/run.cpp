#include "stats/frame/run.h"

#include <algorithm>

#include "parts/disk/filewords.h"
#include "parts/job/editorhooks.h"
#include "parts/reading/helpform.h"
#include "parts/reading/textfile.h"
#include "stats/frame/analysis.h"
#include "stats/frame/outputfolder.h"
#include "stats/frame/resultviewer.h"
#include "stats/frame/savetext.h"
#include "store/table/notice.h"
#include "voice/dialogs.h"
#include "voice/heard.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr TextView kStopped = u"強制終了!!";
constexpr TextView kFinished = u"終了！結果ﾌｧｲﾙが表示されています.矢印ｷｰ操作で範囲部が読まれます。escで終了します";

Text& lastFile() {
  static Text path;
  return path;
}

void openResult(const Text& path, const Text& title, const Text& opening, const Text& text, std::size_t caret) {
  frmHelp& window = openReading({.caption = title,
                                 .text = text,
                                 .report = true,
                                 .opening = opening,
                                 .save = [title](const Text& shown) { saveTextAs(shown, title + u".txt"); },
                                 .showResults = [path] { showResultViewer(path); }});
  window.RichTextBox1.setSelection(static_cast<int>(caret), 0);
  window.show();
}

}  // namespace

Text finishedSentence(TextView title) { return Text(title) + Text(kFinished); }

const Text& lastResultFile() { return lastFile(); }

AnalysisRun::~AnalysisRun() {
  if (!begun_) return;
  try {
    stop();
  } catch (...) {
    // A fault is on its way already; the report is closed by its owner.
  }
}

bool AnalysisRun::begin(TextView folder, bool anew, TextView reportTitle) {
  if (!report_.open(folder, anew)) return false;
  begun_ = true;
  report_.head(reportTitle);
  return true;
}

bool AnalysisRun::begin(TextView reportTitle) { return begin(resultFolder(), resultIsNew(), reportTitle); }

void AnalysisRun::windowLine(TextView line) {
  if (!window_) window_ = report_.headText();
  *window_ += Text(line) + kLineEnd;
}

bool AnalysisRun::beginBare() {
  begun_ = report_.open(resultFolder(), resultIsNew());
  return begun_;
}

void AnalysisRun::openWindow() {
  if (windowOpen_) return;
  const Silence silence;
  frmHelp& window = openReading({.caption = title_, .text = {}, .report = true});
  window.setBusy(true);
  window.show();
  windowOpen_ = true;
}

void AnalysisRun::compute(TextView work, std::int64_t steps) {
  openWindow();
  const Silence silence;
  progress_.reset();
  progress_.emplace(work, steps);
}

bool AnalysisRun::step(std::int64_t done) {
  if (progress_ && !progress_->step(done)) {
    stopped_ = true;
    analysisMode = u"BREAK";
  }
  return !stopped_;
}

void AnalysisRun::rest() {
  const Silence silence;
  progress_.reset();
}

void AnalysisRun::lines(const std::vector<Text>& lines) {
  Text block;
  for (const Text& line : lines) {
    report_.line(line);
    block += (block.empty() ? Text() : Text(kLineEnd)) + line;
  }
  if (frmHelp* window = loadedForm<frmHelp>()) window->addLine(block);
}

void AnalysisRun::tell(TextView line) {
  if (frmHelp* window = loadedForm<frmHelp>()) window->addLine(line);
  talkGated(line);
}

void AnalysisRun::tellStep(TextView shown, TextView said) {
  if (frmHelp* window = loadedForm<frmHelp>()) window->RichTextBox1.setText(shown);
  talkGated(said);
}

void AnalysisRun::closeDialogs() {
  const Silence silence;
  progress_.reset();
  if (windowOpen_) unload<frmHelp>();
  windowOpen_ = false;
}

bool AnalysisRun::finish(Form& form, const Text& closing, bool repeats) {
  begun_ = false;
  closeDialogs();
  analysisMode.clear();
  if (!report_.close()) return false;
  lastFile() = report_.path();
  {
    const Silence silence;
    editorHooks.reload(false);
  }
  closeUnheard(form);
  const Text said = closing.empty() ? finishedSentence(title_) : closing;
  if (!repeats) {
    waitPastGate();
    showWindow(said, said);
    return true;
  }
  {
    const Silence silence;
    showWindow({}, said);
  }
  showRepeat(said);
  return true;
}

void AnalysisRun::showWindow(const Text& opening, const Text& result) {
  if (window_)
    showResultWindow(report_.path(), title_, opening, *window_);
  else
    showResultWindow(report_.path(), title_, opening, report_.written());
  frmHelp* window = loadedForm<frmHelp>();
  if (!window) return;
  window->setResult(result);
  if (window_ || !names_) return;
  const std::size_t shown = window->RichTextBox1.content().size(), before = shown - std::min(shown, report_.written());
  window->setNames([names = names_, before](NamedPart part, TextView name, std::size_t position) {
    return position < before ? Text() : names(part, name, position - before);
  });
}

void AnalysisRun::refuse() {
  begun_ = false;
  closeDialogs();
  report_.close();
}

void AnalysisRun::stop() {
  begun_ = false;
  closeDialogs();
  report_.line(kStopped);
  report_.close();
  analysisMode.clear();
  talkBehindDialog(kStopped);
}

void showResultWindow(const Text& path, const Text& title, const Text& opening, std::size_t fromEnd) {
  const auto text = readTextFile(path);
  if (!text) return tellFailure(spokenName(path) + u"が読めません", u"KEKKA.TXT");
  openResult(path, title, opening, *text, text->size() - std::min(text->size(), fromEnd));
}

void showResultWindow(const Text& path, const Text& title, const Text& opening, const Text& text) {
  openResult(path, title, opening, text, 0);
}

}  // namespace zelko
