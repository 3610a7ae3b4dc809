// Choosing a range: the keys of the dialog, what each is answered with, and how it is left.
#include <doctest/doctest.h>

#include "editor/ranges/range_fixture.h"
#include "editor/ranges/rangedialog.h"
#include "platform/forms/routing.h"
#include "store/records/records.h"

using namespace zelko;
using namespace zelko::test;

namespace {

const std::string kRed = "255";

}  // namespace

TEST_CASE_FIXTURE(RangeFixture, "a corner may be typed; one that the table has not is refused") {
  table(9);
  play({"Shift+Down"});
  Fixture::play("focus frmHANI.Text2");
  run([] { form<frmHANI>().Text2.setText(u"4"); });
  play({"Enter"});
  CHECK(range() == std::vector{1, 1, 4, 0, 0});
  CHECK(cursor() == std::pair{4, 0});
  play({"Shift+Down"});
  run([] { form<frmHANI>().Text4.setText(u"5"); });
  CHECK(play({"Enter"}).front() == "beep");
  CHECK(mode == u"HTYU");
}

TEST_CASE_FIXTURE(RangeFixture, "what was typed belongs to the cell where the range began") {
  table(3);
  play({"Right", "type ab", "Shift+Down", "Down", "Esc"});
  CHECK(cells(1) == "1|ab|10|x1|J1");
  CHECK(cells(2) == "2|N2|20|x2|J2");
}

TEST_CASE_FIXTURE(RangeFixture, "the way to another record ends the numbering and stamps nothing") {
  table(5);
  autoIdOn = 1;
  autoIdValue = 100;
  const std::string before = file(kTable);
  play({"Alt+Down", "Down", "Up", "Down", "Enter", "Esc", "Down"});
  CHECK(autoIdOn == 0);
  CHECK(file(kTable) == before);
}

TEST_CASE_FIXTURE(RangeFixture, "a range longer than the cache is followed by the sheet") {
  table(200, 0);
  play({"Alt+Down", "Ctrl+Down", "Up"});
  CHECK(range() == std::vector{2, 1, 199, 0, 4});
  CHECK(masks() == utf8(decimal(cacheBase)) + "-199 0-4 " + kRed);
  CHECK(cacheBase > 1);
}

TEST_CASE_FIXTURE(RangeFixture, "a key says what it did once, whatever is released first or held down") {
  table(9);
  const auto down = [this](int code, int mask) { run([=] { routeKeyDown(code, mask, 0); }); };
  const auto up = [this](int code) { run([=] { routeKeyUp(code); }); };
  down(key::Shift, shift::Shift);
  down(key::Down, shift::Shift);
  heard();
  up(key::Down);
  CHECK(heard().size() == 1);
  up(key::Shift);
  CHECK(heard().empty());
  down(key::Alt, shift::Alt);
  down('N', shift::Alt);
  Fixture::play("wait 1");
  up('N');
  up(key::Alt);
  CHECK(heard() == Heard{"say 1。ギョウ1 項目0ID"});
  for (int repeat = 0; repeat < 3; ++repeat) down(key::Down, shift::None);
  down(key::Enter, shift::None);
  CHECK(range() == std::vector{1, 1, 4, 0, 0});
  CHECK(cells(curRec) == "4|N4|40|x4|J4");
}
