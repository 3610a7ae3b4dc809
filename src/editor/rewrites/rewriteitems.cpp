// Rewrites that change which items there are, or their order.
#include <algorithm>
#include <numeric>

#include "editor/main/state.h"
#include "editor/moves/moves.h"
#include "editor/rewrites/rewriterun.h"
#include "editor/rewrites/rewrites.h"
#include "editor/show/spitem.h"
#include "platform/host.h"
#include "store/table/cursor.h"
#include "voice/talk.h"

namespace zelko {
namespace {

constexpr TextView kAtWork = u"作業中";

bool refuse() {
  host().beep();
  reloadCur();
  return false;
}

// The marks of the entry items and the always-displayed item stay with their items.
void followItems(const ItemOrder& order) {
  std::array<std::int16_t, kMaxItems> marks{};
  for (std::size_t i = 0; i < order.size(); ++i)
    marks[i] = order[i] < 0 ? std::int16_t{0} : entryItem[static_cast<std::size_t>(order[i])];
  entryItem = marks;
  if (std::ranges::find(entryItem, 1) == entryItem.end()) allItemsOn = 1;
  if (spItem == kNoItem) return;
  const auto place = std::ranges::find(order, static_cast<int>(spItem));
  if (place == order.end()) return unload<frmSPITEM>();
  spItem = static_cast<std::uint16_t>(place - order.begin());
  refreshSpItem();
}

bool rewriteItems(const ItemOrder& order) {
  const std::vector<ItemLine> old = itemsOnDisk(), items = itemsInOrder(old, order);
  const RewritePlan plan{allRecords(), cellMoves(old, items, order), false};
  return runRewrite({kAtWork, plan, &items, [&order] { followItems(order); }});
}

int bytesOf(const std::vector<ItemLine>& items) {
  return std::accumulate(items.begin(), items.end(), 0, [](int sum, const ItemLine& item) { return sum + item.width; });
}

}  // namespace

bool insertItems(std::int16_t first, std::int16_t last) {
  if (first > last) std::swap(first, last);
  const int inserted = last - first + 1;
  const bool inside = first >= 0 && first <= itemCount + 1;
  if (!inside || itemCount + inserted > kHighestItem || bytesOf(itemsOnDisk()) + inserted > kDataBytes) return refuse();
  return rewriteItems(orderWithInserted(itemCount + 1, first, inserted));
}

bool deleteItems(std::int16_t first, std::int16_t last) {
  if (first > last) std::swap(first, last);
  if (first < 1 || last > itemCount) return refuse();
  return rewriteItems(orderWithDeleted(itemCount + 1, first, last));
}

bool moveItems(std::int16_t first, std::int16_t last, std::int16_t destination) {
  if (first > last) std::swap(first, last);
  const bool inside = first >= 0 && last <= itemCount && destination >= 0 && destination <= itemCount + 1;
  if (!inside || (destination >= first && destination <= last)) return refuse();
  mode = u"work";
  const bool done = rewriteItems(orderWithMoved(itemCount + 1, first, last, destination));
  if (done) talkNow(u"項目移動完了。");
  return done;
}

}  // namespace zelko
