#include "parts/reading/helpform.h"

#include <doctest/doctest.h>

#include <algorithm>

#include "parts/reading/textfile.h"
#include "parts/report/report.h"
#include "platform/text/sjis.h"
#include "session.h"
#include "store/table/table.h"
#include "voice/talk.h"

using namespace zelko;

TEST_CASE("a report is appended to, read line by line, printed; a file of a table is no report") {
  test::Session user;
  docPath = user.makeTable(u"点", {{u"ID", 4}}, {{u"1"}});
  const Text folder = fromUtf8(user.folder().string());
  writeBytes(user.folder() / "kekka.txt", "before\r\n");
  user.run([&] {
    Report report;
    REQUIRE(report.open(folder, false));
    report.head(u"クロス集計");
    report.line(recordsOfGroups(1, 12));
    report.line(TextView());
    REQUIRE(report.close());
  });
  const Text text = readTextFile(resultFile(folder)).value_or(Text());
  CHECK(toUtf8(text) ==
        "before\r\nクロス集計\r\nﾌｧｲﾙ名:点.txt\r\n2026/01/05    10:00:00\r\n"
        "■ファイル名:点.txt(Record: 1  ----  12 )\r\n\r\n");

  Text saved;
  user.run([&] { showReading({u"クロス集計", text, true, u"終了しました", [&](const Text& now) { saved = now; }}); });
  user.play("wait 1");
  user.said();
  const auto heardAt = [&](const char* key) {
    user.press(key);
    return user.said();
  };
  CHECK(heardAt("Up") == "ﾊｼﾞﾒﾆ ｱﾘﾏｽ､before､先頭ぎょう､0パーセント位置");
  CHECK(heardAt("Down").starts_with("クロス集計､"));
  CHECK(heardAt("Ctrl+End") == "空行､最終ぎょう､100パーセント位置");
  CHECK(heardAt("Shift+Up").find("ｶﾞｾﾝﾀｸｻﾚﾃｲﾏｽ") != std::string::npos);
  user.events();
  user.click("frmHelp.Command1");
  const auto printed = user.events();
  CHECK(std::any_of(printed.begin(), printed.end(), [](const std::string& line) { return line == "print end"; }));
  user.click("frmHelp.Command2");
  CHECK(saved == text);
  user.press("Esc");
  CHECK(screen().activeForm() == nullptr);

  writeBytes(user.folder() / "KKEKKA.TXT", readBytes(user.folder() / "K点.txt"));
  std::filesystem::rename(user.folder() / "kekka.txt", user.folder() / "KEKKA.TXT");
  user.run([&] { CHECK_FALSE(Report().open(folder, true)); });
  user.press("Enter");
  CHECK(readTextFile(resultFile(folder)) == text);
}
