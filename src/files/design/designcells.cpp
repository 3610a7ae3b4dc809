// The design table: its rows, the cell that is being written, and the keys in it.
#include <algorithm>

#include "files/design/designform.h"
#include "platform/host.h"
#include "platform/text/number.h"
#include "store/table/table.h"
#include "voice/dialogs.h"
#include "voice/names.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr int kFirstRow = 1;  // the ID item
constexpr int kNameCol = 1, kSideCol = 2, kWidthCol = 3;

class Held {
 public:
  explicit Held(bool& flag) : flag_(flag), before_(flag) { flag = true; }
  ~Held() { flag_ = before_; }
  Held(const Held&) = delete;
  Held& operator=(const Held&) = delete;

 private:
  bool& flag_;
  bool before_;
};

void markWhole(TextBox& box) { box.setSelection(0, static_cast<int>(box.content().size())); }

}  // namespace

bool frmDESIGN::isWholeMarked(const TextBox& box) { return box.selLength() == static_cast<int>(box.content().size()); }

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

// Rows that are added have a name and a side, and no width.
void frmDESIGN::setItems(int wanted) {
  const Held held(moving_);
  const int before = highest();
  Grid1.setRows(wanted + kFirstRow + 1);
  oldItems_.resize(static_cast<std::size_t>(wanted) + 1, -1);
  for (int item = before + 1; item <= wanted; ++item) setRow(item, {u"item." + decimal(item), u"L", {}, -1});
}

void frmDESIGN::fill(const std::vector<ItemLine>& items) {
  const Held held(moving_);
  const int highestItem = static_cast<int>(items.size()) - 1;
  Grid1.setRows(highestItem + kFirstRow + 1);
  oldItems_.assign(items.size(), -1);
  for (int item = 0; item <= highestItem; ++item) {
    const ItemLine& line = items[static_cast<std::size_t>(item)];
    setRow(item, {trimmed(line.name), trimmed(line.alignment), decimal(line.width), item});
  }
}

void frmDESIGN::showCount() {
  const Held held(moving_);
  text1.setText(decimal(highest()));
}

// --- The writing cell ----------------------------------------------------------------------------------------

Text frmDESIGN::cellSentence() const {
  constexpr TextView kAsked[] = {u"の項目名を記入してください", u"の配置を示すRまたはＬを入力してください",
                                 u"の項目幅を入力してください"};
  return u"項目" + decimal(item()) + Text(kAsked[std::clamp(Grid1.col(), kNameCol, kWidthCol) - kNameCol]) +
         u"項目区切り設定ヒョウ入力テキストボックス";
}

// The text of the cell stands marked in the box: typing replaces it.
void frmDESIGN::showWritingCell() {
  const Held held(moving_);
  itemin.setText(Grid1.text());
  lastCell_ = itemin.content();
  markWhole(itemin);
  marked_ = true;
}

void frmDESIGN::moveTo(int row, DesignColumn column) {
  {
    const Held held(moving_);
    Grid1.setCell(row, static_cast<int>(column));
  }
  showWritingCell();
  if (itemin.hasFocus()) talkS(*this, cellSentence());
}

bool frmDESIGN::cellChanged() const { return itemin.content() != Grid1.text(); }

// The wrong text stands marked: typing replaces it.
void frmDESIGN::tell(const DesignFault& fault, TextBox& back) {
  if (!fault.said.empty()) talkNow(Text(fault.said));
  {
    const Silence silence;
    back.setFocus();
    markWhole(back);
  }
  showOK(fault.text, fault.title);
}

bool frmDESIGN::storeCell() {
  if (const auto fault = faultOfCell(column(), itemin.content())) {
    tell(*fault, itemin);
    return false;
  }
  Grid1.setText(storedCell(column(), itemin.content()));
  return true;
}

void frmDESIGN::moveOn() {
  if (!storeCell()) return;
  if (column() != DesignColumn::width) return moveTo(Grid1.row(), static_cast<DesignColumn>(Grid1.col() + 1));
  if (item() < highest()) return moveTo(Grid1.row() + 1, DesignColumn::name);
  showWritingCell();
  showOK(u"設定された項目数の記入を終えました。項目数を増やす場合は↓を押してください", u"項目数の増加");
}

void frmDESIGN::moveBack() {
  if (cellChanged() && !storeCell()) return;
  if (column() != DesignColumn::name) return moveTo(Grid1.row(), static_cast<DesignColumn>(Grid1.col() - 1));
  if (item() == 0) return host().beep();
  moveTo(Grid1.row() - 1, DesignColumn::width);
}

void frmDESIGN::moveRow(int direction) {
  if (cellChanged() && !storeCell()) return;
  if (direction < 0 && item() == 0) return host().beep();
  if (direction < 0 || item() < highest()) return moveTo(Grid1.row() + direction, column());
  if (highest() >= kHighestItem) return host().beep();
  setItems(highest() + 1);
  showCount();
  moveTo(Grid1.rows() - 1, DesignColumn::name);
}

void frmDESIGN::deleteRow() {
  const int deleted = item();
  if (deleted == 0) return host().beep();
  for (int at = deleted; at < highest(); ++at) setRow(at, row(at + 1));
  {
    const Held held(moving_);
    setItems(highest() - 1);
  }
  showCount();
  showWritingCell();
  talkS(*this, decimal(deleted) + u"項目が削除され、以後の項目が前詰めされました。");
}

void frmDESIGN::insertRow() {
  const int place = item();
  if (place == 0 || highest() >= kHighestItem || (cellChanged() && !storeCell())) return host().beep();
  setItems(highest() + 1);
  for (int at = highest(); at > place; --at) setRow(at, row(at - 1));
  setRow(place, {{}, u"L", {}, -1});
  showCount();
  const Held held(moving_);
  Grid1.setCell(Grid1.row(), kNameCol);
  showWritingCell();
  talkS(*this, decimal(place) + u"項目に項目が挿入されました。項目名などを設定してください。");
}

// --- Events --------------------------------------------------------------------------------------------------

void frmDESIGN::frmDESIGN_itemin_KeyDown(KeyEvent& key) {
  marked_ = isWholeMarked(itemin);
  if (key.is(key::Enter, shift::None))
    moveOn();
  else if (key.is(key::Enter, shift::Shift))
    moveBack();
  else if (key.is(key::Up, shift::None) || key.is(key::Down, shift::None))
    moveRow(key.code == key::Up ? -1 : 1);
  else if (key.is(key::Delete, shift::ShiftCtrl))
    deleteRow();
  else if (key.is(key::Insert, shift::ShiftCtrl))
    insertRow();
  else if (key.is(key::Insert, shift::None))
    frmDESIGN_Label9_Click();
  else
    return;
  key.swallow();
}

void frmDESIGN::frmDESIGN_itemin_KeyPress(CharEvent& event) {
  if (event.ch < u' ') return;
  if (column() == DesignColumn::width && digitsOf(TextView(&event.ch, 1)).empty()) {
    event.ch = 0;
    return host().beep();
  }
  if (!overwrite_ || itemin.selLength() != 0) return;
  const Text next = mid(itemin.content(), static_cast<std::size_t>(itemin.selStart()) + 1, 1);
  const bool pair = !next.empty() && next[0] >= 0xD800 && next[0] < 0xDC00;
  itemin.setSelection(itemin.selStart(), pair ? 2 : 1);
}

// What an input method or the clipboard brings comes at once, past the key press.
void frmDESIGN::frmDESIGN_itemin_Change() {
  if (moving_) return;
  if (column() == DesignColumn::width) {
    const Text digits = digitsOf(itemin.content());
    if (digits.size() != itemin.content().size()) host().beep();
    const Held held(moving_);
    if (digits != itemin.content()) {
      itemin.setText(digits);
      itemin.moveCaretToEnd();
    }
  }
  sayChange(itemin, lastCell_);
}

// A cell that was only looked at may be left as it is. A dialog that comes in between leaves nothing.
void frmDESIGN::frmDESIGN_itemin_LostFocus() {
  if (screen().activeForm() == this && cellChanged()) storeCell();
}

void frmDESIGN::frmDESIGN_Label9_Click() {
  overwrite_ = !overwrite_;
  Label9.setCaption(overwrite_ ? u"上書" : u"挿入");
  talkS(*this, Label9.caption());
}

void frmDESIGN::frmDESIGN_Grid1_RowColChange() {
  if (moving_) return;
  moveTo(std::clamp(Grid1.row(), kFirstRow, Grid1.rows() - 1),
         static_cast<DesignColumn>(std::clamp(Grid1.col(), kNameCol, kWidthCol)));
  itemin.setFocus();
}

bool frmDESIGN::applyCount() {
  const TypedCount typed = typedCount(text1.content());
  if (typed.fault) {
    tell(*typed.fault, text1);
    return false;
  }
  if (!typed.count || *typed.count == highest()) return true;
  setItems(*typed.count);
  showWritingCell();
  return true;
}

void frmDESIGN::frmDESIGN_text1_LostFocus() {
  if (screen().activeForm() == this) applyCount();
}

}  // namespace zelko
