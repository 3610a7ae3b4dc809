#include "parts/ask/ask.h"

#include <doctest/doctest.h>

#include <algorithm>

#include "files/files_fixture.h"
#include "parts/ask/typed.h"
#include "platform/forms/form.h"
#include "store/table/table.h"
#include "voice/talk.h"

using namespace zelko;

TEST_CASE("typed numbers are whole numbers or nothing") {
  CHECK(typedNumber(u" １２．５ ") == 12.5);
  CHECK(typedNumber(u"+3") == 3);
  for (const TextView wrong : {u"1e400", u"", u"12abc", u"+-3", u"--3", u"inf", u"0x10", u"ー3"})
    CHECK_FALSE(typedNumber(wrong));
  CHECK_FALSE(typedWhole(u"2147483648", 0, 2147483647));
  CHECK_FALSE(typedVal(u"1e400"));
  CHECK(typedVal(u"12abc") == 12);
  CHECK(typedLetter(u"ｂ", u"AB") == u'B');
}

TEST_CASE("an item is asked until it is one; a wrong answer beeps and is named") {
  test::Session user;
  itemCount = 3;
  talkMode = 1;
  std::optional<std::int16_t> item;
  user.run([&] { item = askItem({u"項目番号は", u"項目", u"1"}); });
  user.play("wait 1");
  for (const char* wrong : {"９", "1e400", "-1"}) {
    user.events();
    user.type(fromUtf8(wrong));
    user.press("Enter");
    user.play("wait 1");
    const auto events = user.events();
    CHECK(std::count(events.begin(), events.end(), "beep") == 1);
    CHECK(std::any_of(events.begin(), events.end(), [](const std::string& line) {
      return line.find("そんな項目番号はありません。項目番号は") != std::string::npos;
    }));
  }
  user.type(u"３");
  user.press("Enter");
  CHECK(item == 3);
  user.run([&] { item = askItem({u"項目番号は", u"項目"}); });
  user.press("Esc");
  CHECK_FALSE(item);
}

TEST_CASE_FIXTURE(test::FilesFixture, "a number that nothing can hold ends no command that asks for one") {
  edit(table(u"t"));
  for (const char* command : {"mnuJUMP", "mnuHJ", "mnuLIMIT", "mnuIDAUTO", "mnuSPITEM", "mnuINSRECM", "mnuINH"}) {
    CAPTURE(command);
    play({"wait 1", std::string("menu ") + command});
    if (screen().activeForm()->name() == u"frmTin") play({"key Ctrl+A", "commit 1e400", "key Enter"});
    while (!ended() && screen().activeForm()->name() != u"Form1") play({"wait 1", "key Esc"});
    REQUIRE_FALSE(ended());
  }
  CHECK(records() == 1);
}
