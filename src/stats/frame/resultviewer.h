// The viewer and editor of the result file.
#pragma once

#include "parts/reading/linereader.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"

namespace zelko {

class frmKEKKA : public Form {
 public:
  static constexpr TextView kName = u"frmKEKKA";
  frmKEKKA();

  Label Label1{*this, u"Label1", u"ファイル名"};
  TextBox Text1{*this, u"Text1"};
  Button Command9{*this, u"Command9", u"読み込"};
  RichTextBox RichTextBox1{*this, u"RichTextBox1"};
  Label Label2{*this, u"Label2", u"選択範囲がある場合は選択範囲を印刷"};
  Button Command3{*this, u"Command3", u"印刷"};
  Button Command2{*this, u"Command2", u"保存"};
  Button Command1{*this, u"Command1", u"KEKKAのフォルダ"};
  Button Command6{*this, u"Command6", u"終了(esc)"};

  // Silent; false where the file can't be read, and the text stays as it was.
  bool load(const Text& path);

 private:
  void wire();
  void narrate();
  void frmKEKKA_RichTextBox1_KeyUp(KeyEvent& key);
  void frmKEKKA_RichTextBox1_Change();
  void frmKEKKA_Command1_Click();
  void frmKEKKA_Command2_Click();
  void frmKEKKA_Command3_Click();
  void frmKEKKA_Command6_Click();
  void frmKEKKA_Command9_Click();

  LineReader reader_{RichTextBox1, {}};
  Text previous_, previousName_;
  Text loaded_, loadedPath_;  // the text as the file has it
  bool filling_ = false;
};

// Opens the viewer, modal, on that file; where it is missing another folder is offered.
void showResultViewer(const Text& path);

// mnuKEKKA and the forms.
void registerResultViewer();

}  // namespace zelko
