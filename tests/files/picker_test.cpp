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

TEST_CASE_FIXTURE(FilesFixture, "the picker opens on the list of tables and names them as their owner does") {
  table(u"会員名簿");
  table(u"家計簿");
  pick(u"");
  CHECK(heard() == "Zelkoﾌｧｲﾙ指定フォームが開かれました。 ﾌｧｲﾙを指定して下さい。");
  hear(*this, {{"arrows name the tables", {"key Down"}, "会員名簿.txtﾌｧｲﾙﾘｽﾄﾎﾞｯｸｽ"},
               {"and the next", {"key Down"}, "家計簿.txtﾌｧｲﾙﾘｽﾄﾎﾞｯｸｽ"},
               {"the end beeps", {"key Down"}, "beep"},
               {"a beginning of a name is found", {"type 会"}, "会員名簿.txtﾌｧｲﾙﾘｽﾄﾎﾞｯｸｽ"},
               {"the shared first letter is no beginning", {"type k"}, "beep"},
               {"the report of the list",
                {"key Shift+Ctrl+S"},
                "ファイルリストボックスでは、会員名簿.txtフォルダは~です。。なお、スペースキーをたたくと、"
                "選択ファイルの項目名一覧Windowが　開かれます。"},
               {"Tab reads the chosen name", {"key Tab"}, "会員名簿.txt､選択ﾌｧｲﾙ名ﾃｷｽﾄﾎﾞｯｸｽ"},
               {"and the button", {"key Tab"}, "読み込み(CR)ｺﾏﾝﾄﾞﾎﾞﾀﾝ"},
               {"which reports itself",
                {"key Shift+PageDown"},
                "ファイルリストボックスでは、会員名簿.txt読み込み（CR)コマンドボタン"},
               {"as does cancel",
                {"key Tab", "key Shift+PageDown"},
                "中止(ESC)ｺﾏﾝﾄﾞﾎﾞﾀﾝ / ファイルリストボックスでは、会員名簿.txt中止(ESC)コマンドボタン"},
               {"the drive",
                {"focus frmDISK.Drive1", "key Shift+PageDown"},
                "ドライブ、/ドライブﾎﾞｯｸｽ矢印ｷｰでﾄﾞﾗｲﾌﾞ変更 CRで確定します / "
                "ファイルリストボックスでは、会員名簿.txtドライブ/"},
               {"the folder",
                {"focus frmDISK.Dir1", "key Shift+PageDown"},
                "フォルダ、~ﾌｫﾙﾀﾞﾎﾞｯｸｽ矢印ｷｰでﾌｫﾙﾀﾞを選択し、CRｷｰを叩くとﾌｫﾙﾀﾞが変更されます / "
                "ファイルリストボックスでは、会員名簿.txtフォルダ~"}});
}

TEST_CASE_FIXTURE(FilesFixture, "a change of folder is reported once, by the box that made it") {
  table(u"a");
  fs::create_directories(folder() / "中");
  for (const char* name : {"Kx.txt", "ky.TXT", "Kz.txt", "Kzz.txt", "K.txt", "other.txt"})
    writeBytes(folder() / "中" / name, "");
  fs::create_directories(folder() / "空");
  pick(u"YOMIKOMI");
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
  pick(u"");
  play({"focus frmDISK.Dir1", "key Down"});
  CHECK(play({"step 0", "key Enter", "focus frmDISK.File1", "step 1", "key Down", "key Home"}) ==
        "~/中にﾌｫﾙﾀﾞが変更されましたx.txt等があります ﾌｧｲﾙﾘｽﾄﾎﾞｯｸｽ / beep");
}

TEST_CASE_FIXTURE(FilesFixture, "an empty program folder is told at the opening") {
  pick(u"");
  CHECK(heard() ==
        "Zelkoﾌｧｲﾙ指定フォームが開かれました。 ﾌｧｲﾙを指定して下さい。"
        "現在のﾌｫﾙﾀﾞには該当ﾌｧｲﾙはありませんﾌｫﾙﾀﾞを変更してください");
  CHECK(play({"key Shift+PageDown"}) ==
        "ファイルリストボックスでは、ｶﾞｲﾄｳ ﾌｧｲﾙなし｡フォルダは~です。。なお、スペースキーをたたくと、"
        "選択ファイルの項目名一覧Windowが　開かれます。");
}

TEST_CASE_FIXTURE(FilesFixture, "the root folder parts a file from its folder by one stroke") {
  pick(u"");
  play({"focus frmDISK.Dir1", "key Home", "key Enter"});
  CHECK(play({"show frmDISK.Dir1"}).find("> /") != std::string::npos);
  CHECK(play({"focus frmDISK.File1", "key Shift+PageDown"}).find("フォルダは/です。") != std::string::npos);
}

TEST_CASE_FIXTURE(FilesFixture, "every job has its caption, its files and its buttons") {
  table(u"名簿");
  writeBytes(folder() / "宛名(名簿).LAY", "");
  writeBytes(folder() / "data.csv", "");
  struct Job {
    Text mode;
    std::string opening, first, buttons;
  };
  const std::vector<Job> jobs = {
      {u"YOMIKOMI", "Zelkoﾌｧｲﾙ指定フォームが開かれました。 ﾌｧｲﾙを指定して下さい。", "名簿.txt", "読み込み(CR) CSV 他"},
      {u"delfile", "削除ﾌｧｲﾙ指定フォームが開かれました。", "名簿.txt", "削除(CR)"},
      {u"LAYOUT",
       "ﾚｲｱｳﾄﾌｧｲﾙ指定フォームが開かれました。"
       "レイアウトファイルを指定してください。なおDeleteキーでファイル削除です",
       "宛名(名簿).LAY", "読込(CR)"},
      {u"REF", "Zelkoﾌｧｲﾙ指定フォームが開かれました。 ﾌｧｲﾙを指定して下さい。", "名簿.txt", "読み込み(CR)"},
      {u"SVCread", "Zelkoﾌｧｲﾙ指定フォームが開かれました。 ﾌｧｲﾙを指定して下さい。", "data.csv", "読み込み(CR) CSV"},
  };
  for (const Job& job : jobs) {
    CAPTURE(toUtf8(job.mode));
    pick(job.mode);
    CHECK(heard() == job.opening);
    CHECK(play({"key Down"}) == job.first + "ﾌｧｲﾙﾘｽﾄﾎﾞｯｸｽ");
    std::string form = play({"show frmDISK"}), buttons;
    if (form.find("Command1 CommandButton 読み込み(CR)") != std::string::npos) buttons = "読み込み(CR)";
    if (form.find("Command1 CommandButton 削除(CR)") != std::string::npos) buttons = "削除(CR)";
    if (form.find("Command1 CommandButton 読込(CR)") != std::string::npos) buttons = "読込(CR)";
    if (form.find("Command2 ") != std::string::npos) buttons += " CSV";
    if (form.find("cmdNOTZLK ") != std::string::npos) buttons += " 他";
    CHECK(buttons == job.buttons);
    play({"key Tab"});
    heard();
  }
}

TEST_CASE_FIXTURE(FilesFixture, "the toggle shows all files and comes back") {
  table(u"名簿");
  writeBytes(folder() / "手紙.doc", "");
  pick(u"");
  heard();
  hear(*this, {{"to all files", {"click frmDISK.cmdNOTZLK"}, "すべてのファイルを表示するｺﾏﾝﾄﾞﾎﾞﾀﾝ"},
               {"heard when the gate is open",
                {"key Enter", "key Enter"},
                "Zelkoﾌｧｲﾙ指定 ﾌｧｲﾙを指定して下さい。 / Zelkoファイルでないファイルの読み込みへ"},
               {"files by their whole names",
                {"focus frmDISK.File1", "key Down", "key Down", "key Down"},
                "ファイル、ﾌｧｲﾙﾘｽﾄﾎﾞｯｸｽ / K名簿.txtﾌｧｲﾙﾘｽﾄﾎﾞｯｸｽ / 名簿.txtﾌｧｲﾙﾘｽﾄﾎﾞｯｸｽ / 手紙.docﾌｧｲﾙﾘｽﾄﾎﾞｯｸｽ"},
               {"and back, where nothing is chosen",
                {"focus frmDISK.cmdNOTZLK", "key Enter", "focus frmDISK.File1", "key Enter"},
                "Zelkoファイルだけを表示するｺﾏﾝﾄﾞﾎﾞﾀﾝ / Zelkoﾌｧｲﾙ指定 ﾌｧｲﾙを指定して下さい。 / "
                "ファイル、ﾌｧｲﾙﾘｽﾄﾎﾞｯｸｽ / beep"}});
}

TEST_CASE_FIXTURE(FilesFixture, "a silent run composes nothing") {
  table(u"名簿");
  talkMode = 0;
  pick(u"");
  play({"key Down", "key Shift+PageDown", "focus frmDISK.Dir1", "key Up", "key Enter", "key Tab", "key Shift+Ctrl+A"});
  CHECK(composedSentences == 0);
}
