// What a record costs: read, changed and appended, by the walk and the appender and one by one through getRec and
// putRec; the reading walk against `cat TABLE > /dev/null`.
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>

#include "bench_table.h"
#include "platform/host.h"
#include "platform/text/number.h"
#include "store/records/appender.h"
#include "store/records/records.h"
#include "store/records/walk.h"
#include "store/table/itemfile.h"

namespace {

using namespace zelko;
using namespace zelko::bench;

constexpr std::int32_t kRecords = 1000000, kSingles = 100000;
constexpr int kRounds = 5;

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

void need(bool good) {
  if (!good) std::exit(1);
}

void readSingly() {
  CacheRow row;
  for (std::int32_t number = 1; number <= kRecords; ++number) {
    need(getRec(1, number, row) && row.back() == '\n');
    host().letEventsThrough();
  }
}

void readByWalk() {
  std::int32_t lineEnds = 0;
  walkRecords({.last = kRecords}, [&](const WalkedRecord& record) {
    lineEnds += record.bytes().back() == '\n';
    return true;
  });
  need(lineEnds == kRecords);
}

Text points(std::int32_t number) {
  static int round = 0;
  round += number == 1;
  return decimal((number + round) % 1000);
}

void changeSingly() {
  CacheRow row;
  for (std::int32_t number = 1; number <= kSingles; ++number) {
    need(getRec(1, number, row));
    setCell(row, 2, points(number));
    need(putRec(1, number, {row.data(), row.size()}));
    host().letEventsThrough();
  }
}

void changeByWalk() {
  need(changeRecords({.last = kRecords}, [](ChangedRecord& record) {
         record.setCell(2, points(record.number()));
         return true;
       }) == WalkEnd::done);
}

void appendSingly() {
  OwnedFile output;
  need(output.openRandom(besideTable(u"one.txt"), recLen) == FileError::none);
  CacheRow row;
  for (std::int32_t number = 1; number <= kSingles; ++number)
    need(getRec(1, number, row) && putRec(output.number(), number, {row.data(), row.size()}));
  output.close();
  deleteFile(besideTable(u"one.txt"));
}

// Without the wait for the disk, which both ways have at their end.
void appendByWalk() {
  RecordAppender output;
  need(output.create(besideTable(u"two.txt")) == FileError::none);
  need(walkRecords({.last = kRecords}, [&](const WalkedRecord& record) { return output.append(record.bytes()); }) ==
       WalkEnd::done);
}

double best(const std::function<void()>& job) {
  double seconds = 1e9;
  for (int round = 0; round < kRounds; ++round) {
    const double start = wallSeconds();
    job();
    seconds = std::min(seconds, wallSeconds() - start);
  }
  return seconds;
}

void compare(const char* what, double singly, std::int32_t singles, const std::function<void()>& walk) {
  const double one = singly / singles * 1e9, block = best(walk) / kRecords * 1e9;
  std::printf("%s: %.0f ns a record, one by one %.0f ns\n", what, block, one);
}

}  // namespace

int main() {
  const Folder folder;
  const auto table = folder.table("walk.txt", kRecords);
  useSilentHost();
  openOrEnd(table);
  compare("read", best(readSingly), kRecords, readByWalk);
  compare("changed", best(changeSingly), kSingles, changeByWalk);
  compare("appended", best(appendSingly), kSingles, appendByWalk);
  const double cat = best([&] { catSeconds(table.c_str()); }), walk = best(readByWalk);
  std::printf("walk of %d records: %.1f ms, cat: %.1f ms, ratio %.2f (at most 5)\n", kRecords, walk * 1e3, cat * 1e3,
              walk / cat);
  return walk / cat <= 5 ? 0 : 1;
}
