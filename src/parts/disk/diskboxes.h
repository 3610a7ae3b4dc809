// The drive box, the folder box and the file list of a form, held together: each follows the others and speaks.
#pragma once

#include <functional>

#include "platform/forms/lists.h"
#include "voice/narration.h"

namespace zelko {

// What is said instead where the boxes choose a folder and not a file.
struct DiskWords {
  Text drive, folder;                                          // in front when one of the two boxes gets the focus
  std::function<Text(TextView folder, TextView box)> changed;  // after a change, in place of folderReport
};

class DiskBoxes {
 public:
  DiskBoxes(DriveBox& drives, FolderBox& folders, FileBox& files);

  // Goes to the folder, or where it can't be read to "/", without a word.
  void open(TextView folder);
  // Lists anew what is on the disk, without a word.
  void refresh();
  // The folder of the list with the name behind it.
  Text pathOf(TextView name) const;

  // The narration of the drive box and the folder box.
  void narrate(Narration& voice);
  // That of the list, where the form has nothing of its own to say of a file.
  void narrateFiles(Narration& voice);
  // The mark of the list has moved: what has been news before, else what `words` composes of it. Nothing without a
  // mark.
  void sayMarkedFile(const Sentence& words);
  void sayMarkedFile();

  // Asks for a name and makes a folder of it under the marked one, then lists it and goes to the folder box. False
  // where none was made.
  bool makeFolderHere();

  // What the two boxes add to a report: the drive, the folder.
  Text whereItStands(const Control* focused) const;

  // After the user has changed the folder: the report of it, kept as news while the gate is shut, so that the next move
  // in the list tells it. False where there is no such news.
  bool sayFolderReport();

  // The user has changed the folder, and the list shows it; runs before the report.
  std::function<void()> onFolderChanged;
  // How an entry of the list is called.
  std::function<Text(TextView)> shownName = [](TextView listed) { return Text(listed); };
  DiskWords words;

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
