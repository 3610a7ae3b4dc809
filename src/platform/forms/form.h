// Forms: a window with controls in tab order, one of them active; and the screen that holds the forms.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "platform/forms/control.h"
#include "platform/forms/menu.h"

namespace zelko {

class Form {
 public:
  // Constructing a form is loading it; nothing is shown yet.
  Form(TextView name, TextView caption);
  virtual ~Form();
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  const Text& name() const { return name_; }
  const Text& caption() const { return caption_; }
  void setCaption(TextView caption);
  bool visible() const { return visible_; }
  bool modal() const { return modal_; }

  // Shows the form and makes it the active one: Activate, then GotFocus of its active control.
  void show();
  // Shows it beside the active form, which keeps the focus.
  void showWithoutFocus();
  // As show(), and returns when the form was hidden or unloaded; the form below has the focus again by then.
  void showModal();
  // The form below becomes active: Activate, GotFocus of its active control.
  void hide();
  // Makes a shown form the active one.
  void activate();

  // All controls in the order of their declaration.
  const std::vector<Control*>& controls() const { return controls_; }
  Control* find(TextView name, int index = -1) const;
  // The control that has the focus while the form is active; null where none can take it.
  Control* activeControl() const;
  // The next or previous control in the order of Tab, round the ends; null where none takes the focus.
  Control* nextControl(const Control* from, int direction) const;

  Menu& menu() { return menu_; }
  const Menu& menu() const { return menu_; }

  // The close box of the window: onClose where the form serves it, else the form is unloaded.
  void closeBox();

  std::function<void()> onActivate, onUnload, onClose;
  // Seen before the active control sees the key.
  std::function<void(KeyEvent&)> onKeyDown, onKeyUp;
  std::function<void(CharEvent&)> onKeyPress;
  // Only this form's controls are live while long work lets events through.
  bool liveDuringWork = false;

 private:
  friend class Control;
  friend class Screen;
  void add(Control& control);
  void remove(Control& control);

  Text name_, caption_;
  std::vector<Control*> controls_;
  Control* active_ = nullptr;
  Menu menu_{*this};
  bool visible_ = false, modal_ = false;
  bool loaded_ = false;  // kept by the screen, not yet unloaded
  bool beside_ = false;  // shown without the focus: never the next one when another closes
  int shownAt_ = 0;      // counts the showing of forms: a modal form shuts out those shown before it
};

// The forms that are loaded and those that are shown. One for the process.
class Screen {
 public:
  // The shown forms, the active one last; null where none is shown.
  const std::vector<Form*>& shown() const { return shown_; }
  Form* activeForm() const { return active_; }
  Control* activeControl() const;

  // A loaded form by name, null where it isn't loaded. Names are compared exactly.
  Form* loaded(TextView name) const;
  const std::vector<std::unique_ptr<Form>>& loadedForms() const { return loaded_; }
  Form& keep(std::unique_ptr<Form> form);

  // Runs onUnload, hides the form and forgets it. It lives on until no handler runs any more.
  void unload(Form& form);
  // Forgets everything without any event: for the end of a run and for tests.
  void reset();

  // Counts running handlers; forms that were unloaded go when the last one ends.
  class HandlerScope {
   public:
    HandlerScope();
    ~HandlerScope();
  };
  bool handlerRuns() const { return depth_ > 0; }
  // Counts the changes of the active form: whoever calls a handler sees by it that another form came in between.
  int activations() const { return activations_; }
  // While long work lets events through, or a wait runs, only a form that is live during work takes input.
  bool takesInput(const Form& form) const;
  int workDepth = 0;

 private:
  friend class Form;
  friend class Control;
  void push(Form& form);
  void leave(Form& form);
  void drop(Form& form);
  void makeActive(Form* form);
  void moveFocus(Control& control);
  void settle();
  bool shutOut(const Form& form) const;
  Form* nextActive() const;
  void bury();

  std::vector<Form*> shown_;
  Form* active_ = nullptr;
  // Whose Activate and GotFocus were the last to fire.
  Form* activated_ = nullptr;
  Control* entered_ = nullptr;
  int depth_ = 0, activations_ = 0, showings_ = 0;
  std::vector<std::unique_ptr<Form>> loaded_, graveyard_;
};

Screen& screen();

// The single instance of a form class, loaded on first use. F has `static constexpr TextView kName`.
template <class F>
F& form() {
  if (Form* there = screen().loaded(F::kName)) return static_cast<F&>(*there);
  return static_cast<F&>(screen().keep(std::make_unique<F>()));
}
// The instance if it is loaded, else null.
template <class F>
F* loadedForm() {
  return static_cast<F*>(screen().loaded(F::kName));
}
template <class F>
void unload() {
  if (F* there = loadedForm<F>()) screen().unload(*there);
}

// Every form that the program can show, by name: what a walk over all forms goes by.
struct FormType {
  Text name;
  std::function<Form&()> load;
};
std::vector<FormType>& formTypes();
template <class F>
void registerForm() {
  formTypes().push_back({Text(F::kName), []() -> Form& { return form<F>(); }});
}

}  // namespace zelko
