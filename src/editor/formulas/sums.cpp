#include "editor/formulas/sums.h"

#include <algorithm>
#include <cmath>

#include "editor/formulas/formulaform.h"
#include "editor/main/commands.h"
#include "editor/main/inputbox.h"
#include "editor/main/state.h"
#include "parts/ask/typed.h"
#include "platform/host.h"
#include "platform/text/number.h"
#include "platform/text/sjis.h"
#include "store/records/records.h"
#include "store/records/walk.h"
#include "store/table/cursor.h"
#include "store/table/notice.h"
#include "voice/dialogs.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr double kToClipboard = 99999;

// What is added up, and how its sentences name it.
struct Sum {
  Text title;      // "横合計"
  Text rangeHead;  // "指定項目範囲("
  Text openHead;   // "項目1～"
  std::int32_t first, last;
  double value = 0;
};

Text spanOf(const Sum& sum) {
  if (rangeKind != 0) return sum.rangeHead + decimal(sum.first) + u"～ " + decimal(sum.last) + u")の";
  return sum.openHead + decimal(sum.last) + u"の";
}

// The questions of a sum that fits the cell, and of one that does not.
Text question(const Sum& sum, const Text& digits, bool fits) {
  const bool clipboard = sumMark == kToClipboard;
  const Text done = sum.title + u"計算しました。";
  if (!fits)
    return (clipboard ? done + u"クリップボードへコピーしますか？"
                      : done + u"結果は規定の表示巾を越しています。今のセルに記入しますか?") +
           u"\r合計=" + digits;
  return done + spanOf(sum) + u"合計=" + digits + u"\r" +
         (clipboard ? u"クリップボードにコピーしますか？" : u"今のセルに記入しますか?");
}

// The first `width` bytes of the digits with "%" behind them.
Text cutToWidth(const Text& digits, int width) {
  return fromSjis(toSjis(digits + u"%").substr(0, static_cast<std::size_t>(width)));
}

// True where the sum is now on the clipboard.
bool offer(const Sum& sum) {
  const Text digits = trimmed(str(sum.value));
  const int width = itemWidth[static_cast<std::size_t>(curItem)];
  const bool fits = static_cast<int>(sjisLength(digits)) <= width;
  if (!askYesNo(question(sum, digits, fits), sum.title)) {
    emptyInputBox();
    return false;
  }
  if (sumMark == kToClipboard) {
    userClip = digits;
    putForUser(digits);
    return true;
  }
  if (!fits && !askOK(u"合計=" + digits, u"横合計　項目幅超過"))
    emptyInputBox();
  else
    fillInputBox(fits ? digits : cutToWidth(digits, width));
  return false;
}

// False where the cell, or the sum with it, is beyond the numbers that can be held.
bool add(Sum& sum, TextView cell) {
  const auto value = typedVal(cell);
  sum.value += value.value_or(0);
  return value && std::isfinite(sum.value);
}

bool tellTooLarge(std::int32_t record, int item) {
  tellFailure(u"記録" + decimal(record) + u"、項目" + decimal(item) + u"の数値が大きすぎて、計算できません",
              u"error in atai");
  return false;
}

bool rowSum() {
  Sum sum{u"横合計", u"指定項目範囲(", u"項目1～", 1, curItem - 1};
  if (rangeKind != 0) {
    sum.first = std::min(rangeItem1, rangeItem2);
    sum.last = std::max(rangeItem1, rangeItem2);
  }
  for (std::int32_t item = sum.first; item <= sum.last; ++item)
    if (!add(sum, cellOfRow(currentRow(), item))) return tellTooLarge(curRec, item);
  return offer(sum);
}

bool columnSum() {
  Sum sum{u"縦合計", u"指定行範囲(", u"行1～", 1, curRec - 1};
  if (rangeKind != 0) {
    sum.first = std::min(rangeRec1, rangeRec2);
    sum.last = std::max(rangeRec1, rangeRec2);
  } else if (curRec < 2) {
    host().beep();
    return false;
  }
  const Walk walk{.first = sum.first, .last = sum.last, .work = u"縦合計計算中"};
  std::int32_t tooLarge = 0;
  const WalkEnd end = walkRecords(walk, [&](const WalkedRecord& record) {
    if (add(sum, record.cell(curItem))) return true;
    tooLarge = record.number();
    return false;
  });
  if (tooLarge != 0) return tellTooLarge(tooLarge, curItem);
  if (end == WalkEnd::done) return offer(sum);
  if (end == WalkEnd::stopped) talkBehindDialog(u"縦合計を中止しました");
  if (end == WalkEnd::failed) tellFailure(u"記録が読めません。", u"ファイル読み込みエラー");
  return false;
}

}  // namespace

int sumKeyOf(const KeyEvent& key) {
  if (key.mask != shift::Ctrl) return 0;
  if (key.code >= key::Num0 && key.code <= key::Num0 + 9) return key.code;
  const bool upperRow = key.code >= key::Digit0 && key.code <= key::Digit0 + 9;
  return upperRow ? key.code - key::Digit0 + key::Num0 : 0;
}

void sumKey(int code) {
  if (code == key::Num0) return void(rowSum());
  if (code == key::Num0 + 1) return void(columnSum());
  if (code == key::Num0 + 2) return runCommand(u"mnuHENSA");
  if (code > key::Num0 + 2 && code <= key::Num0 + 9) return formulaKey(code);
  host().beep();
}

bool sumKeyOnRange(int code) {
  const double kept = sumMark;
  sumMark = kToClipboard;
  const bool copied = code == key::Num0 ? rowSum() : columnSum();
  sumMark = kept;
  return copied;
}

}  // namespace zelko
