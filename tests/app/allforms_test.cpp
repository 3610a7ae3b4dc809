// A walk over every form that the program registers: no control of any of them may be silent. A form that is built
// later is on the list by being registered.
#include <doctest/doctest.h>

#include <algorithm>
#include <set>

#include "app/wiring.h"
#include "editor/main/state.h"
#include "editor/show/view.h"
#include "fixture.h"
#include "platform/forms/form.h"
#include "store/table/cursor.h"
#include "store/table/table.h"
#include "voice/talk.h"

using namespace zelko;

namespace {

// The forms by name, each once: the fixtures of other tests register some of them again.
std::vector<FormType> allForms() {
  static const bool wired = (wireProgram(), true);
  (void)wired;
  std::vector<FormType> types;
  for (const FormType& type : formTypes()) {
    const auto same = [&](const FormType& other) { return other.name == type.name; };
    if (std::none_of(types.begin(), types.end(), same)) types.push_back(type);
  }
  return types;
}

// What a caller would put into the labels before it shows the form.
void giveWords(Form& form) {
  for (Control* control : form.controls()) {
    if (control->kind() == ControlKind::label && control->caption().empty()) control->setCaption(u"文");
  }
}

// One form in front of a user who edits a small table.
class Walk : public Fixture {
 public:
  explicit Walk(const FormType& type) : type_(type) {
    resetTable();
    resetCursor();
    resetEditor();
    resetTalk();
    appDir = fromUtf8(folder().string()) + u"/";
    const Text table = makeTable(u"t", {{u"ID", 4}, {u"氏名", 8}, {u"点", 4, u'R'}}, {{u"1", u"東", u"80"}});
    talkMode = 2;
    run([&] { REQUIRE(openAndEnter(table)); });
    play("wait 1");
    if (type_.name != u"Form1") events();
    // The start screen begins everything anew, so it comes first by itself; speech is switched on again behind it.
    open();
    talkMode = 2;
    play("wait 3");  // timers have spoken
    spokeAtOpening = spoke();
  }

  // The form while it is the active one.
  Form* form() const {
    Form* active = ended() ? nullptr : screen().activeForm();
    return active && active->name() == type_.name ? active : nullptr;
  }
  Control* focus() const { return form() ? form()->activeControl() : nullptr; }

  bool spokeAtOpening = false;
  bool speaksAt(const std::string& key) {
    events();
    press(key);
    return spoke();
  }
  bool answersAt(const std::string& key) {
    events();
    press(key);
    return !events().empty();
  }

 private:
  // As a key opens it where the form has a say only in a state that the key brings about; else by itself.
  void open() {
    if (type_.name == u"frmHANI") return press("Shift+Down");
    run([&] {
      Form& form = type_.load();
      giveWords(form);
      form.show();
    });
  }
  bool spoke() {
    const auto lines = events();
    return std::any_of(lines.begin(), lines.end(), [](const std::string& line) {
      return line.starts_with("say ") && line.find_first_not_of(' ', 4) != std::string::npos;
    });
  }

  FormType type_;
};

std::set<Control*> controlsOfTab(const Form& form) {
  std::set<Control*> controls;
  for (Control* control : form.controls()) {
    if (control->takesFocus()) controls.insert(control);
  }
  return controls;
}

// Tab from control to control, until the first one comes again.
void walkControls(Walk& walk) {
  Control* const first = walk.focus();
  const std::set<Control*> wanted = controlsOfTab(*walk.form());
  std::set<Control*> reached;
  for (std::size_t steps = 0; steps < wanted.size(); ++steps) {
    Control* const control = walk.focus();
    REQUIRE(control);
    CAPTURE(toUtf8(control->fullName()));
    CHECK(reached.insert(control).second);
    CHECK(walk.speaksAt("Shift+PageDown"));
    CHECK(walk.speaksAt("Shift+Ctrl+S"));
    const bool spoke = walk.speaksAt("Tab");
    // A form of one control stays where it is.
    if (wanted.size() == 1) break;
    REQUIRE(walk.focus());
    CAPTURE(toUtf8(walk.focus()->fullName()));
    CHECK(spoke);
  }
  CHECK(reached == wanted);
  CHECK(walk.focus() == first);
  if (wanted.size() > 1) CHECK(walk.speaksAt("Shift+Tab"));
}

}  // namespace

TEST_CASE("no control of any form is silent, and Tab reaches all of them") {
  for (const FormType& type : allForms()) {
    CAPTURE(toUtf8(type.name));
    Walk walk(type);
    REQUIRE(walk.form());
    for (const char* key : {"Shift+Ctrl+A", "Alt+N", "Alt+M"}) {
      CAPTURE(key);
      CHECK(walk.speaksAt(key));
    }
    if (!walk.focus()) continue;
    CHECK(walk.spokeAtOpening);
    walkControls(walk);
  }
}

TEST_CASE("Esc leaves every form, or says something") {
  for (const FormType& type : allForms()) {
    CAPTURE(toUtf8(type.name));
    if (type.name == u"frmDOE") continue;  // Esc stops the work, and the work says so
    Walk walk(type);
    CHECK((walk.answersAt("Esc") || !walk.form()));
  }
}
