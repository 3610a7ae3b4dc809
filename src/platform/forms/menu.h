// A form's menu: entries in their order, with shortcuts, and the walk through them by key.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "platform/forms/keys.h"
#include "platform/text/text.h"

namespace zelko {

class Form;

struct MenuEntry {
  Text name;     // "mnuSORT"; empty and caption "-": a separator
  Text caption;  // with "&" before its letter
  int shortcutCode = 0, shortcutMask = 0;
  bool enabled = true, visible = true, checked = false;
  MenuEntry* parent = nullptr;
  std::vector<MenuEntry*> children;
  std::function<void()> command;  // empty: the entry answers with a beep

  bool isSeparator() const { return caption == u"-"; }
  // The letter behind "&", upper case; 0 where there is none.
  char16_t mnemonic() const;
  Text captionWithoutMarks() const;
  // Shown and enabled, and every parent too.
  bool available() const;
  // "Ctrl+F2", as the keys are named everywhere; empty where there is none.
  Text shortcutText() const;
};

class Menu {
 public:
  explicit Menu(Form& form) : form_(form) {}

  // `parent` null makes an entry of the bar.
  MenuEntry& add(MenuEntry* parent, TextView name, TextView caption, int shortcutCode = 0, int shortcutMask = 0);
  MenuEntry* find(TextView name) const;
  MenuEntry* byShortcut(int code, int mask) const;
  MenuEntry* byMnemonic(char16_t letter) const;  // of the bar, shown and enabled
  const std::vector<MenuEntry*>& bar() const { return bar_; }
  bool empty() const { return bar_.empty(); }

  void setChecked(TextView name, bool checked);
  void setEnabled(TextView name, bool enabled);
  void setVisible(TextView name, bool visible);

  // Runs the entry's command; hidden, disabled (or under such a parent) or unserved it beeps. An entry with children
  // opens.
  void choose(MenuEntry& entry);

  // The walk: which entry is highlighted (null while the menu is closed). Arrow keys, letters, Enter and Esc move it.
  MenuEntry* highlighted() const { return highlighted_; }
  void open(MenuEntry& barEntry);
  void close() { highlighted_ = nullptr; }
  // True when the key belonged to the open menu.
  bool walkKey(const KeyEvent& key);

 private:
  void change(TextView name, bool MenuEntry::*word, bool value);
  void highlight(MenuEntry& entry);
  void enter(MenuEntry& entry);
  void step(int direction);
  void stepBar(int direction);
  void goRight();
  void goLeft();
  void letter(char16_t upper);
  const std::vector<MenuEntry*>& siblings(const MenuEntry& entry) const;

  Form& form_;
  std::vector<std::unique_ptr<MenuEntry>> entries_;
  std::vector<MenuEntry*> bar_;
  MenuEntry* highlighted_ = nullptr;
};

// Told of every entry that becomes highlighted, by key here or by a native menu: speech hangs on it.
extern std::function<void(const MenuEntry&)> onMenuHighlight;

}  // namespace zelko
