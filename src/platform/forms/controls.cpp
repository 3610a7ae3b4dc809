#include "platform/forms/controls.h"

#include "platform/forms/form.h"

namespace zelko {
namespace {

// The next control of a kind that arrows walk, round the ends; null where there is no other.
template <class Wanted>
Control* nextOf(const Control& from, int direction, Wanted wanted) {
  Control* next = from.form().nextControl(&from, direction);
  while (next && next != &from && !wanted(*next)) next = from.form().nextControl(next, direction);
  return next == &from ? nullptr : next;
}

int arrowDirection(const KeyEvent& key) {
  if (key.mask != shift::None) return 0;
  if (key.code == key::Right || key.code == key::Down) return 1;
  if (key.code == key::Left || key.code == key::Up) return -1;
  return 0;
}

bool walkButtons(const Control& from, const KeyEvent& key) {
  int direction = arrowDirection(key);
  if (direction == 0) return false;
  Control* next = nextOf(from, direction, [](const Control& control) {
    return control.kind() == ControlKind::commandButton || control.kind() == ControlKind::checkBox;
  });
  if (next) next->setFocus();
  return next != nullptr;
}

}  // namespace

Label::Label(Form& form, TextView name, TextView caption, int index) : Control(form, ControlKind::label, name, index) {
  setCaption(caption);
}

Frame::Frame(Form& form, TextView name, TextView caption) : Control(form, ControlKind::frame, name) {
  setCaption(caption);
}

Button::Button(Form& form, TextView name, TextView caption, int index)
    : Control(form, ControlKind::commandButton, name, index) {
  setCaption(caption);
  tabStop = true;
}

bool Button::keyDefault(const KeyEvent& key) {
  if (!key.is(key::Space, shift::None)) return walkButtons(*this, key);
  act();
  return true;
}

CheckBox::CheckBox(Form& form, TextView name, TextView caption, int index)
    : Control(form, ControlKind::checkBox, name, index) {
  setCaption(caption);
  tabStop = true;
}

void CheckBox::setValue(int value) {
  if (value_ == value) return;
  value_ = value;
  changed(Property::value);
  fire(onClick);
}

bool CheckBox::keyDefault(const KeyEvent& key) {
  if (!key.is(key::Space, shift::None)) return walkButtons(*this, key);
  act();
  return true;
}

void CheckBox::act() { setValue(value_ == 0 ? 1 : 0); }

OptionButton::OptionButton(Form& form, TextView name, TextView caption, int index, const Frame* frame)
    : Control(form, ControlKind::optionButton, name, index), frame_(frame) {
  setCaption(caption);
  tabStop = true;
}

bool OptionButton::sharesGroup(const OptionButton& other) const {
  if (frame_ || other.frame_) return frame_ == other.frame_;
  return name() == other.name();
}

void OptionButton::setValue(int value) {
  if (value_ == value) return;
  value_ = value;
  changed(Property::value);
  if (value == 0) return;
  for (Control* control : form().controls()) {
    if (control == this || control->kind() != ControlKind::optionButton) continue;
    auto& other = static_cast<OptionButton&>(*control);
    if (sharesGroup(other)) other.setValue(0);
  }
  fire(onClick);
}

bool OptionButton::keyDefault(const KeyEvent& key) {
  if (key.is(key::Space, shift::None)) {
    act();
    return true;
  }
  int direction = arrowDirection(key);
  if (direction == 0) return false;
  Control* next = nextOf(*this, direction, [this](const Control& control) {
    return control.kind() == ControlKind::optionButton && sharesGroup(static_cast<const OptionButton&>(control));
  });
  if (next) next->click();
  return next != nullptr;
}

void OptionButton::act() { setValue(1); }

Timer::Timer(Form& form, TextView name) : Control(form, ControlKind::timer, name) {}

void Timer::setInterval(int milliseconds) {
  if (interval_ == milliseconds) return;
  interval_ = milliseconds;
  changed(Property::interval);
}

}  // namespace zelko
