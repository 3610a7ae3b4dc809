// Paste and undo, mixed with the rewrites, against a second store that knows nothing but lists of cells: every byte of
// the table compared after each step.
#include <filesystem>
#include <random>

#include "editor/clip/clip.h"
#include "editor/editor_fixture.h"
#include "editor/rewrites/rewrites.h"
#include "store/records/records.h"
#include "store/table/cursor.h"
#include "store/table/itemfile.h"

using namespace zelko;
using namespace zelko::test;

namespace {

const std::vector<ItemOfTable> kItems = {{u"ID", 2}, {u"a", 4}, {u"b", 3, u'R'}};
constexpr std::size_t kWidths[] = {2, 4, 3};
constexpr std::size_t kEnd = 9;  // of the last item

using Record = std::string;  // its cells, padded

std::string fitted(const std::string& cell, std::size_t item) {
  const auto first = cell.find_first_not_of(' ');
  std::string text = first == std::string::npos ? "" : cell.substr(first, cell.find_last_not_of(' ') - first + 1);
  const std::size_t width = kWidths[item];
  if (item == 2)
    return text.size() >= width ? text.substr(text.size() - width) : std::string(width - text.size(), ' ') + text;
  return (text + std::string(width, ' ')).substr(0, width);
}

std::vector<std::string> cellsOf(const Record& record) {
  return {record.substr(0, 2), record.substr(2, 4), record.substr(6, 3)};
}

struct SecondStore {
  std::vector<Record> records;
  std::vector<std::vector<std::string>> clip;
  std::vector<Record> backup;
  std::size_t backupFirst = 0;  // from 0
  bool fits = false;            // no record was inserted, deleted or moved since the paste

  void copy(std::size_t r1, std::size_t r2, std::size_t i1, std::size_t i2) {
    clip.clear();
    for (std::size_t r = r1; r <= r2; ++r) {
      const auto cells = cellsOf(records[r]);
      clip.emplace_back(cells.begin() + static_cast<std::ptrdiff_t>(i1),
                        cells.begin() + static_cast<std::ptrdiff_t>(i2) + 1);
    }
  }
  void paste(std::size_t at, std::size_t item) {
    if (clip.empty()) return;
    backup.clear();
    backupFirst = at;
    fits = true;
    for (std::size_t k = 0; k < clip.size(); ++k) {
      if (at + k >= records.size()) records.emplace_back(kEnd, ' ');
      Record& record = records[at + k];
      backup.push_back(record);
      auto cells = cellsOf(record);
      for (std::size_t j = 0; j < clip[k].size() && item + j < 3; ++j) cells[item + j] = fitted(clip[k][j], item + j);
      record = cells[0] + cells[1] + cells[2];
    }
  }
  void insert(std::size_t at, std::size_t count) {
    fits = false;
    records.insert(records.begin() + static_cast<std::ptrdiff_t>(at), count, Record(kEnd, ' '));
  }
  void undo() {
    if (!fits) return;
    for (std::size_t k = 0; k < backup.size(); ++k) records[backupFirst + k] = backup[k];
  }
  std::string bytes() const {
    std::string all;
    for (const Record& record : records) all += record + std::string(254 - record.size(), ' ') + "\r\n";
    return all;
  }
};

class PasteFixture : public EditorFixture {
 public:
  void start() {
    std::filesystem::remove(folder() / "ZLKCLip");
    for (const char* file : {"ZLKCLip.bak", "ZLKCLip.for"}) std::filesystem::remove(folder() / file);
    open(kItems, {{u"1", u"ab c", u"7"}, {u"2", u"", u"123"}, {u"3", u" x", u""}}, 0);
    second = {};
    second.records = {"1 ab c  7", "2     123", "3  x     "};
    // The fixture cuts or pads as a cell is: a blank in front is part of it.
    REQUIRE(file("t.txt") == second.bytes());
  }
  void cursor(std::int32_t record, std::int16_t item) {
    run([=] {
      curRec = record;
      curItem = item;
      loadCache(curRec);
    });
  }
  // A menu command, its question answered with yes and a notice with Enter.
  void choose(const std::string& entry) {
    menu(entry);
    while (screen().activeForm() && screen().activeForm()->modal())
      press(screen().activeForm()->name() == u"frmCMSG" ? "Y" : "Enter");
  }
  void step(int what) {
    const auto count = static_cast<std::int32_t>(second.records.size());
    switch (what) {
      case 0:
        if (count < 2) return;
        range(1, 2, 0, 2);
        return second.copy(0, 1, 0, 2);
      case 1:
        if (count < 1) return;
        range(count, count, 1, 1);
        return second.copy(static_cast<std::size_t>(count) - 1, static_cast<std::size_t>(count) - 1, 1, 1);
      case 2:
        cursor(1, 1);
        choose("mnuPAST");
        return second.paste(0, 1);
      case 3:
        cursor(count + 1, 2);
        choose("mnuPAST");
        return second.paste(static_cast<std::size_t>(count), 2);
      case 4:
        if (second.clip.empty() || count < 1) return;
        cursor(1, 0);
        choose("mnuIPASTE");
        second.insert(0, second.clip.size());
        return second.paste(0, 0);
      case 5:
        choose("mnuDEPAST");
        return second.undo();
      case 6:
        cursor(count + 1, 0);
        run([] { insertRecords(1, docPath, docDrive); });
        return second.insert(static_cast<std::size_t>(count), 1);
      case 7:
        if (count < 1) return;
        run([] { deleteRecords(1, 1); });
        second.copy(0, 0, 0, 2);
        second.records.erase(second.records.begin());
        second.fits = false;
        return;
      default:
        if (count < 2) return;
        run([=] { moveRecords(1, 1, count + 1, docPath, docDrive); });
        second.fits = false;
        second.records.push_back(second.records.front());
        second.records.erase(second.records.begin());
    }
  }
  bool same() const { return file("t.txt") == second.bytes(); }

  static constexpr int kSteps = 9;
  SecondStore second;

 private:
  void range(std::int32_t r1, std::int32_t r2, std::int16_t i1, std::int16_t i2) {
    run([=] {
      rangeKind = 1;
      rangeRec1 = r1;
      rangeRec2 = r2;
      rangeItem1 = i1;
      rangeItem2 = i2;
      clipCopy();
    });
  }
};

}  // namespace

TEST_CASE_FIXTURE(PasteFixture,
                  "three steps of pastes, undos and rewrites in every order leave the table of a second store") {
  for (int code = 0; code < kSteps * kSteps * kSteps; ++code) {
    CAPTURE(code);
    start();
    for (int rest = code, i = 0; i < 3; ++i, rest /= kSteps) {
      step(rest % kSteps);
      REQUIRE(same());
    }
  }
}

TEST_CASE_FIXTURE(PasteFixture, "long runs of pastes, undos and rewrites leave the table of a second store") {
  std::mt19937 random(7);
  for (int round = 0; round < 40; ++round) {
    CAPTURE(round);
    start();
    for (int i = 0; i < 30; ++i) {
      // Kept small: a table that grows by every other step is slow to compare.
      const int what = second.records.size() > 12 ? 7 : static_cast<int>(random() % kSteps);
      step(what);
      REQUIRE(same());
    }
  }
}
