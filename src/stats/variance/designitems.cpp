#include "stats/variance/designitems.h"

#include <algorithm>
#include <numeric>

#include "parts/ask/typed.h"
#include "platform/text/number.h"
#include "stats/frame/analysis.h"
#include "stats/numbers/anova.h"
#include "store/table/cursor.h"
#include "store/table/notice.h"
#include "store/table/table.h"
#include "voice/dialogs.h"

namespace zelko {

namespace {

constexpr std::int16_t kRectangle = 1, kWholeItems = 3;  // of rangeKind

struct ItemQuestion {
  TextView title, prompt;
};

constexpr ItemQuestion kValue = {u"分析対象項目の指定",
                                 u"対象となるデータの項目番号を指定してください。(ctrl+Lで項目選択できます)"};
constexpr ItemQuestion kFirstValue = {
    u"分析対象項目の指定",
    u"対象となるデータの先頭項目番号を指定してください。処理Bの水準1になります。(ctrl+Lで項目選択できます)"};
constexpr ItemQuestion kLastValue = {u"分析対象項目の指定",
                                     u"対象となるデータの最終項目番号を指定してください。(ctrl+Lで項目選択できます)"};
constexpr ItemQuestion kGroups[] = {
    {u"処理A群分け項目の指定",
     u"処理A群の帰属を示す項目番号を指定してください。群分けデータは1-255の連続するデータであること(ctrl+"
     u"Lで項目選択できます)"},
    {u"処理B群分け項目の指定",
     u"処理B群の帰属を示す項目番号を指定してください。群分けデータは1-255の連続するデータであること(ctrl+"
     u"Lで項目選択できます)"},
    {u"処理C群分け項目の指定",
     u"処理C群の帰属を示す項目番号を指定してください。群分けデータは1-255の連続するデータであること(ctrl+"
     u"Lで項目選択できます)"}};
constexpr ItemQuestion kSubject = {
    u"被験者(C)番号項目の指定",
    u"被験者(C)番号を示す項目番号を指定してください。被験者番号は1より順に割り当てられていること。"};

constexpr TextView kOutOfRange = u"1以上、項目数範囲の値を入力してください";

void refuse(TextView text) { tellFailure(text, u"再入力"); }

// Why this item can't be the next factor; empty where it can.
TextView clash(const DesignItems& chosen, std::int16_t item) {
  if (chosen.values.holds(item)) return u"分析対象項目に含まれます";
  if (std::find(chosen.groups.begin(), chosen.groups.end(), item) == chosen.groups.end()) return {};
  return chosen.groups.size() == 1 ? TextView(u"処理A帰属指定項目と同じです")
                                   : TextView(u"処理A又は処理B帰属指定項目と同じです");
}

std::optional<std::int16_t> ask(const ItemQuestion& question, std::int16_t lowest) {
  for (;;) {
    const Text answer = typedCode(talkAsk(question.prompt, question.title, {}));
    if (answer.empty()) return std::nullopt;
    if (const auto item = typedItem(answer, lowest)) return item;
    refuse(typedItem(answer, 1) ? Text(u"先頭項目より後の項目番号を入力してください") : Text(kOutOfRange));
  }
}

bool askGroup(const ItemQuestion& question, DesignItems& chosen) {
  for (;;) {
    const auto item = ask(question, 1);
    if (!item) return false;
    const TextView why = clash(chosen, *item);
    if (why.empty()) {
      chosen.groups.push_back(*item);
      return true;
    }
    refuse(why);
  }
}

bool askValues(AskedValues values, ItemSpan& chosen) {
  const auto first = ask(values == AskedValues::run ? kFirstValue : kValue, 1);
  if (!first) return false;
  const auto last =
      values == AskedValues::run ? ask(kLastValue, static_cast<std::int16_t>(*first + 1)) : std::optional(*first);
  if (!last) return false;
  chosen = {*first, *last};
  return true;
}

}  // namespace

ItemSpan itemsOfRange() {
  if (rangeKind != kRectangle && rangeKind != kWholeItems) return {1, itemCount};
  const auto [first, last] = std::minmax(rangeItem1, rangeItem2);
  return {std::max<std::int16_t>(first, 0), std::min(last, itemCount)};
}

std::vector<std::int16_t> listOf(const ItemSpan& items) {
  std::vector<std::int16_t> list(static_cast<std::size_t>(std::max(items.count(), 0)));
  std::iota(list.begin(), list.end(), items.first);
  return list;
}

bool beginVariance() {
  if (!beginAnalysis(RangeTest::bothEnds)) return false;
  if (lastRecord - firstRecord + 1 <= static_cast<std::int32_t>(numbers::kAnovaRowLimit)) return true;
  tellFailure(u"データ数(行数）は600以内にしてください", u"確認");
  return false;
}

std::optional<DesignItems> askDesignItems(AskedValues values, ThirdFactor third) {
  DesignItems chosen;
  if (!askValues(values, chosen.values) || !askGroup(kGroups[0], chosen)) return std::nullopt;
  if (values == AskedValues::run) return chosen;
  if (!askGroup(kGroups[1], chosen)) return std::nullopt;
  if (third == ThirdFactor::none) return chosen;
  if (!askGroup(third == ThirdFactor::subject ? kSubject : kGroups[2], chosen)) return std::nullopt;
  return chosen;
}

Text itemWords(std::int16_t item) { return decimal(item) + u":" + trimmed(itemName[static_cast<std::size_t>(item)]); }

Text itemWords(const ItemSpan& items) {
  return items.count() == 1 ? itemWords(items.first) : itemWords(items.first) + u"～" + itemWords(items.last);
}

}  // namespace zelko
