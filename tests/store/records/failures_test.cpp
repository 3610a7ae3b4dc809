// A data file that cannot be written: what is told, what is on disk, and that work can go on.
#include <doctest/doctest.h>

#include "platform/files/files.h"
#include "platform/files/openfiles.h"
#include "platform/host.h"
#include "store/rewrite/file_calls.h"
#include "store/store_fixture.h"
#include "store/table/mainform.h"
#include "store/table/readonly.h"
#include "voice/talk.h"

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

TEST_CASE("a full disk refuses the new record whole, and takes it when there is room again") {
  StoreFixture store;
  store.table("t.txt", {6}, {"one"});
  edit(store);
  for (const std::size_t room : {256UL, 300UL, 511UL}) {
    CAPTURE(room);
    FullDisk full(room);
    CHECK(flushRec());
    curRec = 2;
    setRow(currentRow(), "new");
    forgetToldFailure();
    CHECK_FALSE(flushRec());
    CHECK(store.dialogs() == Dialogs{kWriteError});
    CHECK(store.bytes("t.txt") == record("typed"));
    CHECK(recCount() == 1);
    curRec = 1;
  }
  curRec = 2;
  CHECK(flushRec());
  CHECK(store.bytes("t.txt") == record("typed") + record("new"));
}

TEST_CASE("a failure is told behind a speech pause, which the dialog adds its own to") {
  StoreFixture store;
  talkMode = 2;
  const float before = host().dayTimer();
  CHECK_FALSE(store.open("none.txt"));
  CHECK(host().dayTimer() - before >= static_cast<float>(talkGap) * 1.99F);
  CHECK(store.dialogs().size() == 1);
}

TEST_CASE("the read-only toggle asks, stores what was typed, and goes by the file's mode") {
  StoreFixture store;
  store.table("t.txt", {6}, {"one"});
  toggleReadOnly();
  CHECK(store.beeps() == 1);
  edit(store);
  const Dialog set = {u"書き込み禁止のセット",
                      u"編集中のﾌｧｲﾙを読み取り専用にセットします｡解除しない限り編集できません。"};
  const Dialog release = {u"書き込み禁止の解除", u"編集中の読み取り専用指定を解除します。"};

  store.answerQuestions(kNo);
  toggleReadOnly();
  CHECK(store.dialogs() == Dialogs{set});
  CHECK_FALSE(tableIsReadOnly());
  CHECK_FALSE(refusedAsReadOnly());

  store.answerQuestions(kYes);
  toggleReadOnly();
  CHECK(store.dialogs() == Dialogs{set});
  CHECK(tableIsReadOnly());
  CHECK(readOnlyMarkShown());
  CHECK(store.bytes("t.txt") == record("typed"));
  CacheRow row;
  CHECK(getRec(1, 1, row));
  setCell(currentRow(), 0, u"more");
  CHECK_FALSE(flushRec());
  CHECK(store.dialogs().empty());

  toggleReadOnly();
  CHECK(store.dialogs() == Dialogs{release});
  CHECK_FALSE(readOnlyMarkShown());
  CHECK(flushRec());
  CHECK(store.bytes("t.txt") == record("more"));

  std::filesystem::remove(store.path("t.txt"));
  toggleReadOnly();
  CHECK(store.dialogs().back() == kWriteError);
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
