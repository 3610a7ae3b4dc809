// The boxes of one value of the main form: the two numbers that jump, and the alignment.
#include <optional>

#include "editor/main/filling.h"
#include "editor/main/form1.h"
#include "editor/main/inputbox.h"
#include "editor/moves/commit.h"
#include "editor/moves/moves.h"
#include "editor/rewrites/realign.h"
#include "editor/show/showcell.h"
#include "parts/cells.h"
#include "platform/host.h"
#include "platform/text/number.h"
#include "store/records/records.h"
#include "store/table/cursor.h"
#include "store/table/readonly.h"
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
void restore(TextBox& box, std::int32_t number) {
  const Filling filling;
  const HeldAnnouncement held;
  box.setText(decimal(number));
}

void refuse(TextBox& box, std::int32_t number) {
  host().beep();
  restore(box, number);
  focusInputBox();
}

}  // namespace

void Form1::announceChange(const TextBox& box) {
  if (Filling::runs()) {
    if (!HeldAnnouncement::holds()) announceCell();
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
  if (!Filling::runs()) announceChange(txtLR);
}

void Form1::txtREC_Change() { announceChange(txtREC); }

void Form1::txtREC_KeyPress(CharEvent& event) {
  if (event.ch != key::Enter) return;
  event.ch = 0;
  auto record = numberIn(txtREC.content());
  if (!record || *record < 1) return refuse(txtREC, curRec);
  if (!commitBox()) return;
  if (*record > recCount()) return refuse(txtREC, curRec);
  goTo(*record, curItem);
  focusInputBox();
}

void Form1::txtREC_LostFocus() { restore(txtREC, curRec); }

void Form1::txtItemnum_Change() {
  bool typed = !Filling::runs() && !trimmed(txtItemnum.content()).empty();
  auto item = numberIn(txtItemnum.content());
  if (typed && (!item || *item > itemCount)) return refuse(txtItemnum, curItem);
  announceChange(txtItemnum);
}

void Form1::txtItemnum_KeyPress(CharEvent& event) {
  if (event.ch != key::Enter) return;
  event.ch = 0;
  auto item = numberIn(txtItemnum.content());
  if (!item || *item > itemCount) return refuse(txtItemnum, curItem);
  if (!commitBox()) return;
  curItem = static_cast<std::int16_t>(*item);
  dispAll(curItem);
  showCell(static_cast<float>(curRec), curItem, u"", u"");
  focusInputBox();
}

void Form1::txtItemnum_LostFocus() { restore(txtItemnum, curItem); }

void Form1::txtLR_LostFocus() {
  Text letter = alignmentLetter(txtLR.content());
  Text& kept = itemLR[static_cast<std::size_t>(shownItem_)];
  bool wanted = letter != kept && (letter == u"L" || letter == u"R") && !docPath.empty() && shownPath_ == docPath;
  if (wanted && !refusedAsReadOnly()) realignItem(shownItem_, letter);
  const Filling filling;
  txtLR.setText(kept);
}

}  // namespace zelko
