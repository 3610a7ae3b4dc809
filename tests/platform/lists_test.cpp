// Lists, the boxes that read the disk, and grids.
#include <doctest/doctest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>

#include "fixture.h"
#include "platform/grid.h"
#include "platform/sampleform.h"

using namespace zelko;
namespace fs = std::filesystem;

namespace {

class Picker : public Form {
 public:
  static constexpr TextView kName = u"frmPicker";
  Picker() : Form(kName, u"Picker") {
    list.onClick = [this] { tell(list.text()); };
    folders.onClick = [this] { tell(folders.text()); };
    folders.onChange = [this] {
      tell(u"opened");
      files.setPath(folders.path());
    };
    grid.onRowColChange = [this] { tell(u"moved"); };
  }
  ListBox list{*this, u"list"};
  FolderBox folders{*this, u"folders"};
  FileBox files{*this, u"files"};
  Grid grid{*this, u"grid"};
};

struct Session : Fixture {
  Session() {
    run([] { form<Picker>().show(); });
  }
  Picker& picker() { return form<Picker>(); }
};

std::string names(const ListBox& list) {
  std::string all;
  for (const Text& entry : list.entries()) all += toUtf8(entry) + " ";
  return all;
}

}  // namespace

TEST_CASE("a list speaks each entry it comes to, and beeps at its ends") {
  Session s;
  s.run([&] { s.picker().list.setEntries({u"apple", u"Berry", u"banana", u"苺"}); });
  s.play("key Down\nkey Down\ntype b\ntype b\ntype 苺\nkey Home\nkey End");
  CHECK(s.said() == "apple / Berry / banana / Berry / 苺 / apple / 苺");
  s.events();
  s.play("key Down\ntype z");
  CHECK(s.events() == std::vector<std::string>{"beep", "beep"});
  s.run([&] { s.picker().list.clear(); });
  s.press("Down");
  CHECK(s.events() == std::vector<std::string>{"beep"});
}

TEST_CASE("file name patterns") {
  struct Row {
    const char16_t* name;
    const char16_t* pattern;
    bool fits;
  };
  for (const Row& row :
       {Row{u"K住所録.TXT", u"k?*.txt", true}, Row{u"k.txt", u"k?*.txt", false},
        Row{u"Kabc.txt.bak", u"k?*.txt", false}, Row{u"noextension", u"*.*", true}, Row{u"a(1).lay", u"*(*).LAY", true},
        Row{u"a.csv", u"*.txt; *.csv", true}, Row{u"Ａb.txt", u"ａ*", true}, Row{u"aXbXc", u"a*b*c", true},
        Row{u"aXbX", u"a*b*c", false}, Row{u"", u"*", true}, Row{u"a", u"", false}}) {
    CAPTURE(toUtf8(row.name));
    CHECK(fileNameFits(row.name, row.pattern) == row.fits);
  }
}

TEST_CASE("folders: parents above, subfolders below, arrows mark and Enter opens") {
  Session s;
  fs::create_directories(s.folder() / "b" / "inner");
  fs::create_directory(s.folder() / "a");
  fs::create_directory_symlink(s.folder(), s.folder() / "b" / "loop");
  writeBytes(s.folder() / "b" / "Kone.txt", "");
  writeBytes(s.folder() / "b" / "k\xFF.TXT", "");
  writeBytes(s.folder() / "b" / "two.txt", "");
  Text path = fromUtf8(s.folder().string());
  Picker& picker = s.picker();
  s.run([&] {
    picker.files.setPattern(u"k?*.txt");
    REQUIRE(picker.folders.setPath(path + u"/a/.."));
    picker.folders.setFocus();
  });
  CHECK(picker.folders.path() == path);
  CHECK(picker.folders.entries().front() == u"/");
  CHECK(picker.folders.markedPath() == path);
  s.said();
  s.play("key Down\nkey Down\nkey Enter");
  CHECK(s.said() == "a / b / opened");
  CHECK(picker.folders.path() == path + u"/b");
  CHECK(names(picker.files).find("Kone.txt k\xFF.TXT ") == 0);
  CHECK(picker.files.count() == 2);

  SUBCASE("links in a circle are folders like others") {
    s.play("type l\nkey Enter\ntype b");
    CHECK(picker.folders.path() == path + u"/b/loop");
  }
  SUBCASE("what can't be read changes nothing") {
    for (const char16_t* bad : {u"/missing", u"/b/Kone.txt"}) CHECK_FALSE(picker.folders.setPath(path + bad));
    CHECK(picker.folders.path() == path + u"/b");
  }
  SUBCASE("a refresh keeps what was selected") {
    s.run([&] {
      picker.files.setListIndex(1);
      fs::remove(s.folder() / "b" / "Kone.txt");
      picker.files.refresh();
    });
    CHECK(picker.files.listIndex() == 0);
    CHECK(toUtf8(picker.files.fileName()) == "k\xFF.TXT");
  }
}

TEST_CASE("a folder of 20,000 files is there at once") {
  Session s;
  for (int i = 0; i < 20'000; ++i) writeBytes(s.folder() / ("K" + std::to_string(i) + ".txt"), "");
  auto before = std::chrono::steady_clock::now();
  s.run([&] { s.picker().files.setPath(fromUtf8(s.folder().string())); });
  CHECK(std::chrono::steady_clock::now() - before < std::chrono::seconds(1));
  CHECK(s.picker().files.count() == 20'000);
}

TEST_CASE("the cursor of a grid stays behind the headings") {
  Session s;
  Grid& grid = s.picker().grid;
  s.run([&] {
    grid.setRows(3);
    grid.setCols(3);
    grid.setCellText(2, 2, u"x");
    grid.setFocus();
  });
  s.play("key Up\nkey Down\nkey Down\nkey End\nshow frmPicker.grid");
  CHECK(s.said() == "moved / moved");
  CHECK(grid.text() == u"x");
  CHECK(s.events().back() == "frmPicker.grid  |  | x");
  s.run([&] { grid.setRows(2); });
  CHECK(grid.row() == 1);
  CHECK(grid.cell(2, 2) == u"");
}
