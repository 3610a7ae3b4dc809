#include "parts/grid/celleditor.h"

#include <algorithm>

#include "platform/forms/form.h"
#include "platform/host.h"
#include "voice/names.h"
#include "voice/talk.h"

namespace zelko {

namespace {

class Held {
 public:
  explicit Held(int& depth) : depth_(depth) { ++depth_; }
  ~Held() { --depth_; }
  Held(const Held&) = delete;
  Held& operator=(const Held&) = delete;

 private:
  int& depth_;
};

}  // namespace

CellEditor::CellEditor(Grid& grid, TextBox& box, Label* mode, CellRules rules)
    : grid_(grid), box_(box), mode_(mode), rules_(std::move(rules)), col_(rules_.firstCol) {
  wire();
}

void CellEditor::wire() {
  box_.onKeyDown = [this](KeyEvent& key) { keyDown(key); };
  box_.onKeyPress = [this](CharEvent& event) { keyPress(event); };
  box_.onChange = [this] { boxChanged(); };
  // A cell that was only looked at may be left as it is. A dialog that comes in between leaves nothing.
  box_.onLostFocus = [this] {
    if (screen().activeForm() == &box_.form()) store();
  };
  if (rules_.marks) {
    box_.onGotFocus = [this] {
      markWhole(box_);
      marked_ = true;
    };
  }
  grid_.tabStop = rules_.walksGrid;
  grid_.onRowColChange = [this] { gridMoved(); };
  if (mode_) mode_->onClick = [this] { toggleMode(); };
}

// --- The cell in the box -------------------------------------------------------------------------------------

void CellEditor::show() {
  const Held held(held_);
  row_ = std::clamp(grid_.row(), 1, std::max(lastRow(), 1));
  col_ = std::clamp(grid_.col(), rules_.firstCol, rules_.lastCol);
  emptied_ = overwrite_ && rules_.overwriteEmpties;
  touched_ = false;
  box_.setText(emptied_ ? Text() : grid_.cell(row_, col_));
  previous_ = box_.content();
  marked_ = rules_.marks;
  if (marked_)
    markWhole(box_);
  else
    box_.moveCaretToEnd();
  fire(on.onEntered, row_, col_);
}

void CellEditor::reshape(const std::function<void()>& change) {
  {
    const Held held(held_);
    change();
  }
  show();
}

void CellEditor::enter(int row, int col) {
  reshape([&] { grid_.setCell(row, col); });
  if (box_.hasFocus() || grid_.hasFocus()) sayCell();
}

void CellEditor::say(const Text& sentence) {
  if (!sentence.empty()) talkS(box_.form(), sentence);
}

void CellEditor::sayCell() {
  if (talkMode != 0 && on.sentence) say(on.sentence(row_, col_));
}

Text CellEditor::typed() const { return emptied_ && !touched_ ? grid_.cell(row_, col_) : box_.content(); }

Text CellEditor::textAt(int row, int col) const { return row == row_ && col == col_ ? typed() : grid_.cell(row, col); }

bool CellEditor::changed() const { return typed() != grid_.cell(row_, col_); }

void CellEditor::put(const Text& text) {
  grid_.setCellText(row_, col_, on.stored ? on.stored(row_, col_, text) : withoutLineEnds(text));
  fire(on.onStored, row_, col_);
}

bool CellEditor::storeChecked() {
  if (!refusal().empty()) return true;
  const Text text = typed();
  if (on.fault) {
    if (const auto fault = on.fault(row_, col_, text)) {
      refuse(*fault);
      return false;
    }
  }
  put(text);
  return true;
}

bool CellEditor::store() {
  if (rules_.left == CellLeft::dropped || !changed()) return true;
  if (rules_.left == CellLeft::checked) return storeChecked();
  put(typed());
  return true;
}

void CellEditor::refuse(const CellFault& fault) {
  if (fault.empties) {
    host().beep();
    grid_.setCellText(row_, col_, {});
    show();
  }
  tellCellFault(fault, box_);
}

// --- Ways from cell to cell ----------------------------------------------------------------------------------

void CellEditor::setColumns(int lastCol, std::vector<int> passed) {
  rules_.lastCol = lastCol;
  rules_.passed = std::move(passed);
}

bool CellEditor::isPassed(int col) const { return std::ranges::find(rules_.passed, col) != rules_.passed.end(); }

void CellEditor::next() {
  if (!storeChecked()) return;
  int col = col_ + 1;
  while (isPassed(col)) ++col;
  if (col <= rules_.lastCol) return enter(row_, col);
  if (row_ < lastRow() || (rules_.growsOnEnter && addRow())) return enter(row_ + 1, rules_.firstCol);
  show();
  on.onEnd ? on.onEnd() : sayCell();
}

void CellEditor::back() {
  if (!store()) return;
  int col = col_ - 1;
  while (isPassed(col)) --col;
  if (col >= rules_.firstCol) return enter(row_, col);
  if (row_ == 1) return host().beep();
  enter(row_ - 1, rules_.lastCol);
}

void CellEditor::sidewards(int direction) {
  if (!store()) return;
  const int col = col_ + direction;
  if (col < rules_.firstCol || col > rules_.lastCol) return host().beep();
  enter(row_, col);
}

void CellEditor::upOrDown(int direction) {
  if (!store()) return;
  if (direction < 0 ? row_ > 1 : row_ < lastRow()) return enter(row_ + direction, col_);
  if (direction < 0 || !rules_.rowsChange || !addRow()) return host().beep();
  enter(lastRow(), rules_.addedFromFirst ? rules_.firstCol : col_);
}

// The arrows in the grid, or a mouse that chose a cell.
void CellEditor::gridMoved() {
  if (held_ > 0) return;
  const int row = std::max(grid_.row(), 1), col = grid_.col();
  if (!store()) {
    const Held held(held_);
    return grid_.setCell(row_, col_);
  }
  enter(row, std::clamp(col, rules_.firstCol, rules_.lastCol));
  if (!rules_.walksGrid) box_.setFocus();
}

// --- Rows ----------------------------------------------------------------------------------------------------

bool CellEditor::addRow() {
  if (lastRow() >= rules_.mostRows) return false;
  const Held held(held_);
  grid_.setRows(grid_.rows() + 1);
  fire(on.onAdded, lastRow());
  return true;
}

void CellEditor::deleteRow() {
  const int deleted = row_;
  if (deleted <= rules_.keptRows || lastRow() <= 1) return host().beep();
  {
    const Held held(held_);
    for (int row = deleted; row < lastRow(); ++row) {
      for (int col = grid_.fixedCols; col < grid_.cols(); ++col) grid_.setCellText(row, col, grid_.cell(row + 1, col));
    }
    grid_.setRows(grid_.rows() - 1);
  }
  const Text words = on.onDeleted ? on.onDeleted(deleted) : Text();
  show();
  words.empty() ? sayCell() : say(words);
}

void CellEditor::insertRow() {
  const int place = row_;
  if (place <= rules_.keptRows || !store() || !addRow()) return host().beep();
  {
    const Held held(held_);
    for (int row = lastRow(); row > place; --row) {
      for (int col = grid_.fixedCols; col < grid_.cols(); ++col) grid_.setCellText(row, col, grid_.cell(row - 1, col));
    }
    for (int col = grid_.fixedCols; col < grid_.cols(); ++col) grid_.setCellText(place, col, {});
    grid_.setCell(place, rules_.firstCol);
  }
  const Text words = on.onInserted ? on.onInserted(place) : Text();
  show();
  words.empty() ? sayCell() : say(words);
}

// --- Keys and typing -----------------------------------------------------------------------------------------

void CellEditor::keyDown(KeyEvent& key) {
  marked_ = isWholeMarked(box_);
  const bool sideways = key.is(key::Left, shift::None) || key.is(key::Right, shift::None);
  if (key.is(key::Enter, shift::None))
    next();
  else if (key.is(key::Enter, shift::Shift))
    back();
  else if (key.is(key::Up, shift::None) || key.is(key::Down, shift::None))
    upOrDown(key.code == key::Up ? -1 : 1);
  else if (sideways && rules_.arrowsLeaveEmpty && box_.content().empty())
    sidewards(key.code == key::Left ? -1 : 1);
  else if (rules_.rowsChange && key.is(key::Delete, shift::ShiftCtrl))
    deleteRow();
  else if (rules_.rowsChange && key.is(key::Insert, shift::ShiftCtrl))
    insertRow();
  else if (mode_ && key.is(key::Insert, shift::None))
    toggleMode();
  else
    return;
  key.swallow();
}

void CellEditor::keyPress(CharEvent& event) {
  if (event.ch < u' ') return;
  if (on.typable && on.typable(col_, TextView(&event.ch, 1)).empty()) {
    event.ch = 0;
    return host().beep();
  }
  if (!overwrite_ || box_.selLength() != 0) return;
  const Text following = mid(box_.content(), static_cast<std::size_t>(box_.selStart()) + 1, 1);
  const bool pair = !following.empty() && following[0] >= 0xD800 && following[0] < 0xDC00;
  box_.setSelection(box_.selStart(), pair ? 2 : 1);
}

// What an input method or the clipboard brings comes at once, past the key press.
void CellEditor::keepTypable() {
  if (!on.typable) return;
  const Text kept = on.typable(col_, box_.content());
  if (kept.size() != box_.content().size()) host().beep();
  if (kept == box_.content()) return;
  const Held held(held_);
  box_.setText(kept);
  box_.moveCaretToEnd();
}

void CellEditor::boxChanged() {
  if (held_ > 0) return;
  if (const Text word = refusal(); !word.empty()) {
    show();
    return talkGated(word);
  }
  touched_ = true;
  keepTypable();
  // A text in the place of the whole old one is heard as it is, not as what differs.
  if (marked_ && !box_.content().empty()) previous_.clear();
  marked_ = false;
  talkRichChange(box_, previous_);
}

void CellEditor::toggleMode() {
  if (!mode_) return;
  overwrite_ = !overwrite_;
  mode_->setCaption(overwrite_ ? u"上書" : u"挿入");
  if (rules_.toggleBeeps) host().beep();
  say(mode_->caption());
}

}  // namespace zelko
