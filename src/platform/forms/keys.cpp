// Keys by name, and the characters that they type.
#include "platform/forms/keys.h"

#include <array>

#include "platform/forms/routing.h"
#include "platform/text/number.h"

namespace zelko {
namespace {

struct NamedKey {
  TextView name;
  int code;
};
constexpr std::array<NamedKey, 18> kNamedKeys = {{{u"Up", key::Up},
                                                  {u"Down", key::Down},
                                                  {u"Left", key::Left},
                                                  {u"Right", key::Right},
                                                  {u"Home", key::Home},
                                                  {u"End", key::End},
                                                  {u"PageUp", key::PageUp},
                                                  {u"PageDown", key::PageDown},
                                                  {u"Insert", key::Insert},
                                                  {u"Delete", key::Delete},
                                                  {u"Backspace", key::Backspace},
                                                  {u"Enter", key::Enter},
                                                  {u"Esc", key::Esc},
                                                  {u"Tab", key::Tab},
                                                  {u"Space", key::Space},
                                                  {u"Shift", key::Shift},
                                                  {u"Ctrl", key::Ctrl},
                                                  {u"Alt", key::Alt}}};

bool isDigit(char16_t ch) { return ch >= u'0' && ch <= u'9'; }

// The number behind a prefix, one or two digits without a leading 0; -1 for none.
int numberBehind(TextView name, TextView prefix) {
  if (!name.starts_with(prefix)) return -1;
  name.remove_prefix(prefix.size());
  if (name.empty() || name.size() > 2 || (name.size() == 2 && name[0] == u'0')) return -1;
  int number = 0;
  for (char16_t ch : name) {
    if (!isDigit(ch)) return -1;
    number = number * 10 + (ch - u'0');
  }
  return number;
}

int codeOf(TextView name) {
  if (name.size() == 1 && (isDigit(name[0]) || (name[0] >= u'A' && name[0] <= u'Z'))) return name[0];
  for (const NamedKey& named : kNamedKeys) {
    if (named.name == name) return named.code;
  }
  int function = numberBehind(name, u"F");
  if (function >= 1 && function <= 12) return key::function(function);
  int pad = numberBehind(name, u"Num");
  return pad >= 0 && pad <= 9 ? key::Num0 + pad : 0;
}

}  // namespace

char16_t characterOf(int code, int mask) {
  if (mask != shift::None && mask != shift::Shift) return 0;
  if (code >= key::A && code <= key::letter('Z')) {
    return static_cast<char16_t>(mask == shift::Shift ? code : code - key::A + u'a');
  }
  if (code >= key::Digit0 && code <= key::Digit0 + 9 && mask == shift::None) return static_cast<char16_t>(code);
  if (code >= key::Num0 && code <= key::Num0 + 9 && mask == shift::None) {
    return static_cast<char16_t>(code - key::Num0 + u'0');
  }
  switch (code) {
    case key::Enter:
    case key::Esc:
    case key::Backspace:
    case key::Space:
      return static_cast<char16_t>(code);
    default:
      return 0;
  }
}

bool keyByName(TextView name, KeyEvent& out) {
  constexpr std::array<NamedKey, 3> modifiers = {
      {{u"Shift+", shift::Shift}, {u"Ctrl+", shift::Ctrl}, {u"Alt+", shift::Alt}}};
  KeyEvent key;
  for (bool found = true; found;) {
    found = false;
    for (const NamedKey& modifier : modifiers) {
      if (!name.starts_with(modifier.name)) continue;
      if (key.mask & modifier.code) return false;
      key.mask |= modifier.code;
      name.remove_prefix(modifier.name.size());
      found = true;
    }
  }
  key.code = codeOf(name);
  if (key.code == 0) return false;
  out = key;
  return true;
}

Text nameOfKey(int code, int mask) {
  Text name;
  if (mask & shift::Shift) name += u"Shift+";
  if (mask & shift::Ctrl) name += u"Ctrl+";
  if (mask & shift::Alt) name += u"Alt+";
  for (const NamedKey& named : kNamedKeys) {
    if (named.code == code) return name.append(named.name);
  }
  if (code >= key::Num0 && code <= key::Num0 + 9) return name + u"Num" + decimal(code - key::Num0);
  if (code >= key::F1 && code < key::F1 + 12) return name + u"F" + decimal(code - key::F1 + 1);
  if (codeOf(Text(1, static_cast<char16_t>(code))) == code) return name + static_cast<char16_t>(code);
  return {};
}

}  // namespace zelko
