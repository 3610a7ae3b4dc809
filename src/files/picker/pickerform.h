// The form of the file picker.
#pragma once

#include "files/picker/picker.h"
#include "parts/disk/diskboxes.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"

namespace zelko {

struct PickerJob;

class frmDISK : public Form {
 public:
  static constexpr TextView kName = u"frmDISK";
  frmDISK();

  DriveBox Drive1{*this, u"Drive1"};
  FolderBox Dir1{*this, u"Dir1"};
  Label Label2{*this, u"Label2", u"ﾌｧｲﾙ"};
  FileBox File1{*this, u"File1"};
  ListBox List1{*this, u"List1"};  // takes the part of File1 for reference tables, under their own names
  TextBox Text1{*this, u"Text1"};  // the chosen name
  CheckBox Check1{*this, u"Check1", u"引用符内のコンマと改行を保護"};  // for CSV files only
  Button Command1{*this, u"Command1", u"読み込み(CR)"};
  Button Command3{*this, u"Command3", u"中止(ESC)"};
  Button Command4{*this, u"Command4", u"フォルダ作成(&F)"};
  Button cmdNOTZLK{*this, u"cmdNOTZLK", u"すべてのファイルを表示する"};
  Button Command2{*this, u"Command2", u"CSVファイルの読み込み"};
  RichTextBox Text2{*this, u"Text2"};
  RichTextBox Text3{*this, u"Text3"};

  // Takes on a job: captions, pattern, which buttons there are.
  void take(PickFor purpose);
  // Chooses that file in its folder, without a word, where the list has it.
  void choose(const Text& file);
  // Says what is to be chosen, and what is marked, behind the form that has just closed.
  void sayJob() const;
  // The full name of the chosen file, of a table its data file; empty where nothing is selected.
  Text chosenFile() const;

  std::function<void()> onGivenUp;

 private:
  void dress();
  void writeHints();
  void wireLists();
  void wireButtons();
  void narrate();

  void dispItem();
  void dispOItem();

  void frmDISK_Activate();
  void frmDISK_KeyUp(KeyEvent& key);
  void frmDISK_list_Click();
  void frmDISK_list_KeyUp(KeyEvent& key);
  void frmDISK_File1_KeyPress(CharEvent& event);
  void frmDISK_Command1_Click();
  void frmDISK_Command2_Click();
  void frmDISK_Command3_Click();
  void frmDISK_Command4_Click();
  void frmDISK_cmdNOTZLK_Click();

  void openChosen();
  void deleteChosen();
  void deleteMarked();
  void afterDeletion(int index);
  void fillList1();
  void showItems(TextView name);
  Text activeReport() const;
  Text buttonReport(const Control& button) const;

  ListBox& list() { return List1.visible() ? List1 : File1; }
  const ListBox& list() const { return List1.visible() ? List1 : static_cast<const ListBox&>(File1); }
  Text chosenEntry() const;
  Text ownName(TextView listed) const;

  DiskBoxes boxes_{Drive1, Dir1, File1};
  const PickerJob* job_;
  bool opened_ = false;  // the opening sentence is said
  int heldKey_ = 0;      // a key whose press the list has seen: a release alone was meant for another form
};

}  // namespace zelko
