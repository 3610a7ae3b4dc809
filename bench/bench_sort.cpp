// Sorts, block extraction and CSV with a progress dialog, against `cp` of the same table followed by `sync` of the
// copy.
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <string>

#include "bench_table.h"
#include "files/csv/csvexport.h"
#include "files/csv/csvimport.h"
#include "platform/files/blockfiles.h"
#include "platform/files/ownedfile.h"
#include "store/records/appender.h"
#include "store/records/records.h"
#include "store/rewrite/rewrite.h"
#include "store/table/itemfile.h"
#include "tablejobs/blocks/blockplan.h"
#include "tablejobs/sort/otherfilesort.h"
#include "tablejobs/sort/sorting.h"
#include "voice/progress.h"

namespace {

using namespace zelko;
using namespace zelko::bench;

constexpr int kRounds = 3;
constexpr double kLongestStop = 0.05;
constexpr long kMostKilobytes = 40 * 1024;

double longest = 0, lastLook = 0;
bool look() {
  const double now = wallSeconds();
  if (lastLook > 0) longest = std::max(longest, now - lastLook);
  lastLook = now;
  return true;
}

void run(const char* program, const std::string& first, const char* second) {
  const pid_t child = fork();
  if (child == 0) {
    execlp(program, program, first.c_str(), second, nullptr);
    _exit(127);
  }
  int status = 0;
  waitpid(child, &status, 0);
  if (status != 0) std::exit(1);
}

double copySeconds(const std::string& table) {
  const std::string copy = table + ".copy";
  sync();
  const double start = wallSeconds();
  run("cp", table, copy.c_str());
  run("sync", copy, nullptr);
  const double seconds = wallSeconds() - start;
  unlink(copy.c_str());
  return seconds;
}

bool good = true;

void measure(const char* name, const std::string& table, double most, const std::function<bool()>& job) {
  double copy = 1e9, work = 1e9;
  for (int round = 0; round < kRounds; ++round) {
    copy = std::min(copy, copySeconds(table));
    sync();
    const double start = wallSeconds();
    lastLook = 0;
    if (!job()) std::exit((std::fprintf(stderr, "%s failed\n", name), 1));
    work = std::min(work, wallSeconds() - start);
  }
  std::printf("%s: %.0f ms, cp and sync: %.0f ms, ratio %.1f", name, work * 1e3, copy * 1e3, work / copy);
  std::printf(most > 0 ? " (at most %.1f)\n" : "\n", most);
  good = good && (most <= 0 || work / copy <= most);
}

// Two distinct keys in item 3, the rest of the record as it was.
void makeTwoKeys(const std::string& table) {
  std::fstream data(table, std::ios::in | std::ios::out | std::ios::binary);
  for (int number = 0; number < 32000; ++number) {
    data.seekp(number * 256 + 54);
    data.put(number * 7919 % 2 ? 'a' : 'b');
  }
}

bool takeBlocks(const std::string& folder) {
  const auto plan = planBlocks({itemsOnDisk(), {}}, recCount(), u"", u"1/0/2");
  RecordAppender output;
  if (output.create(fromUtf8(folder + "/blocks.txt")) != FileError::none) return false;
  const auto read = [](std::int64_t first, std::size_t count, char* out) {
    std::size_t got = 0;
    return readBlock(1, first * recLen, out, count * recLen, got) == FileError::none;
  };
  const auto write = [&](std::string_view records) {
    for (std::size_t at = 0; at < records.size(); at += recLen) output.append(records.substr(at, recLen));
    return true;
  };
  const auto end = rewriteRecords(plan->records, read, write, [](std::int64_t) { return look(); });
  return end == RewriteEnd::done && output.finish();  // and taken back
}

bool orderBy(const std::string& table, std::int32_t count) {
  Text error;
  readKFileOther(fromUtf8(table), {}, error);
  OwnedFile file;
  if (file.openToRead(fromUtf8(table), recLen) != FileError::none) return false;
  Progress progress(u"", 0);
  OtherOrder counts;
  return sortAsListed({file.number(), 0, 0, {1, count}, true}, progress, counts) == JobEnd::done &&
         counts.found == count;
}

}  // namespace

int main() {
  const Folder folder;
  useSilentHost();
  const std::string small = folder.table("small.txt", 32000).string(), place = small.substr(0, small.rfind('/'));
  openOrEnd(small);
  bool up = false;
  measure("sort of 32,000 records", small, 20, [&] {
    return sortInPlace(1, 32000, {{1, up = !up}}, look) == JobEnd::done;
  });
  measure("by three keys", small, 40, [&] {
    up = !up;
    return makeSafetyCopy(look) == JobEnd::done &&
           sortInPlace(1, 32000, {{1, up}, {2, !up}, {0, up}}, look) == JobEnd::done;
  });
  makeTwoKeys(small);
  openOrEnd(small);
  measure("with two distinct keys", small, 20, [&] {
    return sortInPlace(1, 32000, {{3, up = !up}}, look) == JobEnd::done;
  });
  for (const std::int32_t count : {250000, 1000000}) {
    const std::string table = folder.table("order.txt", count).string(),
                      listed = folder.table("listed.txt", count).string();
    openOrEnd(table);
    measure(count < 1000000 ? "order of 250,000 records" : "order of 1,000,000 records", table, 0,
            [&] { return orderBy(listed, count); });
    unlink(listed.c_str());
  }
  const std::string large = place + "/order.txt", csv = place + "/order.csv";
  measure("block extraction of three items", large, 1.5, [&] { return takeBlocks(place); });
  measure("CSV out", large, 5,
          [&] { return exportCsv(fromUtf8(csv), false, [](std::int32_t) { return look(); }) == JobEnd::done; });
  openOrEnd(folder.table("in.txt", 0));
  const std::string in = place + "/in.txt";
  measure("CSV in", large, 6.5, [&] {
    cutFile(fromUtf8(in), 0);
    return importCsv({fromUtf8(csv), true, false}, [](std::int64_t) { return look(); }).records == 1000000;
  });
  rusage used{};
  getrusage(RUSAGE_SELF, &used);
  std::printf("longest time without a chance to stop: %.1f ms (at most 50)\n", longest * 1e3);
  std::printf("memory: %ld KB (at most %ld)\n", used.ru_maxrss, kMostKilobytes);
  return good && longest <= kLongestStop && used.ru_maxrss <= kMostKilobytes ? 0 : 1;
}
