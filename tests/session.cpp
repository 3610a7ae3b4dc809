#include "session.h"

#include "app/wiring.h"
#include "editor/formulas/formula.h"
#include "editor/formulas/formulaform.h"
#include "editor/main/state.h"
#include "editor/show/view.h"
#include "store/records/records.h"
#include "store/rewrite/recovery.h"
#include "store/table/cursor.h"
#include "store/table/table.h"
#include "voice/talk.h"

namespace zelko::test {

void resetProgram(const std::filesystem::path& appFolder) {
  static const bool wired = (wireProgram(), true);
  (void)wired;
  resetTable();
  resetRecovery();
  resetCursor();
  resetEditor();
  resetTalk();
  forgetToldFailure();
  formulaSlot.fill({});
  talkMode = 2;
  appDir = fromUtf8(appFolder.string()) + u"/";
}

void Session::edit(const Text& dataFile) {
  run([&] { REQUIRE(openAndEnter(dataFile)); });
  (void)said();
  (void)events();
}

void Session::open(const std::vector<ItemOfTable>& items, const Rows& rows, int level) {
  talkMode = static_cast<std::int16_t>(level);
  edit(makeTable(u"t", items, rows));
}

}  // namespace zelko::test
