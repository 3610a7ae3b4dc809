// What the picker does: opening, refusing, deleting, making folders, leaving; sentences, files and the table in edit.
#include <filesystem>

#include "editor/main/commands.h"
#include "files/files_fixture.h"
#include "files/picker/picker.h"
#include "platform/files/files.h"
#include "store/records/records.h"
#include "store/table/cursor.h"

using namespace zelko;
using namespace zelko::test;

namespace fs = std::filesystem;

namespace {

// The table in edit is whole: its cell can be read, its record stored.
void checkStillEdited(FilesFixture& user, const std::string& name) {
  CHECK(docPath == fromUtf8(user.path(name)));
  CHECK(recCount() == 1);
  const std::string before = readBytes(user.path(name));
  user.play({"commit 新", "key Down", "key Up"});
  CHECK(readBytes(user.path(name)) != before);
}

}  // namespace

TEST_CASE_FIXTURE(FilesFixture, "another table takes the place of the open one, which is stored first") {
  table(u"b");
  const Text first = table(u"a");
  edit(first);
  play({"commit x", "key Enter"});
  play({"menu mnuREAD", "key Down", "key Down"});
  CHECK(play({"key Enter"}) == "1  ｷﾞｮｳ1 ｺｳﾓｸ0ID");
  CHECK(docPath == fromUtf8(path("b.txt")));
  CHECK(toUtf8(record(1)) == "x   a");
  CHECK(play({"show forms"}) == "forms frmSHEET Form1");
}

TEST_CASE_FIXTURE(FilesFixture, "a table whose files differ in case is one table") {
  table(u"meibo");
  fs::rename(folder() / "Kmeibo.txt", folder() / "kMEIBO.TXT");
  pick(PickFor::table);
  play({"key Down", "key Enter"});
  CHECK(docPath == fromUtf8(path("meibo.txt")));
  CHECK_FALSE(exists("MEIBO.TXT"));
}

TEST_CASE_FIXTURE(FilesFixture, "Space looks at the items and changes nothing") {
  table(u"b");
  const Text good = table(u"a");
  writeBytes(folder() / "Kc.txt", "");
  edit(good);
  play({"menu mnuREAD", "key Down", "key Down"});
  otherItemCount = 77;
  play({"key Space"});
  CHECK(play({"show frmItemList.List1"}).find("氏名") != std::string::npos);
  // The release of the key that closes the list is not one in the picker.
  play({"key Tab", "key Space"});
  CHECK(play({"show forms"}) == "forms frmSHEET Form1 frmDISK");
  CHECK(otherItemCount == 77);
  play({"key Down", "key Space"});
  CHECK(play({"key Enter"}).find("c.txtはZelkoﾌｧｲﾙではない可能性があります。") != std::string::npos);
  CHECK(play({"show FrmOK"}).find("caption Zelkoﾌｧｲﾙのｱｸｾｽ") != std::string::npos);
  play({"key Enter", "key Esc"});
  checkStillEdited(*this, "a.txt");
}

TEST_CASE_FIXTURE(FilesFixture, "a table that is read-only or in edit is not deleted") {
  table(u"c");
  edit(table(u"a"));
  play({"menu mnuDEL", "key Down"});
  CHECK(play({"key Enter"}).find("作業中のﾌｧｲﾙは削除出来ません") != std::string::npos);
  play({"key Enter", "key Down"});
  SUBCASE("a read-only one stays whole") {
    fs::permissions(folder() / "Kc.txt", fs::perms::owner_write, fs::perm_options::remove);
    play({"key Enter", "type y"});
    CHECK(play({"show FrmOK.Label1"}).find("c.txtを削除できません。") != std::string::npos);
    CHECK(exists("c.txt"));
    play({"key Enter"});
  }
  SUBCASE("a link to the table in edit is that table") {
    fs::create_hard_link(folder() / "a.txt", folder() / "z.txt");
    writeBytes(folder() / "Kz.txt", readBytes(folder() / "Ka.txt"));
    play({"key Esc", "menu mnuDEL", "key End"});
    CHECK(play({"key Enter"}).find("作業中のﾌｧｲﾙは削除出来ません") != std::string::npos);
    play({"key Enter"});
  }
  play({"key Esc"});
  CHECK(mode.empty());
  checkStillEdited(*this, "a.txt");
}

TEST_CASE_FIXTURE(FilesFixture, "a folder is made in the marked one") {
  fs::create_directories(folder() / "中");
  pick(PickFor::table);
  play({"focus frmDISK.Dir1", "key Down", "key Alt+F"});
  CHECK(play({"show frmTin"}).find("caption フォルダの作成") != std::string::npos);
  CHECK(play({"commit 新しい", "key Enter"}).find("フォルダ作成作成されました新しい") != std::string::npos);
  CHECK(exists("中/新しい"));
  CHECK(play({"show focus"}) == "focus frmDISK.Dir1");
  for (const char* refused : {"新しい", "a/b", ".."}) {
    CAPTURE(refused);
    play({"key Alt+F", std::string("commit ") + refused, "key Enter"});
    CHECK(play({"show forms"}) == "forms frmDISK FrmOK");
    play({"key Enter"});
  }
  play({"key Alt+F", "key Esc"});
  CHECK(play({"show forms"}) == "forms frmDISK");
}

TEST_CASE_FIXTURE(FilesFixture, "a reference is another table, read beside the one in edit") {
  table(u"b");
  const Text first = table(u"a");
  edit(first);
  fs::create_symlink(folder() / "a.txt", folder() / "c.txt");
  writeBytes(folder() / "Kc.txt", readBytes(folder() / "Ka.txt"));
  Text served;
  registerCommand(u"REF", [&] { served = pickedFile(); });
  pick(PickFor::reference);
  play({"key Down", "key Enter"});
  CHECK(play({"show FrmOK"}).find("caption 確認") != std::string::npos);
  play({"key Enter", "key Down", "key Down", "key Enter"});
  CHECK(play({"show FrmOK"}).find("caption 編集中のﾌｧｲﾙ") != std::string::npos);
  play({"key Enter", "key Up", "key Enter"});
  CHECK(served == fromUtf8(path("b.txt")));
  CHECK(otherPath == served);
  CHECK(otherItemCount == 1);
  registerCommand(u"REF", {});
  CHECK(play({"key Enter"}) == "beep");
  play({"key Esc"});
}
