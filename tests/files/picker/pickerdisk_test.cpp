// Folders as bad as they come: each meets a sentence, and the picker goes on.
#include <unistd.h>

#include <ctime>
#include <filesystem>

#include "files/files_fixture.h"

using namespace zelko;
using namespace zelko::test;

namespace fs = std::filesystem;

namespace {

// Of the processor: others may be at work on the machine.
double secondsOf(const std::function<void()>& work) {
  const std::clock_t start = std::clock();
  work();
  return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

}  // namespace

TEST_CASE_FIXTURE(FilesFixture, "a folder of 20,000 files") {
  for (int i = 0; i < 20000; ++i) writeBytes(folder() / ("K" + std::to_string(i) + ".txt"), "");
  CHECK(secondsOf([&] { pick(PickFor::table); }) < 1.0);
  heard();
  CHECK(secondsOf([&] {
          for (int i = 0; i < 100; ++i) Fixture::press("Down");
        }) < 1.0);
  heard();
  CHECK(play({"key End"}) == "9999.txtﾌｧｲﾙﾘｽﾄﾎﾞｯｸｽ");
}

TEST_CASE_FIXTURE(FilesFixture, "a folder that can't be opened") {
  fs::create_directories(folder() / "中");
  pick(PickFor::table);
  play({"focus frmDISK.Dir1", "key Down"});
  SUBCASE("because it is gone") { fs::remove(folder() / "中"); }
  SUBCASE("because nobody may read it") {
    fs::permissions(folder() / "中", fs::perms::none);
    if (geteuid() == 0) return;
  }
  for (const char* act : {"key Enter", "dblclick frmDISK.Dir1"}) {
    CAPTURE(act);
    CHECK(play({act}).find("~/中は開けません。ﾌｫﾙﾀﾞがないか、読み取りが許可されていません。") != std::string::npos);
    play({"key Enter"});
    CHECK(play({"key Shift+PageDown"}).ends_with("フォルダ~"));
  }
  if (exists("中")) fs::permissions(folder() / "中", fs::perms::owner_all);
}

TEST_CASE_FIXTURE(FilesFixture, "a drive that is not ready leaves the old one") {
  fs::create_directories(folder() / "home");
  const std::string home = getenv("HOME") ? getenv("HOME") : "";
  setenv("HOME", path("home").c_str(), 1);
  pick(PickFor::table);
  setenv("HOME", home.c_str(), 1);
  heard();
  play({"focus frmDISK.Drive1"});
  fs::remove(folder() / "home");
  CHECK(play({"key Down"}) == "~/homeﾄﾞﾗｲﾌﾞﾎﾞｯｸｽ");
  CHECK(play({"key Enter"}).find("ドライブが 用意されていないのでは ないですか?") != std::string::npos);
  CHECK(play({"show FrmOK"}).find("caption ﾄﾞﾗｲﾌﾞｴﾗｰ") != std::string::npos);
  play({"key Enter"});
  CHECK(play({"key Shift+PageDown"}).ends_with("ドライブ/"));
  CHECK(play({"key Enter"}).starts_with("/にﾌｫﾙﾀﾞが変更されました"));
}

TEST_CASE_FIXTURE(FilesFixture, "links in circles end in a sentence") {
  fs::create_directory_symlink(".", folder() / "l");
  fs::create_symlink("Kself.txt", folder() / "Kself.txt");
  fs::create_symlink("nowhere", folder() / "Kgone.txt");
  pick(PickFor::table);
  play({"focus frmDISK.Dir1", "key End", "key Enter"});
  for (int step = 0; step < 60; ++step) play({"key End", "key Enter"});
  CHECK(play({"show forms"}) == "forms frmDISK FrmOK");
  play({"key Enter", "focus frmDISK.Dir1", "key Home", "key Enter"});
  CHECK(play({"key Shift+PageDown"}).ends_with("フォルダ/"));
}

TEST_CASE_FIXTURE(FilesFixture, "names that are no text are said and opened") {
  writeBytes(folder() / fs::path("K\x81\xFF.txt"), "");
  writeBytes(folder() / fs::path("K\n😀.txt"), "");
  const std::string longest = "K" + std::string(250, 'n') + ".txt";
  writeBytes(folder() / longest, "");
  const Text shown = table(u"山\xFA30");
  pick(PickFor::table);
  heard();
  CHECK(play({"key Down"}) == "？😀.txtﾌｧｲﾙﾘｽﾄﾎﾞｯｸｽ");
  CHECK(play({"key Down"}) == longest.substr(1) + "ﾌｧｲﾙﾘｽﾄﾎﾞｯｸｽ");
  play({"key End"});
  CHECK(heard() == "");
  CHECK(play({"key Shift+PageDown"}).starts_with("ファイルリストボックスでは、？？.txt"));
  CHECK(play({"key Enter"}).find("Zelkoﾌｧｲﾙでないか") != std::string::npos);
  play({"key Enter", "key Enter", "key Up", "key Enter"});
  CHECK(play({"show forms"}) == "forms frmSHEET Form1");
}
