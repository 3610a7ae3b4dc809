#include "tablejobs/replace/cellrun.h"

#include <algorithm>
#include <numeric>

#include "editor/moves/moves.h"
#include "editor/ranges/range.h"
#include "parts/job/job.h"
#include "platform/text/number.h"
#include "platform/text/sjis.h"
#include "store/records/records.h"
#include "store/records/walk.h"
#include "store/table/cursor.h"
#include "voice/dialogs.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr int kWholeRecords = 2, kWholeItems = 3;  // of rangeKind

std::vector<int> itemsBetween(int first, int last) {
  std::vector<int> items(static_cast<std::size_t>(std::max(last - first + 1, 0)));
  std::iota(items.begin(), items.end(), first);
  return items;
}

// The cell without the blanks that fill it up; one that is justified to the right loses those behind it too, and is
// justified anew.
std::string_view filledPart(std::string_view cell, bool right) {
  const std::size_t last = cell.find_last_not_of(' ');
  if (last == std::string_view::npos) return {};
  cell = cell.substr(0, last + 1);
  return right ? cell.substr(cell.find_first_not_of(' ')) : cell;
}

class CellRunner {
 public:
  explicit CellRunner(const CellRun& run) : run_(run) {}

  CellRunResult go() {
    const CellScope& scope = run_.scope;
    Walk walk;
    walk.first = scope.first;
    walk.last = scope.last;
    walk.towardsHead = scope.backward;
    walk.work = run_.work;
    const WalkEnd end = changeRecords(walk, [this](ChangedRecord& record) { return visit(record); });
    result_.stopped = result_.stopped || end == WalkEnd::stopped;
    result_.failed = end == WalkEnd::failed;
    return result_;
  }

 private:
  bool visit(ChangedRecord& record) {
    const auto& items = run_.scope.items;
    if (!run_.scope.backward) return std::all_of(items.begin(), items.end(), [&](int i) { return cell(record, i); });
    return std::all_of(items.rbegin(), items.rend(), [&](int i) { return cell(record, i); });
  }

  // False ends the run.
  bool cell(ChangedRecord& record, int item) {
    const CellPlace& place = record.shape().at(item);
    const std::string old(filledPart(record.cellBytes(item), place.right));
    const auto becomes = run_.change(old);
    if (!becomes) return true;
    if (run_.question) {
      if (!record.store()) return false;
      const std::int16_t answer = ask(record.number(), item, old, *becomes);
      if (answer == kNo) return true;
      if (answer != kYes) {
        result_.stopped = true;
        return false;
      }
    }
    record.setCellBytes(item, *becomes);
    ++result_.changed;
    if (filledPart(*becomes, place.right).size() > place.length) ++result_.cut;
    return true;
  }

  std::int16_t ask(std::int32_t number, int item, std::string_view old, std::string_view becomes) {
    {
      const Silence silence;
      goTo(number, static_cast<std::int16_t>(item));
    }
    askYesNo(run_.question(number, item, trimmed(fromSjis(old)), trimmed(fromSjis(becomes))), run_.title);
    return msgAnswer;
  }

  const CellRun& run_;
  CellRunResult result_;
};

}  // namespace

std::vector<int> allItems() { return itemsBetween(0, itemCount); }

std::vector<int> currentItemOnly() { return {curItem}; }

CellScope scopeOf(std::int32_t first, std::int32_t last, std::vector<int> items, bool backward) {
  CellScope scope{first, last, std::move(items), backward};
  if (rangeKind == 0) return scope;
  const RangeBlock block = heldBlock();
  if (rangeKind != kWholeRecords) scope.items = itemsBetween(block.item1, block.item2);
  scope.first = rangeKind == kWholeItems ? 1 : block.rec1;
  scope.last = rangeKind == kWholeItems ? recCount() : block.rec2;
  return scope;
}

CellRunResult runOverCells(const CellRun& run) { return CellRunner(run).go(); }

bool endCellRun(const CellRunResult& result) {
  {
    const Silence silence;
    endJob(JobEnd::done, false, {});
  }
  if (!result.failed) return true;
  JobCounts counts;
  counts.done = result.changed;
  talkBehindDialog(countsSentence(JobEnd::failed, counts));
  return false;
}

void sayWhatWasCut(const CellRunResult& result) {
  if (result.cut > 0) talkBehindDialog(decimal(result.cut) + u"件わ、項目幅に切りました。");
}

}  // namespace zelko
