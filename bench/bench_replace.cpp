// Replacement through a file of codes against `cp` of the table: every cell is a key, every other one, or hardly one.
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

#include "bench_table.h"
#include "platform/text/sjis.h"
#include "store/table/cursor.h"
#include "tablejobs/replace/codereplace.h"

namespace {

using namespace zelko;
using namespace zelko::bench;

constexpr std::int32_t kRecords = 1000000;
constexpr int kKeys = 1000, kRounds = 3;
constexpr double kMost = 2;

double secondsOfCopy(const std::string& from, const std::string& to) {
  const double start = wallSeconds();
  const pid_t child = fork();
  if (child == 0) {
    execlp("cp", "cp", from.c_str(), to.c_str(), nullptr);
    _exit(127);
  }
  int status = 0;
  waitpid(child, &status, 0);
  if (status != 0) std::exit(1);
  return wallSeconds() - start;
}

std::string keyOf(int number) { return "Key " + std::to_string(number) + "\xB1"; }

// A record whose name is one of `variety` keys; those from kKeys on are in no file of codes.
std::string recordOf(std::int32_t number, int variety) {
  std::string cells = std::to_string(number);
  cells.resize(10, ' ');
  cells += keyOf(static_cast<int>(number * 7919LL % variety));
  cells.resize(254, ' ');
  return cells + "\r\n";
}

CodeTable codes() {
  CodeTable table(false);
  for (int key = 0; key < kKeys; ++key) table.add(fromSjis(keyOf(key)), fromSjis("\x93\x8C\x8B\x9E" + keyOf(key)));
  return table;
}

// The best of some rounds, ours and the copy in turn, each round on the table as it was.
bool isFast(const char* name, const std::string& table, int variety, std::int64_t changed) {
  {
    std::ofstream data(table, std::ios::binary);
    for (std::int32_t number = 1; number <= kRecords; ++number) data << recordOf(number, variety);
  }
  const std::string copy = table + ".copy";
  double best = 1e9, others = 1e9;
  for (int round = 0; round < kRounds; ++round) {
    unlink(copy.c_str());
    others = std::min(others, secondsOfCopy(table, copy));
    openOrEnd(table);
    curItem = 1;
    const CodeTable keys = codes();
    const double start = wallSeconds();
    const CodesReplaced done = replaceByCodes(keys);
    best = std::min(best, wallSeconds() - start);
    if (done.run.changed != changed || done.unknown != kRecords - changed) {
      std::fprintf(stderr, "%s: %lld changed\n", name, static_cast<long long>(done.run.changed));
      std::exit(1);
    }
    if (rename(copy.c_str(), table.c_str()) != 0) std::exit(1);
  }
  std::printf("%s: %.0f ms against %.0f ms, ratio %.2f (at most %.1f)\n", name, best * 1e3, others * 1e3, best / others,
              kMost);
  return best / others <= kMost;
}

}  // namespace

int main() {
  const Folder folder;
  const std::string table = folder.table("codes.txt", 1).string();
  useSilentHost();
  const bool all = isFast("every cell is a key", table, kKeys, kRecords);
  const bool half = isFast("every other cell is a key", table, 2 * kKeys, kRecords / 2);
  const bool rare = isFast("a thousand cells are keys", table, kRecords, kKeys);
  return all && half && rare ? 0 : 1;
}
