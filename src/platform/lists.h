// Lists: plain list and combo boxes, and the drive, folder and file boxes that fill themselves.
#pragma once

#include <vector>

#include "platform/control.h"

namespace zelko {

// Selecting an entry, by key or mouse or program, fires Click.
class ListBox : public Control {
 public:
  ListBox(Form& form, TextView name, int index = -1, ControlKind kind = ControlKind::listBox);

  Text text() const override;  // the selected entry, or empty
  const std::vector<Text>& entries() const { return entries_; }
  int count() const { return static_cast<int>(entries_.size()); }
  int listIndex() const { return listIndex_; }  // from 0; -1 none
  void setListIndex(int index);
  void clear();
  void add(TextView entry);
  void setEntries(std::vector<Text> entries);  // nothing is selected afterwards
  bool keyDefault(const KeyEvent& key) override;

 protected:
  // Moves the mark without any event.
  void mark(int index);

 private:
  std::vector<Text> entries_;
  int listIndex_ = -1;
};

class ComboBox : public ListBox {
 public:
  ComboBox(Form& form, TextView name, int index = -1) : ListBox(form, name, index, ControlKind::comboBox) {}
};

// "/", the home folder and the mounted volumes; Change fires when another is chosen.
class DriveBox : public ListBox {
 public:
  DriveBox(Form& form, TextView name);
  Text drive() const { return text(); }
  void setDrive(TextView path);
  void act() override;
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
  void refresh();
  void act() override;  // a double click or Enter opens the marked folder; a click only marks

 private:
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

}  // namespace zelko
