// The focus between controls and forms, and the life of a form.
#include <doctest/doctest.h>

#include "fixture.h"
#include "platform/forms/sampleform.h"

using namespace zelko;

namespace {

struct Session : Fixture {
  Session() {
    run([] { form<SampleForm>().show(); });
  }
  SampleForm& sample() { return form<SampleForm>(); }
};

}  // namespace

TEST_CASE("a control that loses its place gives the focus to the next one; one that can't take it is passed over") {
  Session s;
  s.said();
  s.run([&] { s.sample().box.setVisible(false); });
  CHECK(s.said() == "out box / in check");
  s.run([&] { s.sample().box.setFocus(); });
  CHECK(s.said() == "");
  s.run([&] {
    s.sample().first.setEnabled(false);
    s.sample().second.setEnabled(false);
  });
  s.press("Tab");
  CHECK(s.said() == "out check / in ok");
}

TEST_CASE("a GotFocus that hands the focus on leaves its control again before the next is entered") {
  Session s;
  s.sample().check.onGotFocus = [&] { s.sample().ok.setFocus(); };
  s.said();
  s.press("Tab");
  CHECK(s.said() == "out box / out check / in ok");
  CHECK(s.sample().ok.hasFocus());
}

TEST_CASE("a modal form takes all input, and gives the focus back before its caller goes on") {
  Session s;
  s.sample().ok.onClick = [] {
    form<SampleDialog>().showModal();
    tell(u"back");
  };
  s.said();
  s.press("Enter");
  CHECK(s.said() == "out box / active frmDialog / in box");
  SUBCASE("the form below is out of reach") {
    s.click("frmSample.check");
    CHECK(s.events().back() == "beep");
    s.run([&] { s.sample().check.setFocus(); });
    CHECK(s.said() == "");
    s.press("Esc");
    CHECK(s.said() == "active frmSample / in check / back");
  }
  SUBCASE("a second one over it") {
    form<SampleDialog>().ok.onClick = [] {
      class Third : public SampleForm {
       public:
        Third() : SampleForm(u"frmThird") {
          cancel.onClick = [this] { hide(); };
        }
      };
      screen().keep(std::make_unique<Third>()).showModal();
      tell(u"second back");
    };
    s.press("Enter");
    s.said();
    s.press("Esc");
    CHECK(s.said() == "out box / active frmDialog / in box / second back");
    s.press("Esc");
    CHECK(s.said() == "active frmSample / in box / back");
  }
  SUBCASE("the form below closes first") {
    s.run([&] { screen().unload(s.sample()); });
    s.said();
    s.press("Esc");
    CHECK(s.said() == "back");
    CHECK(screen().activeForm() == nullptr);
  }
  SUBCASE("the program ends inside it") {
    form<SampleDialog>().ok.onClick = [] { throw ProgramEnd{}; };
    s.press("Enter");
    CHECK(s.ended());
  }
}

TEST_CASE("a form shown beside the active one stays beside it when others close") {
  Session s;
  s.run([] { screen().keep(std::make_unique<SampleForm>(u"frmBeside")).showWithoutFocus(); });
  s.run([] { form<SampleDialog>().show(); });
  s.said();
  s.play("show forms");
  CHECK(s.events().back() == "forms frmBeside frmSample frmDialog");
  s.press("Esc");
  CHECK(s.said() == "active frmSample / in box");
  s.run([&] { s.sample().hide(); });
  CHECK(s.said() == "out box / active frmBeside / in box");
}

TEST_CASE("an unloaded form lives until its handler ends, and its successor is another one") {
  Session s;
  SampleForm* successor = nullptr;
  s.sample().onUnload = [] { tell(u"unloading"); };
  s.sample().ok.onClick = [&] {
    SampleForm& self = form<SampleForm>();
    unload<SampleForm>();
    unload<SampleForm>();
    self.box.setText(u"still here");
    successor = &form<SampleForm>();
    CHECK(successor != &self);
  };
  s.said();
  s.press("Enter");
  CHECK(s.said() == "unloading / text still here");
  CHECK(loadedForm<SampleForm>() == successor);
  CHECK_FALSE(successor->visible());
}
