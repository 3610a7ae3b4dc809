#include "editor/ranges/rangeread.h"

#include <algorithm>
#include <string_view>

#include "editor/ranges/range.h"
#include "parts/cells.h"
#include "platform/forms/form.h"
#include "platform/text/number.h"
#include "platform/text/sjis.h"
#include "store/records/records.h"
#include "store/table/cursor.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr std::size_t kReadBuffer = 51000;  // bytes
constexpr int kDataFile = 1;

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

// The record as it stands on disk, in the scratch row.
const CacheRow& readRecord(std::int32_t record) {
  getRec(kDataFile, record, recCache[0]);
  return recCache[0];
}

Text stretch(const CacheRow& row, const RangeBlock& block) {
  const int start = std::clamp(itemStart[at(block.item1)] - 1, 0, kDataBytes);
  const int end = std::clamp(itemStart[at(block.item2)] - 1 + itemWidth[at(block.item2)], start, kDataBytes);
  const std::string_view bytes(row.data(), row.size());
  return trimmed(fromSjis(bytes.substr(static_cast<std::size_t>(start), static_cast<std::size_t>(end - start))));
}

Text dataOfRange() {
  const RangeBlock block = heldBlock();
  Reading reading;
  for (std::int32_t record = block.rec1; record <= block.rec2; ++record) {
    const CacheRow& row = readRecord(record);
    Text words = u" ｷﾞｮｳ" + decimal(record) + u" ";
    for (int item = block.item1; item <= block.item2; ++item) words += trimmed(cellOfRow(row, item)) + u" ";
    if (!reading.add(words)) break;
  }
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
  for (std::int32_t record = block.rec1; record <= block.rec2; ++record) {
    const Text words = stretch(readRecord(record), block);
    if (!reading.add(record == block.rec1 ? words : u"次記録" + words)) break;
  }
  Text data = reading.text();
  if (data.empty()) data = u"ブランク";
  talkNow(data + (rangeKind == 1 ? u"たいかく範囲あり" : u""));
}

}  // namespace zelko
