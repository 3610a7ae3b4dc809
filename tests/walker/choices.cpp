#include "walker/choices.h"

#include <iterator>
#include <vector>

#include "platform/forms/controls.h"
#include "platform/forms/form.h"

namespace zelko::test {
namespace {

std::size_t upTo(std::mt19937& random, std::size_t n) { return random() % n; }

template <std::size_t N>
std::string oneOf(const char* const (&words)[N], std::mt19937& random) {
  return words[upTo(random, N)];
}

std::string lookingKey(std::mt19937& random) {
  static constexpr const char* keys[] = {"Up",           "Down",           "Left",      "Right",     "PageUp",
                                         "PageDown",     "Home",           "End",       "Ctrl+Home", "Ctrl+End",
                                         "Ctrl+Left",    "Ctrl+Right",     "Alt+N",     "Alt+M",     "Shift+Ctrl+A",
                                         "Shift+Ctrl+S", "Shift+PageDown", "Ctrl+Num0", "Ctrl+Num1", "Ctrl+Num5",
                                         "Ctrl+Up",      "Ctrl+Down"};
  return "key " + oneOf(keys, random);
}

std::string anyKey(std::mt19937& random) {
  static constexpr const char* keys[] = {
      "Up",    "Down",  "Left", "Right", "PageUp", "PageDown", "Home", "End",  "Insert", "Delete", "Backspace",
      "Enter", "Enter", "Esc",  "Tab",   "Space",  "F1",       "F2",   "F3",   "F4",     "F5",     "F6",
      "F7",    "F8",    "F9",   "F10",   "F11",    "F12",      "Num0", "Num5", "Num9"};
  static constexpr const char* modifiers[] = {"", "", "", "", "", "Shift+", "Ctrl+", "Shift+Ctrl+", "Alt+"};
  const std::string modifier = oneOf(modifiers, random);
  if (!modifier.empty() && upTo(random, 2) == 0) {
    const std::size_t which = upTo(random, 36);
    return "key " + modifier + static_cast<char>(which < 10 ? '0' + which : 'A' + which - 10);
  }
  return "key " + modifier + oneOf(keys, random);
}

std::string text(std::mt19937& random) {
  static constexpr const char* pieces[] = {"1", "2",  "0", "9",  "12", "254",   "999", "-",  ".",         "1e400",
                                           ",", "a",  "Z", "東", "ｱ",  "ﾞ",     "能",  "ソ", "　",        "+",
                                           "=", "@2", "(", "\"", " ",  "32768", "髙",  "😀",  "2147483648"};
  std::string all;
  for (std::size_t count = 1 + upTo(random, 4); count > 0; --count) all += oneOf(pieces, random);
  return all;
}

std::string pointing(const Form& form, std::mt19937& random) {
  std::vector<const Control*> live;
  for (const Control* control : form.controls()) {
    const bool there = control->visible() && control->enabled() && control->kind() != ControlKind::timer;
    if (there) live.push_back(control);
  }
  if (live.empty()) return anyKey(random);
  static constexpr const char* verbs[] = {"click ", "click ", "focus ", "dblclick ", "Ctrl+dblclick "};
  const Control& control = *live[upTo(random, live.size())];
  return oneOf(verbs, random) + toUtf8(form.name()) + "." + toUtf8(control.fullName());
}

void collect(const std::vector<MenuEntry*>& entries, std::vector<const MenuEntry*>& out) {
  for (const MenuEntry* entry : entries) {
    if (entry->children.empty() && entry->available() && !entry->name.empty()) out.push_back(entry);
    collect(entry->children, out);
  }
}

std::string menuLine(const Form& form, std::mt19937& random) {
  std::vector<const MenuEntry*> entries;
  collect(form.menu().bar(), entries);
  if (entries.empty()) return anyKey(random);
  return "menu " + toUtf8(entries[upTo(random, entries.size())]->name);
}

std::string ofTheWorld(std::mt19937& random) {
  static constexpr const char* lines[] = {"wait 0.3",        "wait 5",          "step 0",           "step 1",
                                          "clipboard 他の",  "printer absent",  "printer present",  "port COM2 fails",
                                          "later 1 key Esc", "later 3 key Esc", "later 2 key Down", "later 1 wait 5"};
  return oneOf(lines, random);
}

bool takesText(const Control* control) {
  return control && (control->kind() == ControlKind::textBox || control->kind() == ControlKind::richTextBox);
}

}  // namespace

std::string nextLine(Manner manner, std::mt19937& random) {
  if (manner == Manner::onlyLooking) return lookingKey(random);
  const Form* form = screen().activeForm();
  if (!form) return "wait 1";
  const std::size_t dice = upTo(random, 100);
  if (dice < 15) return lookingKey(random);
  if (dice < 45) return anyKey(random);
  if (dice < 60) return "type " + text(random);
  if (dice < 65 && takesText(form->activeControl())) return "commit " + text(random);
  if (dice < 67 && takesText(form->activeControl())) return "compose " + text(random);
  if (dice < 85) return pointing(*form, random);
  if (dice < 96) return menuLine(*form, random);
  return ofTheWorld(random);
}

}  // namespace zelko::test
