// What a recorded session does not reach: the card, the use as a question, a long scan.
#include <algorithm>

#include "editor/editor_fixture.h"
#include "editor/show/card.h"
#include "editor/show/view.h"
#include "platform/text/number.h"
#include "store/table/cursor.h"
#include "tablejobs/search/searchform.h"
#include "voice/dialogs.h"
#include "voice/talk.h"

using namespace zelko;
using namespace zelko::test;

namespace {

class Searching : public EditorFixture {
 public:
  explicit Searching(int records) {
    registerVoiceForms();
    registerSearch();
    open({{u"ID", 6}, {u"名", 8}}, Rows(static_cast<std::size_t>(records), {u"1", u"東"}));
  }
};

}  // namespace

TEST_CASE("search from the card, and nothing to search in an empty table") {
  for (const int records : {0, 2}) {
    Searching user(records);
    user.run([] {
      showView(1);
      form<frmKOJIND>().activate();
    });
    CHECK((user.play({"F3"}) == Heard{"beep"}) == (records == 0));
    CHECK((screen().activeForm() == loadedForm<frmSRCH>()) == (records > 0));
  }
}

TEST_CASE("a form of the statistics asks for a text and its conditions") {
  Searching user(2);
  std::optional<SearchConditions> asked;
  user.run([&] { asked = askSearchConditions(u"MLINE3"); });
  CHECK_FALSE(form<frmSRCH>().Command2.enabled());
  user.type(u" a");
  user.run([] { form<frmSRCH>().Check2.setValue(1); });
  user.press("Enter");
  REQUIRE(asked);
  CHECK(asked->text == u"a");
  CHECK((asked->allItems == 1 && asked->whole == 1 && asked->caseCounts == 0));
  CHECK((curRec == 1 && mode.empty()));
  user.run([&] { asked = askSearchConditions(u"MLINE"); });
  user.press("Esc");
  CHECK((!asked && mode == u"MLINE"));
}

TEST_CASE("a long search says where it is, and is stopped by ear") {
  Searching user(600);
  user.press("F3");
  user.type(u"西");
  user.heard();
  user.Fixture::play("later 300 wait 4.5\nlater 500 key Esc");
  const Heard heard = user.play({"Enter"});
  CHECK(std::ranges::count_if(heard,
                              [](const std::string& line) { return contains(fromUtf8(line), u"ぎょう検索中"); }) == 1);
  CHECK((curRec > 400 && curRec < 600));
  CHECK(screen().activeForm() == &mainForm());

  // By key: before the dialog is there, and while it is; what it leaves says the cell that the boxes show.
  const std::int32_t before = curRec;
  user.Fixture::play("later 50 key Esc");
  CHECK(contains(fromUtf8(user.play({"Ctrl+N"}).back()), u"検索を中止しました。ギョウ" + decimal(before + 49)));
  user.Fixture::play("later 20 wait 1.5\nlater 40 key Esc");
  const Heard closed = user.play({"Ctrl+N"});
  CHECK(contains(fromUtf8(closed.at(closed.size() - 2)), u"ギョウ" + decimal(before + 49)));
  CHECK(curRec == before + 88);
}
