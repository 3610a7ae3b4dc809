#include "editor/ranges/rangeread.h"

#include <algorithm>
#include <string_view>

#include "editor/ranges/range.h"
#include "parts/cells.h"
#include "platform/forms/form.h"
#include "platform/text/number.h"
#include "platform/text/sjis.h"
#include "store/records/walk.h"
#include "store/table/cursor.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr std::size_t kReadBuffer = 51000;  // bytes

// Collects the words of one record after the other until the buffer is full.
class Reading {
 public:
  bool add(const Text& words) {
    text_ += words;
    bytes_ += sjisLength(words);
    if (bytes_ <= kReadBuffer) return true;
    text_ += u"50000文字の読み込みバッファがオーバしました";
    return false;
  }
  Text text() const { return text_; }

 private:
  Text text_;
  std::size_t bytes_ = 0;
};

std::size_t at(int item) { return static_cast<std::size_t>(item); }

// What was read up to a stop is said.
Walk walkOf(const RangeBlock& block) {
  return {.first = block.rec1, .last = block.rec2, .work = u"範囲読み上げ準備中"};
}

Text stretch(std::string_view bytes, const RangeBlock& block) {
  const int start = std::clamp(itemStart[at(block.item1)] - 1, 0, kDataBytes);
  const int end = std::clamp(itemStart[at(block.item2)] - 1 + itemWidth[at(block.item2)], start, kDataBytes);
  return trimmed(fromSjis(bytes.substr(static_cast<std::size_t>(start), static_cast<std::size_t>(end - start))));
}

Text dataOfRange() {
  const RangeBlock block = heldBlock();
  Reading reading;
  walkRecords(walkOf(block), [&](const WalkedRecord& record) {
    Text words = u" ｷﾞｮｳ" + decimal(record.number()) + u" ";
    for (int item = block.item1; item <= block.item2; ++item) words += record.trimmedCell(item) + u" ";
    return reading.add(words);
  });
  return reading.text();
}

Text cornersOfRectangle() {
  return u"．ﾞｮｳ" + decimal(rangeRec1) + u"から" + decimal(rangeRec2) + u" および" + u".ｺｳﾓｸ" + decimal(rangeItem1) +
         u"から" + decimal(rangeItem2) + u"のﾀｲｶｸﾊﾝｲ指定ずみ";
}

Text stateOfRange() {
  Text cell = currentCell();
  if (cell.empty()) cell = u"ブランク";
  const Text now = u"．今のセルデータは" + cell;
  const Text head = u"ﾊﾝｲ指定中";
  if (rangeKind == 2)
    return head + u".ｷﾞｮｳ" + cell + u"ｷﾞｮｳ" + decimal(curRec) + now + u"．ｷﾞｮｳ" + decimal(rangeRec1) + u"から" +
           decimal(rangeRec2) + u"指定ずみ";
  if (rangeKind == 3)
    return head + u".ｺｳﾓｸ" + cell + u"ｺｳﾓｸ" + decimal(curItem) + now + u"．ｺｳﾓｸ" + decimal(rangeItem1) + u"から" +
           decimal(rangeItem2) + u"指定ずみ";
  return head + u".ﾀｲｶｸ" + cell + u"ｷﾞｮｳ" + decimal(curRec) + u" ｺｳﾓｸ" + decimal(curItem) + u" " + now +
         cornersOfRectangle();
}

Text sentenceOf(int number) {
  if (number == 2) return dataOfRange();
  if (number == 3) return u"矢印操作、ctrl+矢印操作やctrl+Jなどの、ジャンプ操作で、範囲を指定ｼﾃｸﾀﾞｻｲ。";
  return stateOfRange();
}

}  // namespace

void RangeYOMi(int number) {
  if (number == 4) return talkRange();
  if (number == 1 || number == 5) return talkCell();
  if (talkMode != 0) talkNow(composed(screen().activeForm(), sentenceOf(number)));
}

void rangeReadAloud() {
  if (talkMode == 0) return;
  const RangeBlock block = heldBlock();
  Reading reading;
  walkRecords(walkOf(block), [&](const WalkedRecord& record) {
    const Text words = stretch(record.bytes(), block);
    return reading.add(record.number() == block.rec1 ? words : u"次記録" + words);
  });
  Text data = reading.text();
  if (data.empty()) data = u"ブランク";
  talkNow(data + (rangeKind == 1 ? u"たいかく範囲あり" : u""));
}

}  // namespace zelko
