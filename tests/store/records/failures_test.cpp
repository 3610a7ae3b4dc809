// A data file that cannot be written: what is told, what is on disk, and that work can go on.
#include <doctest/doctest.h>

#include "platform/files/files.h"
#include "platform/files/openfiles.h"
#include "store/rewrite/file_calls.h"
#include "store/store_fixture.h"
#include "store/table/mainform.h"
#include "store/table/readonly.h"

using namespace zelko;
using namespace zelko::test;

namespace {

const Dialog kReadOnly = {
    u"書き込み禁止の注意",
    u"書き込み禁止ﾌｧｲﾙです。解除は｢ﾌｧｲﾙ(F)｣-｢書き込み禁止設定/解除｣を選ぶか、ReadOnly表示ラベルをｸﾘｯｸしてください。"};
const Dialog kWriteError = {u"書き込みエラー", u"書き込み時にエラーが出ました。"};
using Dialogs = std::vector<Dialog>;

void edit(const StoreFixture& store) {
  REQUIRE(store.open("t.txt"));
  setCell(currentRow(), 0, u"typed");
}

}  // namespace

TEST_CASE("a file that became read-only is told once, then the mark stands for it") {
  StoreFixture store;
  store.table("t.txt", {6}, {"one", "two"});
  edit(store);
  const std::string before = store.bytes("t.txt");
  setReadOnly(store.name("t.txt"), true);
  CHECK_FALSE(flushRec());
  CHECK(store.dialogs() == Dialogs{kReadOnly});
  CHECK(store.beeps() == 1);
  CHECK(readOnlyMarkShown());
  CHECK(left(cellOfRow(currentRow(), 0), 5) == u"typed");
  CHECK_FALSE(flushRec());
  CHECK(store.dialogs().empty());
  CHECK(refusedAsReadOnly());
  CHECK(store.dialogs() == Dialogs{kReadOnly});
  CHECK(store.bytes("t.txt") == before);

  edit(store);
  CHECK_FALSE(readOnlyMarkShown());
  CHECK_FALSE(flushRec());
  CHECK(store.dialogs() == Dialogs{kReadOnly});
}

TEST_CASE("a file that vanished is told once a move, and does not come back by itself") {
  StoreFixture store;
  store.table("t.txt", {6}, {"one", "two"});
  edit(store);
  std::filesystem::remove(store.path("t.txt"));
  CHECK_FALSE(flushRec());
  CHECK_FALSE(flushRec());
  CHECK(store.dialogs() == Dialogs{kWriteError});
  setCell(currentRow(), 0, u"again");
  CHECK_FALSE(flushRec());
  CHECK(store.dialogs() == Dialogs{kWriteError});
  for (int move = 0; move < 2; ++move) {
    loadCache(curRec);
    setCell(currentRow(), 0, u"again");
    CHECK_FALSE(flushRec());
    CHECK(store.dialogs() == Dialogs{kWriteError});
  }
  closeAll();
  CHECK_FALSE(reopenData());
  CHECK(store.files() == std::vector<std::string>{"Kt.txt"});
}

TEST_CASE("a record that can't be read is slashed and told, and only what was typed into it is ever stored") {
  const Dialog readError = {u"読み込みエラー", u"読み込み時にエラーが出ました。"};
  StoreFixture store;
  store.table("t.txt", {3, 3}, {"one111", "two222"});
  REQUIRE(store.open("t.txt"));
  const std::string before = store.bytes("t.txt");
  dropWindows();
  failAtRead(1);
  loadCache(1);
  stopCounting();
  CHECK(store.dialogs() == Dialogs{readError});
  CHECK(rowBytes(currentRow()) == slashRec);
  CHECK(flushRec());
  setCell(currentRow(), 0, u"x");
  for (int attempt = 0; attempt < 2; ++attempt) {
    failAtRead(1);
    CHECK_FALSE(flushRec());
    stopCounting();
    CHECK(store.dialogs() == (attempt == 0 ? Dialogs{readError} : Dialogs{}));
    CHECK(store.bytes("t.txt") == before);
  }
  CHECK(flushRec());
  CHECK(store.dialogs().empty());
  CHECK(store.bytes("t.txt") == record("x  111") + record("two222"));
}
