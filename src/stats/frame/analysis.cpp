#include "stats/frame/analysis.h"

#include "parts/ask/typed.h"
#include "parts/job/job.h"
#include "platform/host.h"
#include "platform/text/number.h"
#include "platform/text/numcheck.h"
#include "store/records/records.h"
#include "store/table/cursor.h"
#include "store/table/notice.h"
#include "voice/dialogs.h"

namespace zelko {

Text analysisMode;
std::int32_t firstRecord = 1, lastRecord = 0;

namespace {

constexpr int kWholeRecords = 2;  // of rangeKind

bool narrows(RangeTest test) {
  switch (test) {
    case RangeTest::bothEnds:
      return rangeRec1 != 0 && rangeRec2 != 0;
    case RangeTest::start:
      return rangeRec1 != 0;
    case RangeTest::wholeRecords:
      break;
  }
  return rangeKind == kWholeRecords;
}

}  // namespace

void takeAnalysisRange(RangeTest test) {
  firstRecord = 1;
  lastRecord = recCount();
  if (rangeKind == 0 || !narrows(test)) return;
  firstRecord = std::max(std::min(rangeRec1, rangeRec2), 1);
  lastRecord = std::min(std::max(rangeRec1, rangeRec2), lastRecord);
}

AnalysedCell checkedCell(const WalkedRecord& record, int item) {
  const Text text = record.trimmedCell(item);
  AnalysedCell cell{numCheck(text), 0};
  if (cell.isNumber()) cell.value = val(text);
  return cell;
}

double leadingNumber(const WalkedRecord& record, int item) { return typedVal(record.trimmedCell(item)).value_or(0); }

bool readAnalysisRecords(TextView work, const std::function<bool(const WalkedRecord&)>& look) {
  Walk walk;
  walk.first = firstRecord;
  walk.last = lastRecord;
  walk.work = work;
  switch (walkRecords(walk, look)) {
    case WalkEnd::done:
    case WalkEnd::left:
      return true;
    case WalkEnd::stopped:
      analysisMode = u"BREAK";
      return false;
    case WalkEnd::failed:
      break;
  }
  tellReadError();
  return false;
}

bool beginAnalysis(RangeTest test) {
  if (!beginJob(false, true)) return false;
  takeAnalysisRange(test);
  if (firstRecord <= lastRecord) return true;
  host().beep();
  showOK(u"現在編集中のﾌｧｲﾙは全く未記入です", u"確認");
  return false;
}

}  // namespace zelko
