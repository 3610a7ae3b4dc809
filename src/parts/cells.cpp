#include "parts/cells.h"

#include <algorithm>

#include "platform/text/number.h"
#include "platform/text/sjis.h"
#include "store/records/records.h"
#include "store/table/cursor.h"
#include "voice/names.h"
#include "voice/talk.h"

namespace zelko {

namespace {

// A last cell that reaches over the end of its line holds that too, which is nothing to be heard.
Text cellOf(int item) {
  Text cell = cellOfRow(rowOf(curRec), item);
  while (cell.ends_with(u'\r') || cell.ends_with(u'\n')) cell.pop_back();
  return trimmed(cell);
}

Text orWord(Text text, TextView word) { return text.empty() ? Text(word) : text; }

std::size_t at(int item) { return static_cast<std::size_t>(item); }

Text recordNumber() { return decimal(curRec); }
Text itemNumber() { return decimal(curItem); }
Text nameOfItem() { return trimmed(itemName[at(curItem)]); }

Text alwaysDisplayed() {
  if (!spItemIsRead || spItem >= kMaxItems) return {};
  const Text cell = cellOf(spItem);
  return cell.empty() ? cell : markPause + cell;
}

Text placeWord() {
  const std::int32_t count = recCount();
  if (curRec > count) return u"､新規ｷﾞｮｳです";
  if (curRec == count) return u"､最終ｷﾞｮｳです";
  return curRec == 1 ? u"､先頭ｷﾞｮｳです" : u"";
}

// The bytes from the first of two items to the end of the last, whichever the range was begun with.
Text heldStretch(const CacheRow& row) {
  const auto [first, last] = std::minmax(rangeItem1, rangeItem2);
  const std::string_view bytes(row.data(), row.size());
  const auto start = static_cast<std::size_t>(std::max(itemStart[at(first)] - 1, 0));
  const auto end = static_cast<std::size_t>(std::max(itemStart[at(last)] - 1 + itemWidth[at(last)], 0));
  if (start >= bytes.size() || end <= start) return {};
  return fromSjis(bytes.substr(start, end - start));
}

void say(Text sentence) {
  ++composedSentences;
  talkNow(sentence);
}

}  // namespace

Text currentCell() { return cellOf(curItem); }

void talkCell() {
  if (!gateOpens()) return;
  say(orWord(currentCell(), u"ブランク") + markStop + u"ギョウ" + recordNumber() + u" 項目" + itemNumber() +
      nameOfItem());
}

void talkRange() {
  if (!gateOpens()) return;
  const CacheRow row = rowOf(curRec);
  const Text head = markStop + u"ギョウ" + recordNumber() + u" ";
  const bool itemsHeld = rangeKind != 0 && rangeKind != 2;
  say(itemsHeld ? head + heldStretch(row) + u"ｺｳﾓｸﾊﾝｲ指定ｱﾘ" : head + trimmed(fromSjis(rowBytes(row))));
}

void announceCell() {
  if (!gateOpens()) return;
  Text sentence = orWord(currentCell(), u"ﾌﾞﾗﾝｸ");
  if (talkMode == 2) sentence += u"  ｷﾞｮｳ" + recordNumber() + u" ｺｳﾓｸ" + itemNumber() + nameOfItem();
  say(sentence + alwaysDisplayed());
}

Text stateReport(TextView inputText) {
  return u"項目" + itemNumber() + u"､" + nameOfItem() + u"｡既存データ " + orWord(currentCell(), u"ブランク") +
         u"､入力ボックスは､" + orWord(Text(inputText), u"ブランク") + placeWord() + u"､ｷﾞｮｳ" + recordNumber() +
         u"､ｾﾞﾝｷﾞｮｳｽｳﾊ" + decimal(recCount()) + u"､ﾌｧｲﾙ名は" + docPath;
}

void talkReturn(TextView head, TextView recordBox, TextView itemBox) {
  if (!gateOpens()) return;
  Text sentence(head);
  if (talkMode == 2) sentence += u"ギョウ" + Text(recordBox) + u"/項目" + Text(itemBox) + u"/";
  say(sentence + currentCell() + markPause + u"データ入力" + u"ﾃｷｽﾄﾎﾞｯｸｽ");
}

Text bytesLeft(TextView text) {
  return u" ざん" + decimal(itemWidth[at(curItem)] - static_cast<std::int64_t>(sjisLength(text))) + u"バイト";
}

Text diffTalk(TextView before, TextView after) { return diffText(before, after) + bytesLeft(after); }

}  // namespace zelko
