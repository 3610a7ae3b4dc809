#include "parts/job/job.h"

#include <sys/stat.h>

#include "files/files_fixture.h"
#include "parts/report/resultfolder.h"
#include "platform/forms/lists.h"
#include "store/records/walk.h"
#include "store/table/cursor.h"
#include "voice/talk.h"

using namespace zelko;
using namespace zelko::test;

namespace {

// Doubles the text of item 1; what is empty is left, what has no room is cut.
Job doubling() {
  Job job;
  job.work = u"書き換え中";
  job.steps = 3;
  job.changes = true;
  job.run = [](Progress& progress, JobCounts& counts) {
    Walk walk;
    walk.last = 3;
    walk.progress = &progress;
    const WalkEnd end = changeRecords(walk, [&](ChangedRecord& record) {
      const Text text = record.trimmedCell(1);
      text.empty() ? ++counts.skipped : ++counts.done;
      if (text.size() > 2) ++counts.cut;
      record.setCell(1, text + text);
      return true;
    });
    return end == WalkEnd::done ? JobEnd::done : JobEnd::stopped;
  };
  return job;
}

class WithDisk : public Form {
 public:
  static constexpr TextView kName = u"WithDisk";
  WithDisk() : Form(kName, u"結果") {
    boxes.words = resultFolderWords();
    Narration voice(*this);
    boxes.narrate(voice);
  }
  DriveBox Drive1{*this, u"Drive1"};
  FolderBox Dir1{*this, u"Dir1"};
  FileBox File1{*this, u"File1"};
  DiskBoxes boxes{Drive1, Dir1, File1};
};

}  // namespace

TEST_CASE_FIXTURE(FilesFixture, "a job stores what is typed, changes the table, and tells at its end what it did") {
  edit(makeTable(u"t", {{u"ID", 2}, {u"氏名", 4}}, {{u"1", u"ab"}, {u"2", u"abc"}, {u"3"}}));
  Fixture::play("wait 1");
  play({"key Right", "commit x"});
  run([] { CHECK(runJob(doubling()) == JobEnd::done); });
  CHECK(heard().ends_with("終了しました。2件処理、1件そのまま、1件は項目幅に切りました。"));
  CHECK(record(1) == u"1 xx");
  CHECK(record(2) == u"2 abca");
  CHECK(play({"wait 1", "key Alt+N"}).starts_with("xx"));

  play({"wait 1", "later 2 key Esc"});
  run([] { CHECK(runJob(doubling()) == JobEnd::stopped); });
  CHECK(heard().find("中止しました。ここまでに、") != std::string::npos);

  ::chmod(path("t.txt").c_str(), 0444);
  play({"wait 1"});
  run([] { CHECK(runJob(doubling()) == JobEnd::refused); });
  CHECK(heard().find("書き込み禁止ﾌｧｲﾙです。") != std::string::npos);
  play({"key Enter"});
  CHECK(countsSentence(JobEnd::stopped, {5, 0, 0}) == u"中止しました。ここまでに、5件処理。");
}

TEST_CASE_FIXTURE(FilesFixture, "the folder of the results is chosen by ear") {
  std::filesystem::create_directory(path("sub"));
  run([&] {
    form<WithDisk>().boxes.open(appDir);
    form<WithDisk>().show();
  });
  Fixture::play("wait 1");
  heard();
  CHECK(play({"key Tab"}).starts_with("KEKKA.TXTﾉ　ﾌｫﾙﾀﾞを指定してください。フォルダ、"));
  CHECK(play({"key End", "wait 1", "key Enter"}).find("ﾌｫﾙﾀﾞﾎﾞｯｸｽ､~/subにﾌｫﾙﾀﾞが変更されました.") != std::string::npos);
  CHECK(form<WithDisk>().Dir1.path() == fromUtf8(path("sub")));
}
