// Walking a table: what a walk must not do, and the way through a small cache.
#include <doctest/doctest.h>

#include "editor/editor_fixture.h"
#include "editor/main/state.h"
#include "editor/moves/moves.h"
#include "platform/text/number.h"
#include "store/records/records.h"
#include "store/table/cursor.h"

using namespace zelko;
using namespace zelko::test;

TEST_CASE_FIXTURE(EditorFixture, "a long table scrolls both ways through a small cache") {
  Rows many;
  for (int i = 1; i <= 60; ++i) many.push_back({decimal(i)});
  open({{u"ID", 4}}, many, 1);
  for (int i = 2; i <= 60; ++i) CHECK(play({"Down"}) == Heard{"say " + std::to_string(i)});
  for (int i = 59; i >= 1; --i) CHECK(play({"Up"}) == Heard{"say " + std::to_string(i)});
}

TEST_CASE_FIXTURE(EditorFixture, "a cell that was copied to the box and not edited keeps its bytes") {
  open({{u"ID", 4}, {u"a", 4}, {u"b", 4}}, {{u"1", u"x", u"y"}, {u"2", u"z", u""}}, 0);
  // A code with two forms, and half a character: neither comes back from its text as it was.
  std::string bytes = file(kTable);
  bytes.replace(4, 4, "\xed\x40\x81 ");
  writeBytes(path(kTable), bytes);
  play({"Right", "Down", "Up", "Ctrl+U", "Down"});
  CHECK(file(kTable) == bytes);
  play({"Up", "Ctrl+U", "Enter"});
  CHECK(file(kTable) == bytes);
}
