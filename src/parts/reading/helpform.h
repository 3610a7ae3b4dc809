// The window for texts that are read line by line: help texts, and the reports of the analyses.
#pragma once

#include <functional>

#include "parts/reading/linereader.h"
#include "parts/reading/tablewalk.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"

namespace zelko {

struct Reading {
  Text caption, text;
  // A report: each line with its place in the text, and the buttons for print, store and the result file. Else a help
  // text, with the one button that goes back.
  bool report = false;
  Text opening = {};  // said once when the text gets the focus; empty for the window's own sentence
  std::function<void(const Text& text)> save = {};  // "保存"
  std::function<void()> showResults = {};           // "KEKKA表示"
  CellNames names = {};                             // of its tables
};

class frmHelp : public Form {
 public:
  static constexpr TextView kName = u"frmHelp";
  frmHelp();

  RichTextBox RichTextBox1{*this, u"RichTextBox1"};
  Button Command1{*this, u"Command1", u"印刷"};
  Button Command2{*this, u"Command2", u"保存"};
  Button Command3{*this, u"Command3", u"KEKKA表示"};
  Button Command4{*this, u"Command4", u"終了(esc)"};

  void take(const Reading& reading);
  // Said with Ctrl+PageDown as often as it is asked for; empty for none.
  void setResult(TextView sentence) { result_ = sentence; }
  // A line at the end of the text while work goes on, without a word; the buttons are disabled meanwhile.
  void addLine(TextView line);
  void setBusy(bool busy);
  // What the names in its tables stand for, until it takes another text.
  void setNames(CellNames names) { reading_.names = std::move(names); }

 private:
  void narrate();
  Text focusSentence();
  void frmHelp_RichTextBox1_KeyUp(KeyEvent& key);
  void frmHelp_Command1_Click();

  LineReader reader_{RichTextBox1, {}};
  Reading reading_;
  Text result_;
  bool busy_ = false;
};

// Opens the window on it, in place of what it showed; modal, or beside its caller, who gets the form.
void showReading(const Reading& reading);
frmHelp& openReading(const Reading& reading);

}  // namespace zelko
