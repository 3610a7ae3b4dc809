// Where the reports go: folder and tick hold from one analysis to the next, as long as the program runs.
#pragma once

#include "parts/disk/diskboxes.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "platform/forms/lists.h"

namespace zelko {

class frmOUTF : public Form {
 public:
  static constexpr TextView kName = u"frmOUTF";
  frmOUTF();

  Label Label2{*this, u"Label2", u""};
  DriveBox Drive1{*this, u"Drive1"};
  FolderBox Dir1{*this, u"Dir1"};
  FileBox File1{*this, u"File1"};
  CheckBox Check1{*this, u"Check1", u"新規"};
  Label Label1{*this, u"Label1", u"新規チェックでKEKKA.TXTはクリアした上で作成されます。"};
  Button Command1{*this, u"Command1", u"戻る(esc)"};
  Button Command2{*this, u"Command2", u"フォルダ作成(&F)"};

 private:
  void showFolder();
  DiskBoxes boxes_{Drive1, Dir1, File1};
};

// The folder that is chosen there, the program's own at the start, and the tick: true replaces the file.
const Text& resultFolder();
bool resultIsNew();
// The button "出力ﾌｫﾙﾀﾞ指定" of the analyses: shows the form, modal. Its sentence.
void chooseResultFolder();
extern const TextView kResultFolderButton;

}  // namespace zelko
