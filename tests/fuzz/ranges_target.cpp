// Any text as blocks of records and items: refused with a message, or a plan inside the table.
#include "fuzz/target.h"
#include "parts/ranges/rangetext.h"
#include "platform/text/sjis.h"
#include "store/records/records.h"
#include "store/rewrite/rewrite.h"
#include "store/store_fixture.h"
#include "tablejobs/blocks/blockplan.h"

namespace zelko::test {

namespace {

void checkRanges(std::string_view bytes) {
  static const StoreFixture store;
  static const bool opened = (store.table("t.txt", {4, 100, 120}, {"1", "2", "3"}), store.open("t.txt"));
  require(opened, "the table");
  const Text records = fromSjis(bytes.substr(0, bytes.find('\n')));
  const Text items = fromSjis(bytes.substr(std::min(bytes.size(), records.size() + 1)));
  for (const auto& [text, kind] : {std::pair{records, kRecordRange}, {items, kItemRange}}) {
    Text rest = text, message;
    checkRangeText(rest, message, kind);
    require(rest.empty(), "a text that is not used up");
    if (!message.empty() || text.empty()) return;
  }
  const auto plan = planBlocks({itemsOnDisk(), {}}, recCount(), records, items);
  if (!plan) return;
  for (const Stretch& stretch : plan->records.stretches)
    require(stretch.first >= 1 && stretch.count >= 1 && stretch.first + stretch.count <= recCount() + 1, "a stretch");
  for (const CellMove& cell : plan->records.cells)
    require(cell.from >= 0 && cell.to >= 0 && cell.from + cell.fromWidth <= kDataBytes &&
                cell.to + cell.toWidth <= kDataBytes,
            "a cell");
}

const bool added = addFuzzTarget({"ranges", {"-", "/", "1-3", "0", "\n", "99999999999", " ", "\x82\x50"}, checkRanges});

}  // namespace

}  // namespace zelko::test
