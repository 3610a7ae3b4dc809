// Every form in every job that it has: as a user opens it, through each entry of the menu that is served, and by itself
// where no entry leads to it. No control of any of them may be silent. What is built later is on the list by being
// registered.
#include <doctest/doctest.h>

#include <algorithm>
#include <set>

#include "editor/main/commands.h"
#include "editor/main/menutable.h"
#include "platform/forms/form.h"
#include "session.h"
#include "store/table/table.h"
#include "voice/talk.h"

using namespace zelko;
using namespace zelko::test;

namespace {

// How a form comes to be there: by a line of a script at the editor, or (an empty line) loaded by its name.
struct Job {
  std::string line;
  const FormType* type = nullptr;
  std::string name() const { return type ? toUtf8(type->name) : line; }
};

// Commands that no row of the menu names, for keys and other forms run them.
constexpr TextView kElsewhere[] = {u"widenItem", u"narrowItem", u"CVZLKF", u"SVCread", u"csvREAD"};

// Forms that have a say only in a state that a key brings about, and those that several keys lead to.
constexpr const char* kKeys[] = {"key Shift+Down"};

// What a caller would put into the labels before it shows the form.
void giveWords(Form& form) {
  for (Control* control : form.controls()) {
    if (control->kind() == ControlKind::label && control->caption().empty()) control->setCaption(u"文");
  }
}

// One form in front of a user who edits a small table.
class Walk : public Session {
 public:
  explicit Walk(const Job& job) {
    open({{u"ID", 4}, {u"氏名", 8}, {u"点", 4, u'R'}}, {{u"1", u"東", u"80"}, {u"2", u"西", u"7"}});
    play("wait 1");
    events();
    if (job.type) {
      show(*job.type);
    } else {
      play(job.line);
    }
    // The start screen begins everything anew: speech is switched on again behind it.
    talkMode = 2;
    if (ended()) return;
    play("wait 3");  // timers have spoken
    spokeAtOpening = spoke();
    if (Form* active = screen().activeForm(); active && (job.type || active->name() != u"Form1"))
      shown = active->name();
  }

  Text shown;  // the form that the job opened; empty where it opened none
  bool spokeAtOpening = false;

  // That form while it is the active one.
  Form* form() const {
    Form* active = ended() ? nullptr : screen().activeForm();
    return active && active->name() == shown ? active : nullptr;
  }
  Control* focus() const { return form() ? form()->activeControl() : nullptr; }
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
  void show(const FormType& type) {
    run([&] {
      Form& form = type.load();
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

void walkForm(const Job& job) {
  Walk walk(job);
  if (!walk.form()) return;
  CAPTURE(toUtf8(walk.shown));
  for (const char* key : {"Shift+Ctrl+A", "Alt+N", "Alt+M"}) {
    CAPTURE(key);
    CHECK(walk.speaksAt(key));
  }
  if (!walk.focus()) return;
  CHECK((walk.spokeAtOpening || job.name() == "Form1"));  // which was there before
  walkControls(walk);
}

void leave(const Job& job) {
  Walk walk(job);
  // Esc stops the work of the progress dialog, and the work says so.
  if (!walk.form() || walk.shown == u"frmDOE") return;
  CAPTURE(toUtf8(walk.shown));
  CHECK((walk.answersAt("Esc") || !walk.form()));
}

std::vector<Job> allJobs() {
  Session wiresTheProgram;
  std::vector<Job> jobs;
  for (const char* key : kKeys) jobs.push_back({key});
  for (const MenuRow& row : menuRows()) {
    if (commandOf(row.name)) jobs.push_back({"menu " + toUtf8(row.name)});
  }
  for (const FormType& type : formTypes()) {
    if (type.name != u"frmHANI") jobs.push_back({"", &type});
  }
  return jobs;
}

}  // namespace

TEST_CASE("no control of any form is silent in any of its jobs, and Tab reaches all of them; Esc leaves or speaks") {
  for (const Job& job : allJobs()) {
    CAPTURE(job.name());
    walkForm(job);
    leave(job);
  }
}

TEST_CASE("every form can be reached, and every registered command is a row of the menu or a listed job") {
  std::set<Text> reached, rows;
  for (const Job& job : allJobs()) reached.insert(Walk(job).shown);
  for (const FormType& type : formTypes()) {
    CAPTURE(toUtf8(type.name));
    CHECK(reached.contains(type.name));
  }
  for (const MenuRow& row : menuRows()) rows.insert(Text(row.name));
  for (const TextView other : kElsewhere) rows.insert(Text(other));
  for (const Text& command : commandNames()) {
    CAPTURE(toUtf8(command));
    CHECK(rows.contains(command));
  }
}
