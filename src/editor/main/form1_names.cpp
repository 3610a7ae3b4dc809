// The boxes of the main form that show the name of the item and the memo of the table, and can be rewritten.
#include <utility>

#include "editor/main/filling.h"
#include "editor/main/form1.h"
#include "platform/text/number.h"
#include "store/table/itemfile.h"
#include "store/table/notice.h"
#include "voice/dialogs.h"
#include "voice/names.h"

namespace zelko {
namespace {

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
  if (Filling::runs()) {
    lastName_ = RichTextBox1.text();
    return;
  }
  nameTyped_ = true;
  talkRichChange(RichTextBox1, lastName_);
}

void Form1::RichTextBox2_Change() {
  if (Filling::runs()) {
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
  const Filling filling;
  if (name) RichTextBox1.setText(kept);
  if (memo) RichTextBox2.setText(tableMemo);
}

}  // namespace zelko
