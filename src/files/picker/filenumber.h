// Picking an item of another table: the picker's boxes, and beside them the items of the chosen table.
#pragma once

#include <optional>

#include "parts/disk/diskboxes.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"

namespace zelko {

// Its item file has been read into the second description.
struct FileItem {
  Text dataFile;
  int item = 0;
  Text taken;  // the number, or the trimmed name where the user wants that
};

// Modal; nullopt for cancel. `mayTakeName` false disables the check box: the number is taken.
std::optional<FileItem> getfileno(bool mayTakeName);

class frmFileNo : public Form {
 public:
  static constexpr TextView kName = u"frmFileNo";
  frmFileNo();

  DriveBox Drive1{*this, u"Drive1"};
  FolderBox Dir1{*this, u"Dir1"};
  FileBox File1{*this, u"File1"};
  ListBox List1{*this, u"List1"};
  CheckBox Check1{*this, u"Check1", u"項目番号でなく項目名を記入する"};
  Button Command1{*this, u"Command1", u"選択(CR)"};
  Button Command2{*this, u"Command2", u"中止(ESC)"};

  std::optional<FileItem> chosen;

 private:
  // Fills List1 with the items of the selected file; false, and an empty list, where it is no table.
  bool zdispItem();

  void narrate();
  void frmFileNo_File1_Click();
  void frmFileNo_Command1_Click();
  Text dataFile() const;

  DiskBoxes boxes_{Drive1, Dir1, File1};
};

}  // namespace zelko
