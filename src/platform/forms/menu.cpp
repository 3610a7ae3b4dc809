#include "platform/forms/menu.h"

#include <algorithm>

#include "platform/forms/form.h"
#include "platform/forms/routing.h"
#include "platform/host.h"

namespace zelko {

std::function<void(const MenuEntry&)> onMenuHighlight;

namespace {

bool canHighlight(const MenuEntry& entry) { return entry.visible && !entry.isSeparator(); }

MenuEntry* firstOf(const std::vector<MenuEntry*>& entries) {
  auto found = std::find_if(entries.begin(), entries.end(), [](MenuEntry* entry) { return canHighlight(*entry); });
  return found == entries.end() ? nullptr : *found;
}

// The next entry in `direction` that can be highlighted, round the ends; `from` itself where there is no other.
MenuEntry* nextOf(const std::vector<MenuEntry*>& entries, MenuEntry* from, int direction) {
  int count = static_cast<int>(entries.size());
  int at = static_cast<int>(std::find(entries.begin(), entries.end(), from) - entries.begin());
  for (int step = 1; step < count; ++step) {
    MenuEntry* next = entries[static_cast<std::size_t>(((at + step * direction) % count + count) % count)];
    if (canHighlight(*next)) return next;
  }
  return from;
}

MenuEntry& barOf(MenuEntry& entry) {
  MenuEntry* top = &entry;
  while (top->parent) top = top->parent;
  return *top;
}

}  // namespace

char16_t MenuEntry::mnemonic() const { return mnemonicOf(caption); }
Text MenuEntry::captionWithoutMarks() const { return withoutMarks(caption); }
Text MenuEntry::shortcutText() const { return shortcutCode ? nameOfKey(shortcutCode, shortcutMask) : Text(); }

bool MenuEntry::available() const {
  for (const MenuEntry* entry = this; entry; entry = entry->parent) {
    if (!entry->visible || !entry->enabled) return false;
  }
  return true;
}

MenuEntry& Menu::add(MenuEntry* parent, TextView name, TextView caption, int shortcutCode, int shortcutMask) {
  MenuEntry& entry = *entries_.emplace_back(std::make_unique<MenuEntry>());
  entry.name = name;
  entry.caption = caption;
  entry.shortcutCode = shortcutCode;
  entry.shortcutMask = shortcutMask;
  entry.parent = parent;
  (parent ? parent->children : bar_).push_back(&entry);
  return entry;
}

MenuEntry* Menu::find(TextView name) const {
  for (const auto& entry : entries_) {
    if (!name.empty() && entry->name == name) return entry.get();
  }
  return nullptr;
}

MenuEntry* Menu::byShortcut(int code, int mask) const {
  for (const auto& entry : entries_) {
    if (entry->shortcutCode && entry->shortcutCode == code && entry->shortcutMask == mask) return entry.get();
  }
  return nullptr;
}

MenuEntry* Menu::byMnemonic(char16_t letter) const {
  for (MenuEntry* entry : bar_) {
    if (entry->available() && entry->mnemonic() == letter) return entry;
  }
  return nullptr;
}

void Menu::change(TextView name, bool MenuEntry::*word, bool value) {
  MenuEntry* entry = find(name);
  if (!entry || entry->*word == value) return;
  entry->*word = value;
  if (screen().loaded(form_.name()) == &form_) host().menuChanged(form_);
}

void Menu::setChecked(TextView name, bool checked) { change(name, &MenuEntry::checked, checked); }
void Menu::setEnabled(TextView name, bool enabled) { change(name, &MenuEntry::enabled, enabled); }
void Menu::setVisible(TextView name, bool visible) { change(name, &MenuEntry::visible, visible); }

void Menu::choose(MenuEntry& entry) {
  Screen::HandlerScope scope;
  if (!entry.available()) {
    close();
    host().beep();
    return;
  }
  if (!entry.children.empty()) return enter(entry);
  close();
  if (!entry.command) return host().beep();
  entry.command();
}

void Menu::open(MenuEntry& barEntry) {
  Screen::HandlerScope scope;
  if (barEntry.children.empty()) return choose(barEntry);
  if (!host().opensMenu(form_, barEntry)) enter(barEntry);
}

// Into an entry with children: its first child, or itself where none is shown.
void Menu::enter(MenuEntry& entry) {
  MenuEntry* first = firstOf(entry.children);
  highlight(first ? *first : entry);
}

void Menu::highlight(MenuEntry& entry) {
  highlighted_ = &entry;
  fire(onMenuHighlight, entry);
}

bool Menu::walkKey(const KeyEvent& key) {
  if (!highlighted_) return false;
  Screen::HandlerScope scope;
  switch (key.code) {
    case key::Shift:
    case key::Ctrl:
    case key::Alt:
      return true;
    case key::Down:
      step(1);
      return true;
    case key::Up:
      step(-1);
      return true;
    case key::Right:
      goRight();
      return true;
    case key::Left:
      goLeft();
      return true;
    case key::Enter:
      choose(*highlighted_);
      return true;
    case key::Esc:
      if (highlighted_->parent && highlighted_->parent->parent) {
        highlight(*highlighted_->parent);
      } else {
        close();
        // The control that the keys go to again says so.
        if (Control* control = form_.activeControl()) fire(control->onGotFocus);
      }
      return true;
    default:
      letter(static_cast<char16_t>(key.code));
      return true;
  }
}

const std::vector<MenuEntry*>& Menu::siblings(const MenuEntry& entry) const {
  return entry.parent ? entry.parent->children : bar_;
}

void Menu::step(int direction) {
  // An entry of the bar has nothing above and below it.
  if (!highlighted_->parent) return host().beep();
  highlight(*nextOf(siblings(*highlighted_), highlighted_, direction));
}

void Menu::stepBar(int direction) {
  MenuEntry* next = nextOf(bar_, &barOf(*highlighted_), direction);
  if (next->enabled) return enter(*next);
  highlight(*next);
}

void Menu::goRight() {
  MenuEntry* child = highlighted_->enabled ? firstOf(highlighted_->children) : nullptr;
  if (child && highlighted_->parent) return highlight(*child);
  stepBar(1);
}

void Menu::goLeft() {
  MenuEntry* parent = highlighted_->parent;
  if (parent && parent->parent) return highlight(*parent);
  stepBar(-1);
}

void Menu::letter(char16_t upper) {
  std::vector<MenuEntry*> fitting;
  for (MenuEntry* entry : siblings(*highlighted_)) {
    if (canHighlight(*entry) && entry->mnemonic() == upper) fitting.push_back(entry);
  }
  if (fitting.empty()) return host().beep();
  if (fitting.size() == 1) return choose(*fitting.front());
  // Several share the letter: it walks through them.
  auto here = std::find(fitting.begin(), fitting.end(), highlighted_);
  bool last = here == fitting.end() || here + 1 == fitting.end();
  highlight(last ? *fitting.front() : **(here + 1));
}

}  // namespace zelko
