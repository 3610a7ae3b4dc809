#include "editor/show/sheet.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include "editor/main/form1.h"
#include "editor/moves/commit.h"
#include "editor/moves/moves.h"
#include "platform/text/number.h"
#include "store/records/records.h"
#include "store/table/cursor.h"
#include "voice/narration.h"
#include "voice/talk.h"

namespace zelko {
namespace {

constexpr Colour kTypingLine = 0xC0FFFF;

struct Block {
  std::int32_t rec1, rec2;
  std::int16_t item1, item2;
  Colour colour;
};
std::optional<Block> rangeBlock, targetBlock;

int gridRow(std::int32_t record) { return record - cacheBase + 1; }

// The part of a block that the sheet shows.
std::optional<Grid::Mask> visiblePart(const Block& block) {
  auto [first, last] = std::minmax(block.rec1, block.rec2);
  auto [left, right] = std::minmax(block.item1, block.item2);
  std::int64_t row1 = std::max<std::int64_t>(std::int64_t{first} - cacheBase + 1, 1);
  std::int64_t row2 = std::min<std::int64_t>(std::int64_t{last} - cacheBase + 1, cacheSize);
  if (row1 > row2) return {};
  return Grid::Mask{static_cast<int>(row1), static_cast<int>(row2), left + 1, std::min(right, itemCount) + 1,
                    block.colour};
}

void repaintSheet() {
  if (auto* sheet = loadedForm<frmSHEET>()) sheet->repaint();
}

}  // namespace

frmSHEET::frmSHEET() : Form(kName, u"") {
  Label1.setBackColour(kTypingLine);
  Grid1.place = Place::newRow;
  Grid1.provider = [this](int row, int col) { return cellAtGrid(row, col); };
  Grid1.onRowColChange = [this] { Grid1_RowColChange(); };
  Grid1.onDblClick = [this] { openMarkedCell(); };
  Grid1.onKeyPress = [this](CharEvent& event) {
    if (event.ch == key::Enter) openMarkedCell();
    if (event.ch == key::Esc) mainForm().activate();
    if (event.ch == key::Enter || event.ch == key::Esc) event.ch = 0;
  };
  Narration(*this)
      .explain(
          u"。ﾃﾞｰﾀの一覧表です。データ入力テキストボックスに　記入しているときの、前後の　記録が　表示されます。"
          u"矢印キーで　セルを移動すると　セルの内容が　読み上げられます。リターンキーで、そのセルに、かきこみセルが、"
          u"移動します。escキーで　データ入力に戻ります。")
      .say(Grid1, [this] { return markedCell() + markPause + u"一覧表"; });
  showHead();
  repaint();
}

void frmSHEET::showHead() { setCaption(u"全項目(0～" + decimal(itemCount) + u")記録" + decimal(recCount())); }

void frmSHEET::repaint() {
  painting_ = true;
  if (Grid1.rows() != cacheSize + 1) Grid1.setRows(cacheSize + 1);
  if (Grid1.cols() != itemCount + 2) Grid1.setCols(itemCount + 2);
  Grid1.setCell(std::clamp(gridRow(curRec), 1, static_cast<int>(cacheSize)), curItem + 1);
  std::vector<Grid::Mask> masks;
  for (const auto& block : {rangeBlock, targetBlock}) {
    auto part = block ? visiblePart(*block) : std::nullopt;
    if (part) masks.push_back(*part);
  }
  if (!masks.empty() || !Grid1.masks().empty()) Grid1.setMasks(std::move(masks));
  Grid1.refresh();
  painting_ = false;
  Form1* main = loadedForm<Form1>();
  showTyping(main ? main->txtinputbox.content() : Text());
}

Text frmSHEET::cellAtGrid(int row, int col) const {
  if (row == 0) return col == 0 ? Text(u"記録") : trimmed(itemName[static_cast<std::size_t>(col - 1)]);
  if (col == 0) return decimal(std::int64_t{cacheBase} + row - 1);
  return trimmed(cellOfRow(recCache[static_cast<std::size_t>(row + 1)], col - 1));
}

Text frmSHEET::markedCell() const {
  Text cell = Grid1.text();
  return (cell.empty() ? Text(u"ﾌﾞﾗﾝｸ") : cell) + u"  ｷﾞｮｳ" + Grid1.cell(Grid1.row(), 0) + u" ｺｳﾓｸ" +
         decimal(Grid1.col() - 1) + Grid1.cell(0, Grid1.col());
}

void frmSHEET::Grid1_RowColChange() {
  if (!painting_ && gateOpens()) talkNow(markedCell());
}

void frmSHEET::openMarkedCell() {
  std::int32_t record = cacheBase + Grid1.row() - 1;
  auto item = static_cast<std::int16_t>(Grid1.col() - 1);
  mainForm().activate();
  if (!commitBox()) return;
  goTo(std::min(record, recCount() + 1), item);
}

void showTyping(TextView text) {
  auto* sheet = loadedForm<frmSHEET>();
  if (!sheet) return;
  if (!text.empty()) return sheet->Label1.setCaption(text);
  sheet->Label1.setCaption(trimmedRight(cellOfRow(rowOf(curRec), curItem)));
}

void rangeMask(std::int32_t rec1, std::int32_t rec2, std::int16_t item1, std::int16_t item2, Colour colour) {
  rangeBlock = Block{rec1, rec2, item1, item2, colour};
  repaintSheet();
}

void hideRangeMask() {
  if (std::exchange(rangeBlock, std::nullopt)) repaintSheet();
}

void targetMask(std::int32_t rec1, std::int32_t rec2, std::int16_t item1, std::int16_t item2, Colour colour) {
  targetBlock = Block{rec1, rec2, item1, item2, colour};
  repaintSheet();
}

void hideTargetMask() {
  if (std::exchange(targetBlock, std::nullopt)) repaintSheet();
}

}  // namespace zelko
