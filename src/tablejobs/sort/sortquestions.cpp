#include "tablejobs/sort/sortquestions.h"

#include <algorithm>

#include "parts/ask/ask.h"
#include "platform/text/number.h"
#include "store/records/records.h"
#include "store/table/cursor.h"
#include "voice/dialogs.h"

namespace zelko {

namespace {

constexpr std::int16_t kRecords = 2;  // rangeKind

}  // namespace

RecordSpan recordsToSort() {
  if (rangeKind != kRecords) return {1, recCount()};
  return {std::min(rangeRec1, rangeRec2), std::min(std::max(rangeRec1, rangeRec2), recCount())};
}

bool confirmSort() {
  if (rangeKind != kRecords) {
    return askOK(
        u"ｷｰ項目のﾃﾞｰﾀに従って全記録（行）を並べ替えます。\r"
        u"もし、並べ替えの記録範囲を特定したいなら。前もってshift+ctrl+"
        u"↑↓で範囲指定した後、本メニューを再度選択してくださ"
        u"い。",
        u"全記録の並べ替え");
  }
  const RecordSpan span = recordsToSort();
  return askOK(
      u"ｷｰ項目のﾃﾞｰﾀに従って" + decimal(span.first) + u"～" + decimal(span.last) + u"記録（行）を並べ替えます。",
      u"指定範囲の記録の並べ替え");
}

std::optional<SortKey> askSortKey(TextView directionQuestion) {
  Question question{u"キー項目番号を入力して下さい。", u"並べ替えｷｰ項目の指定", decimal(curItem)};
  for (;;) {
    const auto item = askItem(question);
    if (!item) return std::nullopt;
    askYesNo(directionQuestion, {});
    if (msgAnswer != kCancel) return SortKey{*item, msgAnswer == kYes};
    question.preset = decimal(*item);
  }
}

Text sortedWords(JobEnd end, std::int32_t records) {
  switch (end) {
    case JobEnd::done:
      return decimal(records) + u"記録の並べ替えが終わりました。";
    case JobEnd::stopped:
      return u"中止しました。途中まで並べ替えてあります。記録はすべて残っています。";
    default:
      return u"並べ替えは行われませんでした。";
  }
}

void leaveSort() { endJob(JobEnd::done, false, {}); }

}  // namespace zelko
