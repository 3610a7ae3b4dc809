// Opening a table of a million records against one of a thousand: time and memory.
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "bench_table.h"

namespace {

using namespace zelko::bench;

constexpr int kRounds = 400;

double openSeconds(const std::filesystem::path& table) {
  const double start = wallSeconds();
  openOrEnd(table);
  return wallSeconds() - start;
}

double median(std::vector<double> times) {
  std::nth_element(times.begin(), times.begin() + kRounds / 2, times.end());
  return times[kRounds / 2];
}

// The highest memory of a process that opens the table and does nothing else, in KB.
long peakOfOpening(const std::filesystem::path& table) {
  const pid_t child = fork();
  if (child == 0) {
    openOrEnd(table);
    _exit(0);
  }
  int status = 0;
  rusage usage{};
  wait4(child, &status, 0, &usage);
  if (status != 0) std::exit(1);
  return usage.ru_maxrss;
}

}  // namespace

int main() {
  const Folder folder;
  const auto small = folder.table("small.txt", 1000), large = folder.table("large.txt", 1000000);
  useSilentHost();
  const long extra = peakOfOpening(large) - peakOfOpening(small);
  std::vector<double> smallTimes, largeTimes;
  for (int round = 0; round < kRounds; ++round) {
    smallTimes.push_back(openSeconds(small));
    largeTimes.push_back(openSeconds(large));
  }
  const double ratio = median(largeTimes) / median(smallTimes);
  std::printf(
      "opening 1,000,000 records: %.0f us, 1,000: %.0f us, ratio %.2f (at most 1.2), %ld KB more (at most 1024)\n",
      median(largeTimes) * 1e6, median(smallTimes) * 1e6, ratio, extra);
  return ratio <= 1.2 && extra <= 1024 ? 0 : 1;
}
