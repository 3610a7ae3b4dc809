#include "platform/headless/player.h"

#include <algorithm>

#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "platform/forms/mouse.h"
#include "platform/forms/routing.h"
#include "platform/headless/show.h"

namespace zelko {
namespace {

[[noreturn]] void refuse(const Action& action, std::string reason) {
  throw ScriptError{action.line, std::move(reason)};
}

void needOpenForm(const Action& action) {
  if (!screen().activeForm()) refuse(action, "no form is open");
}

Control& controlOf(const Action& action) {
  Form* form = screen().loaded(action.form);
  if (!form || !form->visible()) refuse(action, "the form " + toUtf8(action.form) + " is not open");
  Control* control = form->find(action.control, action.index);
  if (!control) refuse(action, toUtf8(action.form) + " has no control " + toUtf8(action.control));
  return *control;
}

// The form whose menu bar holds the entry: the active one before the others that a user sees.
Form* formWithMenu(const Text& name) {
  const auto& shown = screen().shown();
  auto found = std::find_if(shown.rbegin(), shown.rend(), [&](Form* form) { return form->menu().find(name); });
  return found == shown.rend() ? nullptr : *found;
}

}  // namespace

Player::Player(HeadlessHost& host, std::vector<Action> script, Text mainForm)
    : host_(host), script_(std::move(script)), mainForm_(std::move(mainForm)) {
  expects_ = std::any_of(script_.begin(), script_.end(), [](const Action& a) { return a.verb == Verb::expect; });
}

bool Player::next() {
  if (at_ == script_.size()) return false;
  play(script_[at_++]);
  return true;
}

void Player::heard(std::string_view line) {
  if (expects_) heard_.emplace_back(line);
}

void Player::play(const Action& action) {
  switch (action.verb) {
    case Verb::wait:
      return host_.pass(action.number);
    case Verb::step:
      step_ = action.number;
      return;
    case Verb::clock:
      return host_.setClock(action.when);
    case Verb::seed:
      return host_.seed(static_cast<std::uint32_t>(action.number));
    case Verb::clipboard:
      return host_.copyElsewhere(action.text);
    case Verb::printer:
      return host_.takePrinter(action.state == PortState::absent);
    case Verb::port:
      return host_.setPort(static_cast<int>(action.number), action.state);
    case Verb::show:
      for (const std::string& line : stateLines(action.text, host_, mainForm_)) host_.print(line);
      return;
    case Verb::expect:
      return expect(action);
    case Verb::later:
      host_.deliverLater(static_cast<int>(action.number), [this, then = action.then] { later(*then); });
      return;
    default:
      act(action);
  }
  host_.idle();
}

void Player::later(const Action& action) {
  if (action.verb == Verb::wait) return host_.pass(action.number);
  act(action);
}

void Player::act(const Action& action) {
  host_.pass(step_);
  switch (action.verb) {
    case Verb::key:
      needOpenForm(action);
      return pressKey(action.key.code, action.key.mask);
    case Verb::type:
      return type(action);
    case Verb::commit:
      return commit(action);
    case Verb::compose:
      return compose(action);
    case Verb::menu:
      return chooseMenu(action);
    default:
      return point(action);
  }
}

void Player::type(const Action& action) {
  needOpenForm(action);
  if (action.text == kLineEnd) return typeCharacter(key::Enter);
  if (action.text.size() == 1) return typeCharacter(action.text[0]);
  // A character of two units is no key of any keyboard.
  commit(action);
}

TextBox& Player::activeBox(const Action& action) const {
  needOpenForm(action);
  Control* control = screen().activeControl();
  bool box = control && (control->kind() == ControlKind::textBox || control->kind() == ControlKind::richTextBox);
  if (!box) refuse(action, "no text box has the focus");
  return *static_cast<TextBox*>(control);
}

void Player::commit(const Action& action) {
  TextBox& box = activeBox(action);
  if (!screen().takesInput(box.form())) return;
  host_.endComposition();
  box.commitText(action.text);
}

void Player::compose(const Action& action) {
  if (screen().takesInput(activeBox(action).form())) host_.compose(action.text);
}

void Player::chooseMenu(const Action& action) {
  needOpenForm(action);
  Form* form = formWithMenu(action.text);
  if (!form) refuse(action, "no form that is open has a menu entry " + toUtf8(action.text));
  if (!screen().takesInput(*form)) return host_.beep();
  form->activate();
  // What the form did on becoming active may have closed it.
  if (MenuEntry* entry = form->visible() ? form->menu().find(action.text) : nullptr) form->menu().choose(*entry);
}

void Player::point(const Action& action) {
  Screen::HandlerScope scope;
  Control& control = controlOf(action);
  if (!screen().takesInput(control.form())) return host_.beep();
  if (action.verb == Verb::focus) return control.setFocus();
  MouseModifiers held(action.verb == Verb::ctrlDblclick ? shift::Ctrl : shift::None);
  control.click();
  if (action.verb != Verb::click && control.form().visible()) control.doubleClick();
}

void Player::expect(const Action& action) {
  std::string wanted = toUtf8(action.text);
  bool there = std::any_of(heard_.begin(), heard_.end(),
                           [&](const std::string& line) { return line.find(wanted) != std::string::npos; });
  heard_.clear();
  if (there) return;
  expectFailed_ = true;
  host_.print("FAILED expect " + wanted);
  heard_.clear();
}

}  // namespace zelko
