// Picking an item of another table.
#include "files/picker/filenumber.h"
#include "files/files_fixture.h"
#include "platform/files/files.h"
#include "store/table/table.h"

using namespace zelko;
using namespace zelko::test;

TEST_CASE_FIXTURE(FilesFixture, "first the file, then its item") {
  table(u"b");
  edit(table(u"a"));
  writeBytes(folder() / "K0.txt", "no table");
  std::optional<FileItem> taken;
  const bool mayTakeName = true;
  run([&] { taken = getfileno(mayTakeName); });
  heard();
  CHECK(play({"key Enter"}) == "beep");
  CHECK(play({"key Down"}) == "0.txtﾌｧｲﾙﾘｽﾄﾎﾞｯｸｽ");
  CHECK(play({"key Enter"}).find("Zelkoﾌｧｲﾙではない可能性があります。") != std::string::npos);
  play({"key Enter"});
  CHECK(play({"key End"}) == "b.txtﾌｧｲﾙﾘｽﾄﾎﾞｯｸｽ");
  CHECK(play({"key Enter"}) == "項目ﾘｽﾄﾎﾞｯｸｽ");
  CHECK(play({"key Enter"}) == "beep");
  CHECK(play({"key End"}).find("氏名") != std::string::npos);
  SUBCASE("by its number") {
    play({"key Enter"});
    REQUIRE(taken);
    CHECK(taken->taken == u"1");
  }
  SUBCASE("by its name") {
    CHECK(play({"focus frmFileNo.Check1", "key Space"}).ends_with("チェック､項目番号でなく項目名を記入するﾁｪｯｸﾎﾞｯｸｽ"));
    play({"key Enter"});
    REQUIRE(taken);
    CHECK(taken->taken == u"氏名");
  }
  SUBCASE("or not at all") {
    play({"key Esc"});
    CHECK_FALSE(taken);
    return;
  }
  CHECK(taken->dataFile == fromUtf8(path("b.txt")));
  CHECK(taken->item == 1);
  CHECK(otherItemCount == 1);
  CHECK(isOpen(1));
}
