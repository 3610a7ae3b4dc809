#include "parts/job/job.h"

#include <doctest/doctest.h>

#include "fixture.h"
#include "store/table/table.h"
#include "voice/talk.h"

using namespace zelko;

TEST_CASE("the end of a job tells what was done, left and cut") {
  JobCounts counts{12, 3, 1};
  CHECK(countsSentence(JobEnd::done, counts) == u"終了しました。12件処理、3件そのまま、1件は項目幅に切りました。");
  CHECK(countsSentence(JobEnd::stopped, {5, 0, 0}) == u"中止しました。ここまでに、5件処理。");
}
