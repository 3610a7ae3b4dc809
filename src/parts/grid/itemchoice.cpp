#include "parts/grid/itemchoice.h"

#include "platform/host.h"
#include "platform/text/number.h"
#include "store/table/table.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr int kMarkCol = 0, kItemCol = 1;
constexpr TextView kName = u"ｺｳﾓｸｼﾃｲｸﾞﾘｯﾄﾞ";
constexpr TextView kOneGroup =
    u"矢印でｺｳﾓｸを移動して,指定　ﾉ　場合　１　を、指定しない時は　もう一度　１や、その他ﾉ　ｷｰを叩いてください";
constexpr TextView kTwoGroups =
    u"上下矢印でｺｳﾓｸを移動して､ぐん１指定　ﾉ　場合　１、ぐん２指定の場合は　２　を、指定しない時は　もう一度　なにかﾉ　"
    u"ｷｰを叩いてください";
constexpr TextView kKeypadHint = u"テンキーの1、またはctrl+1で指定します";

void sayNow(Text sentence) {
  if (talkMode == 0) return;
  ++composedSentences;
  talkNow(sentence);
}

// The keypad's digit, or with Ctrl either, so that no keyboard is locked out; 0 for any other key.
int groupOf(const KeyEvent& key) {
  if (key.mask != shift::None && key.mask != shift::Ctrl) return 0;
  for (const int digit : {1, 2}) {
    if (key.code == key::Num0 + digit) return digit;
    if (key.code == key::Digit0 + digit && key.mask == shift::Ctrl) return digit;
  }
  return 0;
}

bool isBetween(int code, int first, int last) { return code >= first && code <= last; }

// Keys that write or erase; all others act elsewhere and leave a mark as it is.
bool clears(const KeyEvent& key) {
  if (key.mask != shift::None && key.mask != shift::Shift) return false;
  return isBetween(key.code, key::Digit0, key::Digit0 + 9) || isBetween(key.code, key::Num0, key::Num0 + 9) ||
         isBetween(key.code, key::A, key::letter('Z')) || key.code == key::Space || key.code == key::Backspace ||
         key.code == key::Delete || key.code == key::Other;
}

bool movesRow(int code) { return isBetween(code, key::PageUp, key::Down); }

}  // namespace

ItemChoice::ItemChoice(Grid& grid, int groups) : grid_(grid), groups_(groups) {
  grid_.fixedCols = 0;
  grid_.onKeyDown = [this](KeyEvent& key) { keyDown(key); };
  grid_.onKeyUp = [this](KeyEvent& key) { keyUp(key); };
  grid_.onClick = [this] { pressed(); };
  // With two groups the key-up speaks.
  grid_.onRowColChange = [this] {
    if (!filling_ && groups_ == 1) talkGated(moveSentence());
  };
}

void ItemChoice::fill() {
  filling_ = true;
  grid_.setRows(1);
  grid_.setCols(2);
  grid_.setRows(itemCount + 1);
  grid_.setCellText(0, kMarkCol, u"指定");
  grid_.setCellText(0, kItemCol, u"項目");
  for (int item = 1; item <= itemCount; ++item) {
    grid_.setCellText(item, kMarkCol, {});
    grid_.setCellText(item, kItemCol, decimal(item) + u":" + trimmed(itemName[static_cast<std::size_t>(item)]));
  }
  grid_.setCell(1, kItemCol);
  filling_ = false;
}

void ItemChoice::narrate(Narration& voice) {
  voice.say(grid_, [this] { return focusSentence(); });
}

std::vector<std::int16_t> ItemChoice::marked(int group) const {
  std::vector<std::int16_t> items;
  for (int item = 1; item < grid_.rows(); ++item) {
    if (trimmed(grid_.cell(item, kMarkCol)) == decimal(group)) items.push_back(static_cast<std::int16_t>(item));
  }
  return items;
}

void ItemChoice::setMarked(const std::vector<std::int16_t>& items, int group) {
  for (const std::int16_t item : items) grid_.setCellText(item, kMarkCol, decimal(group));
}

void ItemChoice::tellNothingMarked() {
  host().beep();
  {
    const Silence silence;
    grid_.setFocus();
  }
  sayNow(focusSentence());
}

// --- Keys ----------------------------------------------------------------------------------------------------

void ItemChoice::keyDown(KeyEvent& key) {
  if (grid_.row() < 1) return;
  if (const int group = groupOf(key); group >= 1 && group <= groups_) {
    markGroup(group);
  } else if (clears(key) && !mark().empty()) {
    mark({}, u"指定解除");
  } else if (key.mask == shift::None && isBetween(key.code, key::Digit0 + 1, key::Digit0 + groups_)) {
    host().beep();
    sayNow(Text(kKeypadHint));
  } else {
    return;
  }
  key.swallow();
}

void ItemChoice::keyUp(const KeyEvent& key) {
  if ((key.mask == shift::None || key.mask == shift::Ctrl) && movesRow(key.code)) talkGated(moveSentence());
}

void ItemChoice::markGroup(int group) {
  if (mark() == decimal(group)) return mark({}, u"指定解除");
  if (group == 2 && mayMarkSecond && !mayMarkSecond()) return;
  // Of one group any key on a marked row clears it; of two the other digit moves it over.
  if (groups_ == 1) return mark(u"1", u"指定");
  mark(decimal(group), group == 1 ? TextView(u"1 指定") : TextView(u"2　指定"));
}

void ItemChoice::pressed() {
  if (grid_.row() < 1) return;
  mark().empty() ? mark(u"1", groups_ == 1 ? TextView(u"指定") : TextView(u"1 指定")) : mark({}, u"指定ｶｲｼﾞｮ");
}

void ItemChoice::mark(TextView mark, TextView word) {
  grid_.setCellText(grid_.row(), kMarkCol, mark);
  sayNow(Text(word));
  fire(onMarked);
}

// --- Sentences -----------------------------------------------------------------------------------------------

Text ItemChoice::mark() const { return trimmed(grid_.cell(grid_.row(), kMarkCol)); }

Text ItemChoice::state() const {
  const Text mark = this->mark();
  if (mark.empty()) return u"指定ﾅｼ";
  if (groups_ == 1) return u"指定ずみ";
  return mark == u"1" ? Text(u"１　指定ずみ") : Text(u"2　指定ずみ");
}

Text ItemChoice::row() const { return state() + markPause + grid_.cell(grid_.row(), kItemCol); }

Text ItemChoice::focusSentence() const {
  return Text(kName) + markStop + Text(groups_ == 1 ? kOneGroup : kTwoGroups) + markStop + row();
}

// On a way through many items what is new comes first: the rest is known, and the next key cuts it off.
Text ItemChoice::moveSentence() const {
  return row() + markStop + Text(kName) + markStop + Text(groups_ == 1 ? kOneGroup : kTwoGroups);
}

}  // namespace zelko
