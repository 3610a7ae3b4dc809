// The form that chooses the folder of the result file to look at.
#pragma once

#include <optional>

#include "parts/disk/diskboxes.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "platform/forms/lists.h"

namespace zelko {

class frmKEKF : public Form {
 public:
  static constexpr TextView kName = u"frmKEKF";
  frmKEKF();

  DriveBox Drive1{*this, u"Drive1"};
  FolderBox Dir1{*this, u"Dir1"};
  FileBox File1{*this, u"File1"};
  Button Command1{*this, u"Command1", u"指定"};
  Button Command2{*this, u"Command2", u"ｷｬﾝｾﾙ"};
  Button Command3{*this, u"Command3", u"フォルダの作成(&F)"};

  std::optional<Text> chosen;

 private:
  DiskBoxes boxes_{Drive1, Dir1, File1};
};

// Modal; the folder, or nothing for a cancel.
std::optional<Text> askResultFolder();

}  // namespace zelko
