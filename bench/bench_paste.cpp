// Pasting 10,000 records of 10 items over a table, with its backup, against `cp` of the table followed by `sync` of the
// copy.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

#include "bench_table.h"
#include "editor/clip/clip.h"
#include "editor/registereditor.h"
#include "editor/show/view.h"
#include "platform/files/files.h"
#include "store/table/cursor.h"
#include "voice/talk.h"

namespace {

using namespace zelko;
using namespace zelko::bench;

constexpr int kRecords = 10000, kItems = 10;
constexpr int kRounds = 5;
constexpr double kMost = 0.5;  // seconds

// The items that the benchmark's table lacks are told to it by an item file of its own.
void writeTenItems(const std::filesystem::path& table) {
  std::ofstream items(table.parent_path() / ("K" + table.filename().string()), std::ios::binary);
  items << "100  ',bench,,9\r\n";
  for (int item = 0; item < kItems; ++item) items << 1000 + item << " 'I" << item << ",L\r\n";
  for (int item = 0; item < kItems; ++item) items << 2000 + item << " '20\r\n";
}

void copyEverything() {
  rangeKind = 2;
  rangeRec1 = 1;
  rangeRec2 = kRecords;
  rangeItem1 = 0;
  rangeItem2 = kItems - 1;
  if (!clipCopy()) std::exit(1);
}

double secondsOf(void (*job)()) {
  const double start = wallSeconds();
  job();
  return wallSeconds() - start;
}

}  // namespace

int main() {
  const Folder folder;
  const auto table = folder.table("paste.txt", kRecords);
  writeTenItems(table);
  useSilentHost();
  appDir = fromUtf8(table.parent_path().string()) + u"/";
  registerEditor();
  if (!openAndEnter(fromUtf8(table.string()))) return 1;
  copyEverything();
  const std::string copy = "cp '" + table.string() + "' '" + table.string() + ".2' && sync '" + table.string() + ".2'";
  double paste = 1e9, cp = 1e9;
  for (int round = 0; round < kRounds; ++round) {
    paste = std::min(paste, secondsOf(pasteOver));
    const double start = wallSeconds();
    if (std::system(copy.c_str()) != 0) return 1;
    cp = std::min(cp, wallSeconds() - start);
  }
  std::printf(
      "paste of %d records of %d items: %.0f ms (at most %.0f), cp and sync of the table: %.0f ms, ratio %.1f\n",
      kRecords, kItems, paste * 1e3, kMost * 1e3, cp * 1e3, paste / cp);
  return paste < kMost ? 0 : 1;
}
