// The smaller boxes of the main form: the two numbers that jump, and the name, memo and alignment that can be
// rewritten.
#include <optional>
#include <utility>

#include "editor/main/form1.h"
#include "editor/moves/commit.h"
#include "editor/moves/moves.h"
#include "editor/rewrites/realign.h"
#include "platform/host.h"
#include "platform/text/number.h"
#include "store/records/records.h"
#include "store/table/cursor.h"
#include "store/table/itemfile.h"
#include "store/table/notice.h"
#include "voice/cells.h"
#include "voice/dialogs.h"
#include "voice/names.h"
#include "voice/talk.h"

namespace zelko {
namespace {

// Digits alone make a number here, few enough of them to be one of a record.
std::optional<std::int32_t> numberIn(const Text& box) {
  Text digits = trimmed(box);
  if (digits.empty() || digits.size() > 9 || digits.find_first_not_of(u"0123456789") != Text::npos) return {};
  return toInt32(val(digits));
}

// The box shows where the cursor is again; nothing has moved, so nothing is announced.
void restore(Form1& main, TextBox& box, std::int32_t number) {
  Form1::Filling filling(main);
  Form1::HeldAnnouncement held(main);
  box.setText(decimal(number));
}

void refuse(Form1& main, TextBox& box, std::int32_t number) {
  host().beep();
  restore(main, box, number);
  focusInputBox();
}

bool fitsItemFile(const Text& text) {
  if (text.find_first_of(u",\r\n") == Text::npos) return true;
  showOK(u"文中に｢,｣があってはいけません", u"表使用値の誤り");
  return false;
}

// Puts the text of a rich box into the description and the item file; where that fails both keep what they had.
void storeText(const Text& typed, Text& kept) {
  if (typed == kept || !fitsItemFile(typed)) return;
  Text before = std::exchange(kept, typed);
  if (writeKFile(docPath, docDrive)) return;
  kept = before;
  tellWriteError();
}

}  // namespace

void Form1::announceChange(const TextBox& box) {
  if (isFilling()) {
    if (held_ == 0) announceCell();
  } else {
    talkGated(box.content().empty() ? Text(u"ブランク") : box.content());
  }
}

// Whoever comes to a box of one value wants to write another one.
void Form1::selectWhole(TextBox& box) { box.setSelection(0, static_cast<int>(box.content().size())); }

// Enter is done with the box, which stores what was changed as it is left.
void Form1::otherBox_KeyPress(const TextBox& box, CharEvent& event) {
  if (event.ch == key::Enter)
    focusInputBox();
  else if (box.readOnly)
    host().beep();
  else
    return;
  event.ch = 0;
}

void Form1::txtLR_Change() {
  if (!isFilling()) announceChange(txtLR);
}

void Form1::txtREC_Change() { announceChange(txtREC); }

void Form1::txtREC_KeyPress(CharEvent& event) {
  if (event.ch != key::Enter) return;
  event.ch = 0;
  auto record = numberIn(txtREC.content());
  if (!record || *record < 1) return refuse(*this, txtREC, curRec);
  commitBox();
  if (*record > recCount()) return refuse(*this, txtREC, curRec);
  goTo(*record, curItem);
  focusInputBox();
}

void Form1::txtREC_LostFocus() { restore(*this, txtREC, curRec); }

void Form1::txtItemnum_Change() {
  bool typed = !isFilling() && !trimmed(txtItemnum.content()).empty();
  auto item = numberIn(txtItemnum.content());
  if (typed && (!item || *item > itemCount)) return refuse(*this, txtItemnum, curItem);
  announceChange(txtItemnum);
}

void Form1::txtItemnum_KeyPress(CharEvent& event) {
  if (event.ch != key::Enter) return;
  event.ch = 0;
  auto item = numberIn(txtItemnum.content());
  if (!item || *item > itemCount) return refuse(*this, txtItemnum, curItem);
  commitBox();
  curItem = static_cast<std::int16_t>(*item);
  dispAll(curItem);
  showCell(static_cast<float>(curRec), curItem, u"", u"");
  focusInputBox();
}

void Form1::txtItemnum_LostFocus() { restore(*this, txtItemnum, curItem); }

void Form1::showItem(std::int16_t item) {
  auto i = static_cast<std::size_t>(item);
  shownItem_ = item;
  shownPath_ = docPath;
  RichTextBox1.setText(itemName[i]);
  txtWIDTH.setText(decimal(itemWidth[i]));
  txtLR.setText(itemLR[i]);
  nameTyped_ = false;
}

void Form1::showMemo() {
  RichTextBox2.setText(tableMemo);
  memoTyped_ = false;
}

void Form1::RichTextBox1_Change() {
  if (isFilling()) {
    lastName_ = RichTextBox1.text();
    return;
  }
  nameTyped_ = true;
  talkRichChange(RichTextBox1, lastName_);
}

void Form1::RichTextBox2_Change() {
  if (isFilling()) {
    lastMemo_ = RichTextBox2.text();
    return;
  }
  memoTyped_ = true;
  talkRichChange(RichTextBox2, lastMemo_);
}

void Form1::RichTextBox1_LostFocus() { storeNames(); }

void Form1::RichTextBox2_LostFocus() { storeNames(); }

void Form1::storeNames() {
  bool name = std::exchange(nameTyped_, false), memo = std::exchange(memoTyped_, false);
  if ((!name && !memo) || docPath.empty() || shownPath_ != docPath) return;
  Text& kept = itemName[static_cast<std::size_t>(shownItem_)];
  if (name) storeText(RichTextBox1.text(), kept);
  if (memo) storeText(RichTextBox2.text(), tableMemo);
  Filling filling(*this);
  if (name) RichTextBox1.setText(kept);
  if (memo) RichTextBox2.setText(tableMemo);
}

void Form1::txtLR_LostFocus() {
  Text letter = alignmentLetter(txtLR.content());
  Text& kept = itemLR[static_cast<std::size_t>(shownItem_)];
  bool wanted = letter != kept && (letter == u"L" || letter == u"R") && !docPath.empty() && shownPath_ == docPath;
  if (wanted && !refusedAsReadOnly()) realignItem(shownItem_, letter);
  Filling filling(*this);
  txtLR.setText(kept);
}

}  // namespace zelko
