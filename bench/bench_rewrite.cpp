// Rewrites of a large table with their dialog, against `cp` of its data file followed by `sync` of the copy.
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>

#include "bench_table.h"
#include "editor/rewrites/rewrites.h"
#include "editor/show/view.h"
#include "store/records/records.h"
#include "store/rewrite/rewrite.h"
#include "store/table/cursor.h"
#include "store/table/itemfile.h"
#include "voice/talk.h"

namespace {

using namespace zelko;
using namespace zelko::bench;

constexpr std::int32_t kRecords = 1000000;
constexpr int kRounds = 5;
constexpr double kMostCpu = 2, kMostElapsed = 1.5, kLongestStop = 0.05;
constexpr long kMostKilobytes = 40 * 1024;

struct Cost {
  double elapsed = 1e9, cpu = 1e9;
  void take(const Cost& other) {
    elapsed = std::min(elapsed, other.elapsed);
    cpu = std::min(cpu, other.cpu);
  }
};

double seconds(const timeval& time) {
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
}

double childCpu(const char* program, const char* first, const char* second) {
  const pid_t child = fork();
  if (child == 0) {
    execlp(program, program, first, second, nullptr);
    _exit(127);
  }
  int status = 0;
  rusage used{};
  wait4(child, &status, 0, &used);
  if (status != 0) std::exit(1);
  return seconds(used.ru_utime) + seconds(used.ru_stime);
}

// Both begin with nothing of earlier rounds on its way to the disk.
Cost copyCost(const std::string& table) {
  const std::string copy = table + ".copy";
  sync();
  const double start = wallSeconds();
  Cost cost;
  cost.cpu = childCpu("cp", table.c_str(), copy.c_str()) + childCpu("sync", copy.c_str(), nullptr);
  cost.elapsed = wallSeconds() - start;
  unlink(copy.c_str());
  return cost;
}

Cost costOf(const std::function<bool()>& job) {
  sync();
  const double start = wallSeconds(), cpu = cpuSeconds();
  if (!job()) {
    std::fprintf(stderr, "a rewrite failed\n");
    std::exit(1);
  }
  return {wallSeconds() - start, cpuSeconds() - cpu};
}

bool widenThird() {
  ++itemWidth[2];
  --itemWidth[4];
  return applyWidth();
}

struct Job {
  const char* name;
  std::function<bool()> run;
  std::function<bool()> undo = {};  // not measured
};

// The longest time between two chances to stop.
double longestPause() {
  double last = wallSeconds(), longest = 0;
  const auto look = [&](std::int64_t) {
    const double now = wallSeconds();
    longest = std::max(longest, now - last);
    last = now;
    return true;
  };
  const std::vector<ItemLine> items = itemsOnDisk();
  const RewritePlan plan{{{1, recCount()}}, {realigned(items, 1, u"R")}};
  if (rewriteTable(plan, nullptr, look) != RewriteEnd::done) std::exit(1);
  return longest;
}

}  // namespace

int main() {
  const Folder folder;
  const std::string table = folder.table("rewrite.txt", kRecords).string();
  useSilentHost();
  appDir = fromUtf8(table.substr(0, table.rfind('/') + 1));
  openOrEnd(table);
  enterEditor();
  const auto insertAtFront = [] {
    curRec = 1;
    loadCache(curRec);
    return insertRecords(1000, docPath, docDrive);
  };
  const Job jobs[] = {
      {"insert at the front", insertAtFront},
      {"delete of a middle block", [] { return deleteRecords(500001, 501000); }},
      {"move of a block", [] { return moveRecords(100001, 200000, 800001, docPath, docDrive); }},
      {"width change", widenThird},
      {"deletion of an item", [] { return deleteItems(3, 3); }, [] { return insertItems(3, 3); }},
  };
  bool good = true;
  for (const Job& job : jobs) {
    Cost copy, work;
    for (int round = 0; round < kRounds; ++round) {
      copy.take(copyCost(table));
      work.take(costOf(job.run));
      if (job.undo && !job.undo()) return 1;
    }
    const double cpu = work.cpu / copy.cpu, elapsed = work.elapsed / copy.elapsed;
    std::printf(
        "%s: %.0f ms, cp and sync: %.0f ms, ratio %.2f (at most %.1f), CPU %.0f against %.0f ms, ratio %.2f (at most "
        "%.0f)\n",
        job.name, work.elapsed * 1e3, copy.elapsed * 1e3, elapsed, kMostElapsed, work.cpu * 1e3, copy.cpu * 1e3, cpu,
        kMostCpu);
    good = good && cpu <= kMostCpu && elapsed <= kMostElapsed;
  }
  const double pause = longestPause();
  rusage used{};
  getrusage(RUSAGE_SELF, &used);
  std::printf("longest time without a chance to stop: %.1f ms (at most 50)\n", pause * 1e3);
  std::printf("memory: %ld KB (at most %ld)\n", used.ru_maxrss, kMostKilobytes);
  return good && pause <= kLongestStop && used.ru_maxrss <= kMostKilobytes ? 0 : 1;
}
