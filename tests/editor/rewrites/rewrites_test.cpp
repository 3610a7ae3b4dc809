// The rewriting commands: what they refuse, stops, failures, and the bytes on disk.
#include "editor/rewrites/rewrites.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <filesystem>

#include "editor/main/state.h"
#include "editor/show/spitem.h"
#include "editor/show/view.h"
#include "platform/files/files.h"
#include "session.h"
#include "store/records/records.h"
#include "store/table/cursor.h"
#include "store/table/itemfile.h"
#include "voice/talk.h"

using namespace zelko;
using namespace zelko::test;

namespace {

namespace fs = std::filesystem;

// Three records, of an ID, a name, a right-justified number and a remark.
struct RewriteSession : Session {
  RewriteSession() {
    open({{u"ID", 3}, {u"名", 6}, {u"点", 4, u'R'}, {u"注", 5}},
         {{u"1", u"太郎", u"12", u"abcde"}, {u"2", u"花子", u"7", u"f"}, {u"3", u"次郎", u"100", u""}}, 1);
    before = bytes();
  }

  std::string bytes() const { return readBytes(folder() / "t.txt") + readBytes(folder() / "Kt.txt"); }
  std::string cells(int number) const { return toUtf8(record(number)); }
  // Runs a command and answers whether it changed the table.
  bool does(const std::function<bool()>& command) {
    bool changed = false;
    run([&] { changed = command(); });
    return changed;
  }
  std::string show(const std::string& what) {
    (void)events();
    play("show " + what);
    std::string all;
    for (const std::string& line : events()) all += line + "\n";
    return all;
  }

  std::string before;
};

const std::string kWriteError = "書き込み時にエラーが出ました。";

bool contains(const std::string& text, std::string_view part) { return text.find(part) != std::string::npos; }

}  // namespace

TEST_CASE_FIXTURE(RewriteSession, "the always-displayed item and the entry items stay with their items") {
  run([] {
    spItem = 3;
    entryItem[2] = 1;
    entryItem[3] = 1;
    allItemsOn = 0;
  });
  CHECK(does([] { return moveItems(3, 3, 1); }));
  CHECK(spItem == 1);
  CHECK(entryItem[1] == 1);
  CHECK(entryItem[3] == 1);
  CHECK(entryItem[2] == 0);
  CHECK(does([] { return deleteItems(1, 3); }));
  CHECK(spItem == kNoItem);
  CHECK(allItemsOn == 1);
}

TEST_CASE_FIXTURE(RewriteSession, "what has no sense is a beep and leaves the table") {
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
    CHECK_FALSE(does(command));
    const auto heard = events();
    CHECK(std::ranges::count(heard, "beep") == 1);
  }
  CHECK(bytes() == before);
}

TEST_CASE_FIXTURE(RewriteSession, "Esc at any record stops: the table whole, no work file, the keys live again") {
  struct Row {
    std::function<bool()> command;
    int passes;
  };
  const Row rows[] = {
      {[] { return insertRecords(2, docPath, docDrive); }, 5},
      {[] { return moveRecords(1, 1, 4, docPath, docDrive); }, 3},
      {[] { return deleteItems(1, 1); }, 3},
      {[] { return deleteRecords(1, 2); }, 3},  // two for the clip file, one for the record that stays
  };
  for (const Row& row : rows) {
    for (int pass = 1; pass <= row.passes; ++pass) {
      play("later " + std::to_string(pass) + " key Esc");
      CHECK_FALSE(does(row.command));
      CHECK(bytes() == before);
      CHECK_FALSE(fs::exists(folder() / "WORK.QQQ"));
      CHECK_FALSE(fs::exists(folder() / "KWORK.QQQ"));
      CHECK(mode.empty());
      CHECK(show("focus") == "focus Form1.txtinputbox\n");
    }
  }
  run([] { itemWidth[3] = 7; });
  play("later 2 key Esc");
  CHECK(does([] { return applyWidth(); }));
  CHECK(itemWidthLoaded[3] == 7);
}

TEST_CASE_FIXTURE(RewriteSession, "a file that cannot be made is told, and the table is as it was") {
  for (const char* inTheWay : {"WORK.QQQ", "KWORK.QQQ"}) {
    fs::create_directory(folder() / inTheWay);
    (void)said();
    run([] { itemWidth[1] = 9; });
    run([] { applyWidth(); });
    CHECK(contains(said(), kWriteError));
    press("Enter");
    CHECK(bytes() == before);
    CHECK(itemWidth[1] == 6);
    CHECK(itemStart[2] == 10);
    fs::remove(folder() / inTheWay);
  }
  setReadOnly(docPath, true);
  for (const std::function<bool()>& command : std::vector<std::function<bool()>>{
           [] { return insertRecords(1, docPath, docDrive); }, [] { return deleteRecords(1, 1); },
           [] { return moveItems(1, 1, 3); }, [] { return rangeClear(1, 1, 1, 1); }}) {
    (void)said();
    run([&command] { command(); });
    CHECK(contains(said(), "書き込み禁止ﾌｧｲﾙです。"));
    press("Enter");
    CHECK(bytes() == before);
  }
  CHECK_FALSE(fs::exists(folder() / "ZLKCLip"));
}

TEST_CASE_FIXTURE(RewriteSession,
                  "menu entries work on the record of the cursor, and ask what the key on a range asks") {
  press("Down");
  said();
  menu("mnuKILLREC1");
  CHECK(contains(said(), "2記録を　削除し、以後のﾃﾞｰﾀを前に詰めます。"));
  press("N");
  CHECK(rangeKind == 0);
  CHECK(records() == 3);
  menu("menuRKILL");
  press("Y");
  CHECK(records() == 2);
  CHECK(cells(2) == "3  次郎   100");
  menu("mnuINSRECM");
  play("type 3\nkey Enter");
  CHECK(records() == 5);
  CHECK(cells(5) == "3  次郎   100");
  press("Ctrl+PageDown");
  (void)events();
  menu("mnuKILLREC1");
  CHECK(events() == std::vector<std::string>{"beep"});
  press("Right");
  menu("mnuKILLITEM");
  press("Y");
  CHECK(cells(1) == "1    12abcde");
}
