// A help text, read line by line.
#include "files/files_fixture.h"
#include "platform/text/sjis.h"

using namespace zelko;
using namespace zelko::test;

TEST_CASE_FIXTURE(FilesFixture, "a help text that is not there") {
  edit(table(u"a"));
  CHECK(play({"menu menuGENERAL"}).find("Zelkoについて.txtがないか、読めません。") != std::string::npos);
  play({"key Enter"});
  CHECK(play({"show forms"}) == "forms frmSHEET Form1");
}
