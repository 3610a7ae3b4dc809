#include "stats/frame/datacheckform.h"

#include "platform/host.h"
#include "platform/text/number.h"
#include "store/table/table.h"
#include "voice/heard.h"
#include "voice/narration.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr int kRecordsCol = 1, kFirstKindCol = 2;
constexpr TextView kHowTo = u"上下矢印で項目、左右矢印で種類、CRでその最初のｾﾙへ移ります。escで戻ります";

Text itemWords(const ItemCells& cells) {
  return decimal(cells.item) + u":" + trimmed(itemName[static_cast<std::size_t>(cells.item)]);
}

CellKind kindOfCol(int col) { return static_cast<CellKind>(col - kFirstKindCol); }

}  // namespace

frmDCHECK::frmDCHECK() : Form(kName, u"ﾃﾞｰﾀの確認") {
  Grid1.screenName = u"項目ごとの数";
  Grid1.onRowColChange = [this] { frmDCHECK_Grid1_RowColChange(); };
  Command1.place = Place::newRow;
  Command1.onClick = [this] { frmDCHECK_Command1_Click(); };
  Command2.onClick = [this] { screen().unload(*this); };
  Command1.isDefault = true;
  Command2.isCancel = true;
  Narration voice(*this);
  voice.explain(u"。分析の前に、指定項目の記録数と、ﾌﾞﾗﾝｸ、文字、0のｾﾙの数を確かめます。" + Text(kHowTo));
  voice.say(Grid1, [this] { return caption() + markStop + rowSentence() + markStop + Text(kHowTo); });
  for (Button* button : {&Command1, &Command2}) voice.say(*button, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ");
  take({});
}

void frmDCHECK::take(std::vector<ItemCells> cells) {
  filling_ = true;
  cells_ = std::move(cells);
  Grid1.setRows(static_cast<int>(cells_.size()) + 1);
  Grid1.setCols(kFirstKindCol + static_cast<int>(kCellKinds));
  Grid1.setCellText(0, 0, u"項目");
  Grid1.setCellText(0, kRecordsCol, u"記録数");
  for (int col = kFirstKindCol; col < Grid1.cols(); ++col) Grid1.setCellText(0, col, cellKindName(kindOfCol(col)));
  for (int row = 1; row < Grid1.rows(); ++row) {
    const ItemCells& item = cells_[static_cast<std::size_t>(row - 1)];
    Grid1.setCellText(row, 0, itemWords(item));
    Grid1.setCellText(row, kRecordsCol, decimal(item.records));
    for (int col = kFirstKindCol; col < Grid1.cols(); ++col) {
      Grid1.setCellText(row, col, decimal(item.count(kindOfCol(col))));
    }
  }
  Grid1.setCell(1, kRecordsCol);
  rowBefore_ = 1;
  filling_ = false;
}

const ItemCells& frmDCHECK::current() const { return cells_[static_cast<std::size_t>(Grid1.row() - 1)]; }

Text frmDCHECK::rowSentence() const {
  if (cells_.empty()) return u"項目が指定されていません";
  const ItemCells& item = current();
  Text words = itemWords(item) + markPause + u"記録数" + decimal(item.records);
  for (const CellKind kind : {CellKind::blank, CellKind::word, CellKind::zero}) {
    words += markPause + Text(cellKindName(kind)) + u"わ" + decimal(item.count(kind)) + u"個";
  }
  return words;
}

Text frmDCHECK::cellSentence() const {
  if (cells_.empty() || Grid1.col() < kFirstKindCol) return rowSentence();
  const CellKind kind = kindOfCol(Grid1.col());
  const Text words = Text(cellKindName(kind)) + u"わ" + decimal(current().count(kind)) + u"個";
  const std::int32_t record = current().firstOf(kind);
  return record == 0 ? words : words + markPause + u"最初わ記録" + decimal(record);
}

void frmDCHECK::frmDCHECK_Grid1_RowColChange() {
  if (filling_) return;
  const bool newRow = Grid1.row() != rowBefore_;
  rowBefore_ = Grid1.row();
  if (!gateOpens()) return;
  ++composedSentences;
  talkNow(newRow ? rowSentence() : cellSentence());
}

void frmDCHECK::frmDCHECK_Command1_Click() {
  const int col = Grid1.col();
  const std::int32_t record = cells_.empty()        ? 0
                              : col < kFirstKindCol ? current().firstOfAny()
                                                    : current().firstOf(kindOfCol(col));
  if (record == 0) {
    host().beep();
    return talkGated(u"該当するｾﾙわありません");
  }
  chosen = CellPlaceOfTable{record, current().item};
  closeUnheard(*this);
}

std::optional<CellPlaceOfTable> showDataCheck(const std::vector<ItemCells>& cells) {
  std::optional<CellPlaceOfTable> chosen;
  frmDCHECK& dialog = form<frmDCHECK>();
  dialog.take(cells);
  dialog.onUnload = [&] { chosen = dialog.chosen; };
  dialog.showModal();
  return chosen;
}

void registerDataCheck() { registerForm<frmDCHECK>(); }

}  // namespace zelko
