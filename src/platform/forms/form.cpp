#include "platform/forms/form.h"

#include <algorithm>
#include <utility>

#include "platform/host.h"

namespace zelko {

Form::Form(TextView name, TextView caption) : name_(name), caption_(caption) {}

Form::~Form() { screen().drop(*this); }

void Form::setCaption(TextView caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  if (loaded_) host().formCaptionChanged(*this);
}

void Form::show() {
  Screen::HandlerScope scope;
  beside_ = false;
  if (!visible_) {
    screen().push(*this);
    host().formShown(*this);
  }
  activate();
}

void Form::showWithoutFocus() {
  Screen::HandlerScope scope;
  if (visible_) return;
  beside_ = true;
  screen().push(*this);
  host().formShown(*this);
}

void Form::showModal() {
  // The scope outlasts the loop: this form must still be there when its own unloading ended it.
  Screen::HandlerScope scope;
  if (!visible_) modal_ = true;
  show();
  // A question that long work asks takes input as any other.
  struct NoWork {
    int depth = std::exchange(screen().workDepth, 0);
    ~NoWork() { screen().workDepth = depth; }
  } noWork;
  if (visible_) host().runModal(*this);
}

void Form::hide() {
  if (visible_) screen().leave(*this);
}

void Form::activate() {
  if (visible_) screen().makeActive(this);
}

Control* Form::find(TextView name, int index) const {
  for (Control* control : controls_) {
    if (control->index() == index && control->name() == name) return control;
  }
  return nullptr;
}

Control* Form::activeControl() const {
  if (active_ && active_->takesFocus()) return active_;
  return nextControl(nullptr, 1);
}

Control* Form::nextControl(const Control* from, int direction) const {
  int count = static_cast<int>(controls_.size());
  auto found = std::find(controls_.begin(), controls_.end(), from);
  int at = found != controls_.end() ? static_cast<int>(found - controls_.begin()) : direction > 0 ? -1 : count;
  for (int step = 1; step <= count; ++step) {
    Control* next = controls_[static_cast<std::size_t>(((at + step * direction) % count + count) % count)];
    if (next->takesFocus()) return next;
  }
  return nullptr;
}

void Form::closeBox() {
  Screen::HandlerScope scope;
  if (onClose) return onClose();
  screen().unload(*this);
}

void Form::add(Control& control) { controls_.push_back(&control); }

void Form::remove(Control& control) {
  std::erase(controls_, &control);
  if (active_ == &control) active_ = nullptr;
  if (screen().entered_ == &control) screen().entered_ = nullptr;
}

std::vector<FormType>& formTypes() {
  static std::vector<FormType> types;
  return types;
}

}  // namespace zelko
