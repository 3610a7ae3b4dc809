// A step down as the store sees it, with the largest cache: the row stored, the cache reloaded, one cell cut; against
// reading as many records one by one.
#include <cstdio>

#include "bench_table.h"
#include "platform/files/files.h"
#include "store/records/records.h"
#include "store/table/cursor.h"

namespace {

using namespace zelko;
using namespace zelko::bench;

constexpr std::int32_t kSteps = 20000;

double microsecondsAStep(void (*step)(std::int32_t)) {
  const double start = cpuSeconds();
  for (std::int32_t number = 1; number <= kSteps; ++number) step(number);
  return (cpuSeconds() - start) * 1e6 / kSteps;
}

void stepDown(std::int32_t number) {
  setCell(currentRow(), 2, u"12");
  flushRec();
  curRec = number + 1;
  loadCache(curRec);
  takeRow(curRec);
  cellOfCur(1);
}

// Backwards, so that no read window helps.
void singleReads(std::int32_t number) {
  CacheRow row;
  for (std::int32_t i = 0; i < cacheSize; ++i) getRec(1, number + cacheSize - i, row);
}

}  // namespace

int main() {
  const Folder folder;
  useSilentHost();
  openOrEnd(folder.table("step.txt", kSteps + kMaxCacheSize));
  for (const std::int16_t size : {std::int16_t{20}, std::int16_t{kMaxCacheSize}}) {
    cacheSize = size;
    curRec = 1;
    loadCache(curRec);
    const double step = microsecondsAStep(stepDown), reads = microsecondsAStep(singleReads);
    std::printf("step down, cache of %d: %.1f us, single reads: %.1f us, ratio %.2f\n", size, step, reads,
                step / reads);
  }
}
