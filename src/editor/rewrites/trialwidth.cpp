#include "editor/rewrites/trialwidth.h"

#include <algorithm>

#include "editor/main/form1.h"
#include "editor/rewrites/rewriterun.h"
#include "editor/rewrites/rewrites.h"
#include "editor/rewrites/widthform.h"
#include "editor/show/sheet.h"
#include "editor/show/showcell.h"
#include "platform/host.h"
#include "platform/text/number.h"
#include "store/records/records.h"
#include "store/table/cursor.h"
#include "voice/talk.h"

namespace zelko {
namespace {

constexpr Colour kWidthMask = 0xFFFF80;
constexpr char kNewByte = '/';

int bytesInUse() {
  return itemStart[static_cast<std::size_t>(itemCount)] + itemWidth[static_cast<std::size_t>(itemCount)] - 1;
}

std::vector<ItemLine> itemsAsChosen() {
  std::vector<ItemLine> items = itemsOnDisk();
  for (std::size_t i = 0; i < items.size(); ++i) items[i].width = itemWidth[i];
  return items;
}

std::vector<CellMove> movesAsChosen() {
  return cellMoves(itemsOnDisk(), itemsAsChosen(), orderWithInserted(itemCount + 1, 0, 0));
}

void layRow(CacheRow& row, const std::vector<CellMove>& cells) {
  const CacheRow old = row;
  setRow(row, blankRec);
  layCells(cells, old.data(), row.data(), kNewByte);
}

void step(std::int16_t item, int by) {
  const auto i = static_cast<std::size_t>(item);
  const bool fits = by < 0 ? itemWidth[i] > 1 : bytesInUse() < recLen;
  if (item < 0 || item > itemCount || !fits) return host().beep();
  auto widths = itemWidth;
  widths[i] = static_cast<std::int16_t>(widths[i] + by);
  previewWidths(widths);
  sayWidth(item);
}

}  // namespace

void previewWidths(const std::array<std::int16_t, kMaxItems>& widths) {
  itemWidth = widths;
  computeItemStart();
  loadCache(curRec);
  const std::vector<CellMove> cells = movesAsChosen();
  const std::int32_t records = recCount();
  for (std::int32_t i = 0; i < cacheSize && cacheBase + i <= records; ++i)
    layRow(recCache[static_cast<std::size_t>(i + 2)], cells);
  rangeMask(1, std::max(records, 1), curItem, curItem, kWidthMask);
  repaintView();
  mainForm().showItem(curItem);
  if (auto* width = loadedForm<frmFLN>()) width->showRuler();
}

void sayWidth(std::int16_t item) {
  Text sentence = u"Width" + decimal(itemWidth[static_cast<std::size_t>(item)]);
  if (bytesInUse() > kDataBytes)
    sentence += u"。254バイトを超えた、最後の" + decimal(bytesInUse() - kDataBytes) + u"バイトは保存されません。";
  talkNow(sentence);
}

void widenItem(std::int16_t item) { step(item, 1); }

void narrowItem(std::int16_t item) { step(item, -1); }

bool applyWidth() {
  const std::vector<ItemLine> items = itemsAsChosen();
  RewriteJob job{u"データ書き換え中  中止不可", {allRecords(), movesAsChosen(), false}, &items};
  job.canStop = false;
  // Up to the swap everything goes by the widths that the file has.
  itemWidth = itemWidthLoaded;
  computeItemStart();
  const bool done = runRewrite(job);
  if (done) talkNow(u"書き換え終了");
  return done;
}

}  // namespace zelko
