#include "platform/forms/routing.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include "platform/forms/controls.h"
#include "platform/host.h"

namespace zelko {
namespace {

// A key that is down, and who took its press: the release is theirs, and nobody else's.
struct Press {
  int code, mask;
  const Form* form;
  const Control* control;  // null: whichever has the focus in the form
};
std::vector<Press> presses;
bool escapeLost = false;  // what takeLostEscape hands out
int underWay = 0;         // the key whose press is being routed

void forgetPress(int code) {
  std::erase_if(presses, [code](const Press& press) { return press.code == code; });
}

std::optional<Press> takePress(int code) {
  const auto found = std::ranges::find(presses, code, &Press::code);
  if (found == presses.end()) return {};
  const Press press = *found;
  presses.erase(found);
  return press;
}

bool isModifier(int code) { return code == key::Shift || code == key::Ctrl || code == key::Alt; }

// A modifier that has made a chord says nothing of its own when it comes up.
void notePress(int code, int mask, const Form& form) {
  forgetPress(code);
  if (!isModifier(code)) std::erase_if(presses, [](const Press& press) { return isModifier(press.code); });
  presses.push_back({code, mask, &form, form.activeControl()});
}

class UnderWay {
 public:
  explicit UnderWay(int code) : before_(std::exchange(underWay, code)) {}
  ~UnderWay() { underWay = before_; }
  UnderWay(const UnderWay&) = delete;
  UnderWay& operator=(const UnderWay&) = delete;

 private:
  int before_;
};

struct HeldKey {
  int code, mask;
  bool released = false;
};
HeldKey* heldKey = nullptr;

// Whether the form and the control that a key is on its way through still have the focus. A form that came in between
// ends the way, even when it is gone again: what was typed was not meant for the state it left.
class Way {
 public:
  Way(Form& form) : form_(form), control_(form.activeControl()), activations_(screen().activations()) {}
  Control* control() const { return control_; }
  bool broken() const { return screen().activations() != activations_ || form_.activeControl() != control_; }

 private:
  Form& form_;
  Control* control_;
  int activations_;
};

bool isTextBox(const Control* control) {
  return control && (control->kind() == ControlKind::textBox || control->kind() == ControlKind::richTextBox);
}

bool shortcutTook(Form& form, const KeyEvent& key) {
  MenuEntry* entry = form.menu().byShortcut(key.code, key.mask);
  if (entry) form.menu().choose(*entry);
  return entry != nullptr;
}

bool hasMnemonic(const Control& control, char16_t letter) {
  bool pressed = control.kind() == ControlKind::commandButton || control.kind() == ControlKind::checkBox ||
                 control.kind() == ControlKind::optionButton;
  return pressed && control.enabled() && control.visible() && mnemonicOf(control.caption()) == letter;
}

bool mnemonicTook(Form& form, const KeyEvent& key) {
  if (key.mask != shift::Alt || key.code < key::Digit0 || key.code > key::letter('Z')) return false;
  auto letter = static_cast<char16_t>(key.code);
  if (MenuEntry* entry = form.menu().byMnemonic(letter)) {
    forgetPress(key.code);
    form.menu().open(*entry);
    return true;
  }
  for (Control* control : form.controls()) {
    if (!hasMnemonic(*control, letter)) continue;
    forgetPress(key.code);
    control->click();
    return true;
  }
  return false;
}

// True when a handler swallowed the event or ended its way.
bool keyHandlersTook(Form& form, const Way& way, KeyEvent& key) {
  fire(form.onKeyDown, key);
  if (key.code == 0 || way.broken()) return true;
  if (!way.control()) return false;
  fire(way.control()->onKeyDown, key);
  return key.code == 0 || way.broken();
}

bool charHandlersTook(Form& form, const Way& way, CharEvent& typed) {
  fire(form.onKeyPress, typed);
  if (typed.ch == 0 || way.broken()) return true;
  if (!way.control()) return false;
  fire(way.control()->onKeyPress, typed);
  return typed.ch == 0 || way.broken();
}

// Controls that do something of their own with Enter.
bool ownsEnter(const Control* control) {
  if (!control) return false;
  switch (control->kind()) {
    case ControlKind::driveBox:
    case ControlKind::folderBox:
    case ControlKind::pictureBox:
      return true;
    case ControlKind::richTextBox:
      return !static_cast<const TextBox*>(control)->readOnly;
    default:
      return false;
  }
}

Button* buttonFor(const Form& form, bool Button::*role) {
  for (Control* control : form.controls()) {
    if (control->kind() != ControlKind::commandButton || !control->enabled() || !control->visible()) continue;
    auto& button = static_cast<Button&>(*control);
    if (button.*role) return &button;
  }
  return nullptr;
}

bool navigationTook(Form& form, Control* control, const KeyEvent& key) {
  if (key.code == key::Tab && (key.mask == shift::None || key.mask == shift::Shift)) {
    Control* next = form.nextControl(control, key.mask == shift::None ? 1 : -1);
    if (next) next->setFocus();
    return true;
  }
  if (key.mask != shift::None) return false;
  Button* button = nullptr;
  if (key.code == key::Esc) button = buttonFor(form, &Button::isCancel);
  if (key.code == key::Enter && control && control->kind() == ControlKind::commandButton) {
    button = static_cast<Button*>(control);
  } else if (key.code == key::Enter && !ownsEnter(control)) {
    button = buttonFor(form, &Button::isDefault);
  }
  // The focus stays where it is: a box that is left by Enter is not left for its button.
  if (button) button->act();
  return button != nullptr;
}

// The keys with Ctrl that edit a text; every other one must not reach a native box, which would type something.
bool editsWithCtrl(int code) {
  static constexpr int keys[] = {key::letter('A'), key::letter('C'), key::letter('V'), key::letter('X'),
                                 key::letter('Z'), key::Insert,      key::Delete,      key::Backspace,
                                 key::Left,        key::Right,       key::Up,          key::Down,
                                 key::Home,        key::End};
  return std::find(std::begin(keys), std::end(keys), code) != std::end(keys);
}

// Whether the native editor may have the key: with Alt never, with Ctrl only what edits, with both only a character
// that the keyboard types that way.
bool editorMayHave(const KeyEvent& key, char16_t ch) {
  bool alt = (key.mask & shift::Alt) != 0, ctrl = (key.mask & shift::Ctrl) != 0;
  if (alt) return ctrl && ch != 0;
  return !ctrl || editsWithCtrl(key.code);
}

}  // namespace

bool routeKeyDown(int code, int mask, char16_t ch) {
  Screen::HandlerScope scope;
  forgetPress(code);
  Form* form = screen().activeForm();
  if (!form || !screen().takesInput(*form)) {
    escapeLost = escapeLost || (screen().workDepth > 0 && code == key::Esc && mask == shift::None);
    return true;
  }
  KeyEvent key{code, mask};
  if (form->menu().highlighted()) return form->menu().walkKey(key);
  notePress(code, mask, *form);
  const UnderWay pressing(code);
  if (shortcutTook(*form, key) || mnemonicTook(*form, key)) return true;
  Way way(*form);
  if (keyHandlersTook(*form, way, key) || navigationTook(*form, way.control(), key)) return true;
  CharEvent typed{(mask == shift::None || mask == shift::Shift || mask == shift::CtrlAlt) ? ch : char16_t{0}};
  if (typed.ch && charHandlersTook(*form, way, typed)) return true;
  Control* control = way.control();
  if (isTextBox(control)) return !editorMayHave(key, typed.ch);
  if (control && !control->keyDefault(key) && typed.ch) control->typeDefault(typed.ch);
  return true;
}

void routeKeyUp(int code) {
  Screen::HandlerScope scope;
  const std::optional<Press> press = takePress(code);
  Form* form = screen().activeForm();
  if (!press || !form || press->form != form) return;
  if (!screen().takesInput(*form) || form->menu().highlighted()) return;
  Way way(*form);
  KeyEvent key{code, press->mask};
  fire(form->onKeyUp, key);
  if (key.code == 0 || way.broken() || !way.control()) return;
  if (!press->control || press->control == way.control()) fire(way.control()->onKeyUp, key);
}

bool takeLostEscape() { return std::exchange(escapeLost, false); }

void passRelease(const Form& form) {
  for (Press& press : presses) {
    if (press.code == underWay) press = {press.code, press.mask, &form, nullptr};
  }
}

void forgetPresses() { presses.clear(); }

void forgetPresses(const Form& form) {
  std::erase_if(presses, [&form](const Press& press) { return press.form == &form; });
}

namespace {

// Holds a key down while its handlers run.
class Hold {
 public:
  explicit Hold(HeldKey& key) : before_(heldKey) { heldKey = &key; }
  ~Hold() { heldKey = before_; }
  Hold(const Hold&) = delete;
  Hold& operator=(const Hold&) = delete;

 private:
  HeldKey* before_;
};

void press(int code, int mask, char16_t ch) {
  Screen::HandlerScope scope;
  HeldKey held{code, mask};
  Hold hold(held);
  if (!routeKeyDown(code, mask, ch)) {
    Control* control = screen().activeControl();
    if (control && !control->keyDefault({code, mask}) && ch) control->typeDefault(ch);
  }
  releaseHeldKey();
}

}  // namespace

void releaseHeldKey() {
  HeldKey* held = heldKey;
  if (!held || held->released) return;
  held->released = true;
  routeKeyUp(held->code);
}

void pressKey(int code, int mask) { press(code, mask, characterOf(code, mask)); }

void typeCharacter(char16_t ch) {
  if (ch == u'\n') ch = key::Enter;
  bool upper = ch >= u'A' && ch <= u'Z', lower = ch >= u'a' && ch <= u'z', digit = ch >= u'0' && ch <= u'9';
  int code = key::Other;
  if (lower) code = ch - u'a' + key::A;
  if (upper || digit || ch == key::Space || ch == key::Enter || ch == key::Backspace || ch == key::Esc) code = ch;
  press(code, upper ? shift::Shift : shift::None, ch);
}

}  // namespace zelko
