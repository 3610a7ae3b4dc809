// Lists: plain list and combo boxes, and the drive, folder and file boxes that fill themselves.
#pragma once

#include <vector>

#include "platform/forms/control.h"

namespace zelko {

// Selecting an entry, by key or mouse or program, fires Click.
class ListBox : public Control {
 public:
  ListBox(Form& form, TextView name, int index = -1, ControlKind kind = ControlKind::listBox);

  Text text() const override;  // the selected entry, or empty
  const std::vector<Text>& entries() const { return entries_; }
  int count() const { return static_cast<int>(entries_.size()); }
  int listIndex() const { return listIndex_; }  // from 0; -1 none
  void setListIndex(int index);                 // a number that is no entry selects nothing
  void clear();
  void add(TextView entry);
  void setEntries(std::vector<Text> entries);  // nothing is selected afterwards
  // Arrows, Home, End, PageUp, PageDown; a beep where the list ends.
  bool keyDefault(const KeyEvent& key) override;
  // The next entry that begins with the character, in either case.
  bool typeDefault(char16_t ch) override;

 protected:
  // Moves the mark without any event.
  void mark(int index);
  // Other entries, and the mark on one of them, without any event.
  void fill(std::vector<Text> entries, int marked);

 private:
  std::vector<Text> entries_;
  int listIndex_ = -1;
};

class ComboBox : public ListBox {
 public:
  ComboBox(Form& form, TextView name, int index = -1) : ListBox(form, name, index, ControlKind::comboBox) {}
};

// "/", the home folder and the mounted volumes. Arrows move the mark, Enter or a double click chooses the marked drive;
// Change fires when another is chosen.
class DriveBox : public ListBox {
 public:
  DriveBox(Form& form, TextView name);
  // The drive that is chosen, whatever the mark stands on.
  const Text& drive() const { return drive_; }
  // The drive that holds the path: the longest that is a part of it.
  void setDrive(TextView path);
  void refresh();  // volumes come and go
  bool keyDefault(const KeyEvent& key) override;
  void actTwice() override;

 private:
  void choose(int index);

  Text drive_;
};

// The folder, its parents above it and its subfolders below it. Arrows move the mark; setPath opens a folder.
class FolderBox : public ListBox {
 public:
  FolderBox(Form& form, TextView name);
  const Text& path() const { return path_; }
  // Opens the folder and fires Change; false, and nothing changed, where it can't be read.
  bool setPath(TextView path);
  // The folder that the mark stands on.
  Text markedPath() const;
  void refresh();  // keeps the mark where its folder still stands
  // Enter or a double click opens the marked folder; arrows and a click only mark.
  bool keyDefault(const KeyEvent& key) override;
  void actTwice() override;

 private:
  // False where the folder can't be read.
  bool list(const Text& path, const Text& marked);

  Text path_;
  std::vector<Text> paths_;  // of each entry
};

// The files of a folder whose names match a pattern ("k?*.txt"; ";" parts several), in either case.
class FileBox : public ListBox {
 public:
  FileBox(Form& form, TextView name);
  const Text& path() const { return path_; }
  void setPath(TextView path);
  const Text& pattern() const { return pattern_; }
  void setPattern(TextView pattern);
  Text fileName() const { return text(); }
  void refresh();  // keeps the selected name where it still stands

 private:
  Text path_, pattern_ = u"*.*";
};

// Whether a file name fits one of the patterns parted by ";": "*" any run, "?" one character, in either case.
// "*.*" fits every name.
bool fileNameFits(TextView name, TextView patterns);

}  // namespace zelko
