// The way of one key: who sees it, who may stop it, what is left for the editor.
#include <doctest/doctest.h>

#include "fixture.h"
#include "platform/forms/routing.h"
#include "platform/forms/sampleform.h"

using namespace zelko;

namespace {

struct Session : Fixture {
  Session() {
    run([] { form<SampleForm>().show(); });
    said();
  }
  SampleForm& sample() { return form<SampleForm>(); }
  void hearKeys() {
    SampleForm& form = sample();
    form.onKeyDown = [](KeyEvent& key) { tell(u"form down " + nameOfKey(key.code, key.mask)); };
    form.onKeyUp = [](KeyEvent& key) { tell(u"form up " + nameOfKey(key.code, key.mask)); };
    form.onKeyPress = [](CharEvent& typed) { tell(u"form press " + Text(1, typed.ch)); };
    form.box.onKeyDown = [](KeyEvent& key) { tell(u"down " + nameOfKey(key.code, key.mask)); };
    form.box.onKeyUp = [](KeyEvent& key) { tell(u"up " + nameOfKey(key.code, key.mask)); };
    form.box.onKeyPress = [](CharEvent& typed) { tell(u"press " + Text(1, typed.ch)); };
  }
};

}  // namespace

TEST_CASE("a typed letter passes form, control, edit and change in this order") {
  Session s;
  s.hearKeys();
  s.type(u"b");
  CHECK(s.said() == "form down B / down B / form press b / press b / text b / form up B / up B");
  s.press("Alt+N");
  CHECK(s.said() == "form down Alt+N / down Alt+N / form up Alt+N / up Alt+N");
  CHECK(s.sample().box.text() == u"b");
}

TEST_CASE("a key whose handler opens a form is neither typed into the box it left nor released in the form it opened") {
  Session s;
  s.hearKeys();
  s.sample().box.onKeyDown = [](KeyEvent&) {
    SampleDialog& dialog = form<SampleDialog>();
    dialog.box.onKeyUp = [](KeyEvent& key) { tell(u"dialog up " + nameOfKey(key.code, key.mask)); };
    dialog.showModal();
  };
  s.said();
  s.type(u"b");
  CHECK(s.said() == "form down B / out box / active frmDialog / in box");
  s.press("Esc");
  CHECK(s.said() == "active frmSample / in box");
  CHECK(s.sample().box.text() == u"");
  s.sample().box.onKeyDown = nullptr;
  s.press("Alt+O");  // the button's letter
  CHECK(s.said() == "out box / in ok / ok");
  s.press("Alt+Q");
  CHECK(s.said() == "form down Alt+Q / form up Alt+Q");
}

TEST_CASE("long work lets only live forms have a key") {
  Session s;
  s.sample().ok.onClick = [&] {
    for (int i = 0; i < 5; ++i) host().letEventsThrough();
    form<SampleDialog>().liveDuringWork = true;
    form<SampleDialog>().show();
    for (int i = 0; i < 5; ++i) host().letEventsThrough();
    tell(u"done");
  };
  s.play("later 2 key A\nlater 7 key B\nclick frmSample.ok");
  CHECK(s.said() == "out box / in ok / out ok / active frmDialog / in box / text b / done");
}

TEST_CASE("every key name is its key, and back") {
  KeyEvent key;
  for (const char16_t* name : {u"A", u"9", u"F12", u"Num0", u"Shift+Ctrl+S", u"Alt+PageDown", u"Ctrl+Num5", u"Shift"}) {
    REQUIRE(keyByName(name, key));
    CHECK(nameOfKey(key.code, key.mask) == name);
  }
  REQUIRE(keyByName(u"Alt+Ctrl+Up", key));
  CHECK(key.is(key::Up, shift::CtrlAlt));
  for (const char16_t* name : {u"", u"a", u"F13", u"F0", u"F01", u"Num10", u"Ctrl+", u"Ctrl+Ctrl+A", u"down", u"あ"}) {
    CHECK_FALSE(keyByName(name, key));
  }
}
