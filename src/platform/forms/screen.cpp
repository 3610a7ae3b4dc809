// Which forms are shown, which one is active, and the events of a moving focus.
#include <algorithm>

#include "platform/forms/form.h"
#include "platform/forms/routing.h"
#include "platform/host.h"

namespace zelko {

Screen& screen() {
  static Screen screen;
  return screen;
}

Control* Screen::activeControl() const { return active_ ? active_->activeControl() : nullptr; }

Form* Screen::loaded(TextView name) const {
  for (const auto& form : loaded_) {
    if (form->name() == name) return form.get();
  }
  return nullptr;
}

Form& Screen::keep(std::unique_ptr<Form> form) {
  form->loaded_ = true;
  return *loaded_.emplace_back(std::move(form));
}

Screen::HandlerScope::HandlerScope() { ++screen().depth_; }

Screen::HandlerScope::~HandlerScope() {
  if (--screen().depth_ == 0) screen().bury();
}

bool Screen::shutOut(const Form& form) const {
  return std::any_of(shown_.begin(), shown_.end(),
                     [&](const Form* other) { return other->modal_ && other->shownAt_ > form.shownAt_; });
}

bool Screen::takesInput(const Form& form) const {
  if (!form.visible_ || shutOut(form)) return false;
  return workDepth == 0 || form.liveDuringWork;
}

void Screen::push(Form& form) {
  form.visible_ = true;
  form.shownAt_ = ++showings_;
  // Beneath the active form: the last one shown is the one that has the focus.
  shown_.insert(active_ ? shown_.end() - 1 : shown_.end(), &form);
}

void Screen::leave(Form& form) {
  HandlerScope scope;
  form.visible_ = form.modal_ = false;
  form.menu_.close();
  std::erase(shown_, &form);
  host().formHidden(form);
  if (active_ == &form) makeActive(nextActive());
}

// The topmost form that a user could work with. Forms that were shown beside another come last.
Form* Screen::nextActive() const {
  auto topmost = [this](auto wanted) -> Form* {
    auto found =
        std::find_if(shown_.rbegin(), shown_.rend(), [&](Form* form) { return !shutOut(*form) && wanted(*form); });
    return found == shown_.rend() ? nullptr : *found;
  };
  if (Form* form = topmost([](const Form& f) { return !f.beside_ && (f.activeControl() || !f.menu().empty()); })) {
    return form;
  }
  if (Form* form = topmost([](const Form& f) { return !f.beside_; })) return form;
  return topmost([](const Form&) { return true; });
}

void Screen::makeActive(Form* form) {
  if (form && shutOut(*form)) return;
  if (active_ != form) {
    if (active_) active_->menu_.close();
    active_ = form;
    ++activations_;
    auto found = std::find(shown_.begin(), shown_.end(), form);
    if (found != shown_.end()) std::rotate(found, found + 1, shown_.end());
  }
  settle();
}

void Screen::moveFocus(Control& control) {
  Form& form = control.form();
  form.active_ = &control;
  if (form.visible_) makeActive(active_ == &form ? active_ : &form);
}

// Fires what the present focus still owes: LostFocus where it was, Activate, GotFocus where it is. A handler that
// moves the focus on settles that itself; what is left to do is looked up anew after each.
void Screen::settle() {
  HandlerScope scope;
  Control* goal = activeControl();
  if (goal) active_->active_ = goal;
  if (goal == entered_ && active_ == activated_) return;
  if (active_) host().focusMoved(*active_, goal);
  if (entered_ && (entered_ != goal || active_ != activated_)) {
    Control& left = *entered_;
    entered_ = nullptr;
    fire(left.onLostFocus);
  }
  if (active_ != activated_) {
    activated_ = active_;
    if (active_) fire(active_->onActivate);
  }
  goal = activeControl();
  if (goal == entered_ || active_ != activated_) return;
  entered_ = goal;
  if (goal) fire(goal->onGotFocus);
}

void Screen::unload(Form& form) {
  HandlerScope scope;
  if (!form.loaded_) return;
  fire(form.onUnload);
  if (!form.loaded_) return;  // its own handler unloaded it
  auto found = std::find_if(loaded_.begin(), loaded_.end(), [&](const auto& kept) { return kept.get() == &form; });
  form.loaded_ = false;
  graveyard_.push_back(std::move(*found));
  loaded_.erase(found);
  // A form that goes for good takes its focus with it: no LostFocus.
  if (entered_ && &entered_->form() == &form) entered_ = nullptr;
  if (form.visible_) leave(form);
}

void Screen::bury() {
  while (!graveyard_.empty()) {
    std::unique_ptr<Form> form = std::move(graveyard_.back());
    graveyard_.pop_back();
    host().formForgotten(*form);
  }
}

void Screen::drop(Form& form) {
  forgetPresses(form);
  std::erase(shown_, &form);
  if (active_ == &form) active_ = nullptr;
  if (activated_ == &form) activated_ = nullptr;
}

void Screen::reset() {
  shown_.clear();
  active_ = activated_ = nullptr;
  entered_ = nullptr;
  workDepth = 0;
  forgetPresses();
  graveyard_.clear();
  loaded_.clear();
}

}  // namespace zelko
