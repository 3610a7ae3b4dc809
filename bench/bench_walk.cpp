// Walking a table through getRec, events let through at each record, against `cat TABLE > /dev/null`.
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "bench_table.h"
#include "platform/host.h"
#include "store/records/records.h"

namespace {

using namespace zelko;
using namespace zelko::bench;

constexpr std::int32_t kRecords = 1000000;
constexpr int kRounds = 7;

double catSeconds(const char* table) {
  const double start = wallSeconds();
  const pid_t child = fork();
  if (child == 0) {
    dup2(open("/dev/null", O_WRONLY), STDOUT_FILENO);
    execlp("cat", "cat", table, nullptr);
    _exit(127);
  }
  int status = 0;
  waitpid(child, &status, 0);
  if (status != 0) std::exit(1);
  return wallSeconds() - start;
}

double walkSeconds() {
  const double start = wallSeconds();
  CacheRow row;
  long lineEnds = 0;
  for (std::int32_t number = 1; number <= kRecords; ++number) {
    if (getRec(1, number, row)) lineEnds += row.back() == '\n';
    host().letEventsThrough();
  }
  if (lineEnds != kRecords) std::exit(1);
  return wallSeconds() - start;
}

}  // namespace

int main() {
  const Folder folder;
  const auto table = folder.table("walk.txt", kRecords);
  useSilentHost();
  openOrEnd(table);
  double cat = 1e9, walk = 1e9;
  for (int round = 0; round < kRounds; ++round) {
    cat = std::min(cat, catSeconds(table.c_str()));
    walk = std::min(walk, walkSeconds());
  }
  std::printf("walk of %d records: %.1f ms, cat: %.1f ms, ratio %.2f (at most 5)\n", kRecords, walk * 1e3, cat * 1e3,
              walk / cat);
  return walk / cat <= 5 ? 0 : 1;
}
