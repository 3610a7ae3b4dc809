// The picker by ear: what its controls say on focus, on moves, on a change of folder and when asked.
#include <filesystem>

#include "files/files_fixture.h"
#include "voice/talk.h"

using namespace zelko;
using namespace zelko::test;

namespace fs = std::filesystem;

namespace {

struct Row {
  std::string story;
  std::vector<std::string> keys;
  std::string heard;
};

void hear(FilesFixture& user, const std::vector<Row>& rows) {
  for (const Row& row : rows) {
    CAPTURE(row.story);
    CHECK(user.play(row.keys) == row.heard);
  }
}

}  // namespace

TEST_CASE_FIXTURE(FilesFixture, "a change of folder is reported once, by the box that made it") {
  table(u"a");
  fs::create_directories(folder() / "中");
  for (const char* name : {"Kx.txt", "ky.TXT", "Kz.txt", "Kzz.txt", "K.txt", "other.txt"})
    writeBytes(folder() / "中" / name, "");
  fs::create_directories(folder() / "空");
  pick(PickFor::table);
  heard();
  hear(*this,
       {{"arrows mark a folder",
         {"focus frmDISK.Dir1", "key Down"},
         "フォルダ、~ﾌｫﾙﾀﾞﾎﾞｯｸｽ矢印ｷｰでﾌｫﾙﾀﾞを選択し、"
         "CRｷｰを叩くとﾌｫﾙﾀﾞが変更されます / 中ﾌｫﾙﾀﾞﾎﾞｯｸｽ"},
        {"Enter opens it", {"key Enter"}, "~/中にﾌｫﾙﾀﾞが変更されましたx.txt､z.txt､zz.txt等があります ﾌｫﾙﾀﾞﾎﾞｯｸｽ"},
        {"then the list names its files",
         {"focus frmDISK.File1", "key Down"},
         "ファイル、ﾌｧｲﾙﾘｽﾄﾎﾞｯｸｽ / x.txtﾌｧｲﾙﾘｽﾄﾎﾞｯｸｽ"},
        {"a folder without tables",
         {"focus frmDISK.Dir1", "key Up", "key Enter", "key Down", "key Down", "key Enter"},
         "フォルダ、~/中ﾌｫﾙﾀﾞﾎﾞｯｸｽ矢印ｷｰでﾌｫﾙﾀﾞを選択し、CRｷｰを叩くとﾌｫﾙﾀﾞが変更されます / " +
             folder().filename().string() +
             "ﾌｫﾙﾀﾞﾎﾞｯｸｽ / ~にﾌｫﾙﾀﾞが変更されましたa.txt等があります ﾌｫﾙﾀﾞﾎﾞｯｸｽ / 中ﾌｫﾙﾀﾞﾎﾞｯｸｽ / 空ﾌｫﾙﾀﾞﾎﾞｯｸｽ / "
             "~/空にﾌｫﾙﾀﾞが変更されましたﾌｫﾙﾀﾞには該当と思われるﾌｧｲﾙはありません ﾌｫﾙﾀﾞﾎﾞｯｸｽ"},
        {"says so again in the list",
         {"focus frmDISK.File1"},
         "ファイル、現在のﾌｫﾙﾀﾞには該当ﾌｧｲﾙはありませんﾌｫﾙﾀﾞを変更してくださいﾌｧｲﾙﾘｽﾄﾎﾞｯｸｽ"},
        {"where Enter finds nothing to open", {"key Enter"}, "beep"},
        {"nor Space", {"key Space"}, "beep"}});
}

TEST_CASE_FIXTURE(FilesFixture, "a report that the gate held back is heard at the next move") {
  fs::create_directories(folder() / "中");
  writeBytes(folder() / "中" / "Kx.txt", "");
  pick(PickFor::table);
  play({"focus frmDISK.Dir1", "key Down"});
  CHECK(play({"step 0", "key Enter", "focus frmDISK.File1", "step 1", "key Down", "key Home"}) ==
        "~/中にﾌｫﾙﾀﾞが変更されましたx.txt等があります ﾌｧｲﾙﾘｽﾄﾎﾞｯｸｽ / beep");
}

TEST_CASE_FIXTURE(FilesFixture, "the root folder parts a file from its folder by one stroke") {
  pick(PickFor::table);
  play({"focus frmDISK.Dir1", "key Home", "key Enter"});
  CHECK(play({"show frmDISK.Dir1"}).find("> /") != std::string::npos);
  CHECK(play({"focus frmDISK.File1", "key Shift+PageDown"}).find("フォルダは/です。") != std::string::npos);
}
