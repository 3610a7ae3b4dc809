// The form that asks for the name of an output file.
#pragma once

#include "files/output/output.h"
#include "parts/disk/diskboxes.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"

namespace zelko {

class formHOZON : public Form {
 public:
  static constexpr TextView kName = u"formHOZON";
  formHOZON();

  RichTextBox RichTextBox1{*this, u"RichTextBox1"};  // the name, with or without a folder
  Label Label2{*this, u"Label2", u""};               // what happens with a file of the same name
  DriveBox Drive1{*this, u"Drive1"};
  FolderBox Dir1{*this, u"Dir1"};
  FileBox File1{*this, u"File1"};
  Button Command1{*this, u"Command1", u"実行(CR)"};
  Button Command2{*this, u"Command2", u"中止(ESC)"};
  Button Command3{*this, u"Command3", u"フォルダ作成(&F)"};

  // Takes on the job of that word, and publishes the word.
  void take(TextView word);
  // Puts a text into the name box without a word, the caret behind it.
  void fillName(TextView name);

 private:
  void wire();
  void narrate();
  void formHOZON_Activate();
  void formHOZON_RichTextBox1_Change();
  void formHOZON_RichTextBox1_KeyDown(KeyEvent& key);
  void formHOZON_File1_Click();
  void formHOZON_folderChanged();
  void formHOZON_Command1_Click();
  void formHOZON_Command2_Click();
  Text chosenName() const;

  DiskBoxes boxes_{Drive1, Dir1, File1};
  OutputJob job_;
  Text word_;      // of the job
  Text lastName_;  // the name box at its last change
  bool opened_ = false, filling_ = false;
};

}  // namespace zelko
