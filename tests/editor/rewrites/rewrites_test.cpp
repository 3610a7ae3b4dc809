// The rewriting commands: what they refuse, and what goes with its item.
#include "editor/rewrites/rewrites.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <functional>

#include "editor/clip/clip_session.h"
#include "editor/main/state.h"
#include "editor/show/spitem.h"
#include "editor/show/view.h"
#include "store/records/records.h"
#include "store/table/cursor.h"
#include "store/table/itemfile.h"

using namespace zelko;
using namespace zelko::test;

namespace {

// Runs a command and answers whether it changed the table.
bool does(Session& user, const std::function<bool()>& command) {
  bool changed = false;
  user.run([&] { changed = command(); });
  return changed;
}

}  // namespace

TEST_CASE_FIXTURE(ClipSession, "the always-displayed item and the entry items stay with their items") {
  run([] {
    spItem = 3;
    entryItem[2] = 1;
    entryItem[3] = 1;
    allItemsOn = 0;
  });
  CHECK(does(*this, [] { return moveItems(3, 3, 1); }));
  CHECK(spItem == 1);
  CHECK(entryItem[1] == 1);
  CHECK(entryItem[3] == 1);
  CHECK(entryItem[2] == 0);
  CHECK(does(*this, [] { return deleteItems(1, 3); }));
  CHECK(spItem == kNoItem);
  CHECK(allItemsOn == 1);
}

TEST_CASE_FIXTURE(ClipSession, "what has no sense is a beep and leaves the table") {
  const std::string before = readBytes(data());
  (void)events();
  const std::function<bool()> senseless[] = {
      [] { return deleteItems(0, 0); },
      [] { return deleteItems(0, 3); },
      [] { return deleteItems(2, 4); },
      [] { return insertItems(0, 250); },
      [] { return insertItems(1, 237); },
      [] { return moveItems(1, 2, 2); },
      [] { return moveRecords(1, 2, 2, docPath, docDrive); },
      [] { return moveRecords(1, 2, 9, docPath, docDrive); },
      [] { return deleteRecords(4, 9); },
      [] { return insertRecords(0, docPath, docDrive); },
      [] { return insertRecords(2147483645, docPath, docDrive); },
  };
  for (const auto& command : senseless) {
    CHECK_FALSE(does(*this, command));
    const auto heard = events();
    CHECK(std::ranges::count(heard, "beep") == 1);
  }
  CHECK(readBytes(data()) == before);
}
