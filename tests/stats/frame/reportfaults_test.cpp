// A report that can't be opened or written is told, the form stays, and the same key works once there is room.
#include "fulldisk.h"
#include "session.h"

namespace zelko {

namespace {

struct Reporting {
  std::string name, way, output;  // up to the key that writes, and that key; both reach it again
};

const Reporting kReports[] = {
    {"frequencies", "menu mnuFREQ\nkey Num1", "key Enter\nkey Enter"},
    {"correlation", "menu mnuRP\nkey Num1\nkey Down\nkey Num1", "key Enter"},
    {"variance", "menu mnu1\nkey Enter\nfocus frmVanalysis.Command3", "key Enter"},
};

const std::vector<ItemOfTable> kTable = {{u"ID", 2}, {u"a", 4, u'R'}, {u"b", 4, u'R'}};
const test::Rows kRows = {{u"1", u"3", u"5"}, {u"2", u"4", u"9"}, {u"3", u"8", u"7"}};

}  // namespace

TEST_CASE("a report that can't be opened or written is told, and written once it can") {
  for (const Reporting& report : kReports) {
    CAPTURE(report.name);
    test::Session session;
    session.open(kTable, kRows);
    session.play(report.way);
    std::filesystem::create_directory(session.folder() / "KEKKA.TXT");
    session.play(report.output);
    CHECK(session.said().find("KEKKA.TXTが開けません。フォルダを確認してください") != std::string::npos);
    session.press("Enter");
    std::filesystem::remove(session.folder() / "KEKKA.TXT");
    const std::string before(1000, 'x');
    writeBytes(session.folder() / "KEKKA.TXT", before);
    {
      const test::FullDisk full(1010);
      session.play(report.output);
    }
    CHECK(session.said().find("KEKKA.TXTに書き込めませんでした") != std::string::npos);
    session.press("Enter");
    session.play(report.output);
    const std::string said = session.said();
    CAPTURE(said);
    CHECK(said.find("終了") != std::string::npos);
    CHECK(session.file("KEKKA.TXT").starts_with(before));
    CHECK_FALSE(session.ended());
  }
}

}  // namespace zelko
