// The drive box, the folder box and the file list of a picker, held together: each follows the others and speaks.
#pragma once

#include <functional>

#include "platform/forms/lists.h"
#include "voice/narration.h"

namespace zelko {

class DiskBoxes {
 public:
  DiskBoxes(DriveBox& drives, FolderBox& folders, FileBox& files);

  // Goes to the folder, or where it can't be read to "/", without a word.
  void open(TextView folder);
  // Lists anew what is on the disk, without a word.
  void refresh();
  // The folder of the list with the name behind it.
  Text pathOf(TextView name) const;

  // The narration of the drive box and the folder box; the list is the form's own.
  void narrate(Narration& voice);
  // What the two boxes add to a report: the drive, the folder.
  Text whereItStands(const Control* focused) const;

  // After the user has changed the folder: the report of it, kept as news while the gate is shut, so that the next move
  // in the list tells it. False where there is no such news.
  bool sayFolderReport();

  // The user has changed the folder, and the list shows it; runs before the report.
  std::function<void()> onFolderChanged;
  // How an entry of the list is called.
  std::function<Text(TextView)> shownName;

 private:
  void openMarkedFolder();
  void folderOpened();
  void driveChosen();
  void driveKeyDown(KeyEvent& key);

  DriveBox& drives_;
  FolderBox& folders_;
  FileBox& files_;
  int following_ = 0;  // the boxes are being set by each other or the program, not by the user
  bool folderIsNews_ = false;
};

}  // namespace zelko
