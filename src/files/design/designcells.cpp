// The rows of the design table, and what becomes of them.
#include <algorithm>

#include "files/design/designform.h"
#include "platform/text/number.h"
#include "store/table/table.h"

namespace zelko {

namespace {

constexpr int kFirstRow = 1;  // the ID item
constexpr int kNameCol = 1, kSideCol = 2, kWidthCol = 3;

}  // namespace

CellRules frmDESIGN::cellRules() {
  CellRules rules;
  rules.firstCol = kNameCol;
  rules.lastCol = kWidthCol;
  rules.left = CellLeft::checked;
  rules.keptRows = kFirstRow;
  rules.mostRows = kHighestItem + 1;
  rules.growsOnEnter = false;
  rules.addedFromFirst = true;
  rules.marks = true;
  return rules;
}

void frmDESIGN::setHeadings() {
  constexpr TextView kHeadings[] = {u"項目", u"項目名", u"左/右詰", u"項目幅"};
  Grid1.setCols(4);
  for (int col = 0; col < 4; ++col) Grid1.setCellText(0, col, kHeadings[col]);
}

void frmDESIGN::setRow(int item, const DesignRow& row) {
  const int at = item + kFirstRow;
  Grid1.setCellText(at, 0, decimal(item));
  Grid1.setCellText(at, kNameCol, row.name);
  Grid1.setCellText(at, kSideCol, row.side);
  Grid1.setCellText(at, kWidthCol, row.width);
  oldItems_[static_cast<std::size_t>(item)] = row.oldItem;
}

DesignRow frmDESIGN::row(int item) const {
  const int at = item + kFirstRow;
  return {Grid1.cell(at, kNameCol), Grid1.cell(at, kSideCol), Grid1.cell(at, kWidthCol),
          oldItems_[static_cast<std::size_t>(item)]};
}

std::vector<DesignRow> frmDESIGN::rows() const {
  std::vector<DesignRow> all;
  for (int item = 0; item <= highest(); ++item) all.push_back(row(item));
  return all;
}

// A row that is added has a name and a side, and no width.
DesignRow frmDESIGN::addedRow(int item) { return {u"item." + decimal(item), u"L", {}, -1}; }

void frmDESIGN::setItems(int wanted) {
  const int before = highest();
  Grid1.setRows(wanted + kFirstRow + 1);
  oldItems_.resize(static_cast<std::size_t>(wanted) + 1, -1);
  for (int item = before + 1; item <= wanted; ++item) setRow(item, addedRow(item));
}

void frmDESIGN::fill(const std::vector<ItemLine>& items) {
  const int highestItem = static_cast<int>(items.size()) - 1;
  Grid1.setRows(highestItem + kFirstRow + 1);
  oldItems_.assign(items.size(), -1);
  for (int item = 0; item <= highestItem; ++item) {
    const ItemLine& line = items[static_cast<std::size_t>(item)];
    setRow(item, {trimmed(line.name), trimmed(line.alignment), decimal(line.width), item});
  }
}

void frmDESIGN::showCount() {
  filling_ = true;
  text1.setText(decimal(highest()));
  filling_ = false;
}

Text frmDESIGN::cellSentence() const {
  constexpr TextView kAsked[] = {u"の項目名を記入してください", u"の配置を示すRまたはＬを入力してください",
                                 u"の項目幅を入力してください"};
  return u"項目" + decimal(item()) + Text(kAsked[std::clamp(cells_.col(), kNameCol, kWidthCol) - kNameCol]) +
         u"項目区切り設定ヒョウ入力テキストボックス";
}

// The place of a row tells nothing of what it was: its old item moves with it.
Text frmDESIGN::rowDeleted(int item) {
  oldItems_.erase(oldItems_.begin() + item);
  showCount();
  return decimal(item) + u"項目が削除され、以後の項目が前詰めされました。";
}

Text frmDESIGN::rowInserted(int item) {
  oldItems_.pop_back();
  oldItems_.insert(oldItems_.begin() + item, -1);
  setRow(item, {{}, u"L", {}, -1});
  return decimal(item) + u"項目に項目が挿入されました。項目名などを設定してください。";
}

bool frmDESIGN::applyCount() {
  const TypedCount typed = typedCount(text1.content());
  if (typed.fault) {
    tellCellFault(*typed.fault, text1);
    return false;
  }
  if (!typed.count || *typed.count == highest()) return true;
  cells_.reshape([&] { setItems(*typed.count); });
  return true;
}

void frmDESIGN::frmDESIGN_text1_LostFocus() {
  if (screen().activeForm() == this) applyCount();
}

}  // namespace zelko
