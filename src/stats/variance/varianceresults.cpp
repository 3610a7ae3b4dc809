#include "stats/variance/varianceresults.h"

#include "platform/text/number.h"
#include "platform/text/printline.h"
#include "stats/frame/analysis.h"
#include "stats/numbers/anova2.h"
#include "stats/numbers/anova3.h"
#include "store/table/notice.h"
#include "store/table/table.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr TextView kEqual = u"被験者数各群同数", kUnequal = u"被験者数各群異なる";

// What a line of the report tells of items and records, the numbers in front.
Text numbered(std::int32_t first, std::int32_t last, TextView what) {
  return PrintLine().number(first).text(u"～").number(last).text(what).line();
}

Text fileWords() { return u"ファイル" + docPath.substr(docPath.rfind(u'/') + 1); }

Text records(TextView what) { return numbered(firstRecord, lastRecord, what); }

Text counted(std::size_t groups, TextView unit, int values) {
  return decimal(static_cast<std::int64_t>(groups)) + Text(unit) + u"、ﾃﾞｰﾀｽｳ" + decimal(values);
}

VarianceResult rangeResult(TextView title, const ItemSpan& items, TextView columns, TextView rows) {
  VarianceResult result;
  result.title = title;
  result.about = {fileWords(), numbered(items.first, items.last, columns), records(rows)};
  return result;
}

// "処理A帰属指定項目" with the item in front.
Text groupLine(std::int16_t item, TextView factor) {
  return itemWords(item) + u"..処理" + Text(factor) + u"帰属指定項目";
}

struct ThreeWayWords {
  TextView title, spoken;
  std::vector<TextView> about;
  TextView denominators;
};

ThreeWayWords wordsOf(ThreeWayDesign design) {
  switch (design) {
    case ThreeWayDesign::treatments:
      return {u"三元配置 処理×処理×処理　", u"三元配置、処理、処理、処理", {}, u"F値の分母は誤差の平均平方"};
    case ThreeWayDesign::sameSubjects:
      return {u"三元配置 処理A×処理B×被験者C　",
              u"三元配置、処理A、処理B、被験者C、同一被験者",
              {u"　　　処理A、B各水準に同一被験者が使われる場合"},
              u"主効果AおよびBのF値算出時の分母はそれぞれACおよびBCの平均平方"};
    case ThreeWayDesign::otherSubjects:
      return {u"三元配置 処理A×処理B×被験者C　",
              u"三元配置、処理A、処理B、被験者C、異なる被験者",
              {u"　　　処理A各水準に異なる被験者が使われる場合",
               u"　　　　cf.実験群とコントロール群(処理A)の学習試行(処理B)等の実験に適合"},
              u"A主効果のF値算出の分母は処理Cの平均平方.BとABではBCの平均平方"};
    case ThreeWayDesign::replicated:
      break;
  }
  return {u"三元配置 処理×処理×処理(実験セル内複数Ss)　",
          u"三元配置、処理、処理、処理、実験セル内複数",
          {},
          u"F値の分母はｾﾙ内誤差の平均平方"};
}

numbers::ThreeWay analysed(ThreeWayDesign design, const DesignRead& read) {
  const std::vector<double>& values = read.values.cells;
  const auto& [a, b, c] = read.groups;
  switch (design) {
    case ThreeWayDesign::treatments:
      return numbers::threeWaySingle(values, a, b, c);
    case ThreeWayDesign::sameSubjects:
      return numbers::threeWaySubjects(values, a, b, c);
    case ThreeWayDesign::otherSubjects:
      return numbers::threeWayNested(read.values, a);
    case ThreeWayDesign::replicated:
      break;
  }
  return numbers::threeWayReplicated(values, a, b, c);
}

std::vector<VarianceRow> treatmentRows(ThreeWayDesign design, const numbers::ThreeWay& table) {
  std::vector<VarianceRow> rows = {{u"処理A主効果      ", {}, table.a}, {u"処理B主効果      ", {}, table.b},
                                   {u"処理C主効果      ", {}, table.c}, {u"処理A×B交互作用 ", {}, table.ab},
                                   {u"処理A×C交互作用 ", {}, table.ac}, {u"処理B×C交互作用 ", {}, table.bc}};
  if (design == ThreeWayDesign::replicated) {
    rows.push_back({u"処理A×B×C交互作用 ", {}, table.abc});
    rows.push_back({u"細胞内誤差(個体差)", {}, table.error});
  } else {
    rows.push_back({u"誤差            ", {}, table.error});
  }
  rows.push_back({u"全体            ", {}, table.total, true});
  return rows;
}

std::vector<VarianceRow> subjectRows(ThreeWayDesign design, const numbers::ThreeWay& table) {
  const bool nested = design == ThreeWayDesign::otherSubjects;
  std::vector<VarianceRow> rows = {{u"処理A主効果         ", {}, table.a},
                                   {u"処理B主効果         ", {}, table.b},
                                   {nested ? TextView(u"個体差C         ") : u"被験者(C)       ", {}, table.c},
                                   {u"処理A×B交互作用    ", {}, table.ab}};
  if (table.ac.present) rows.push_back({u"処理A×C交互作用    ", {}, table.ac});
  rows.push_back({u"処理B×C交互作用    ", {}, table.bc});
  rows.push_back({u"全体               ", {}, table.total, true});
  return rows;
}

}  // namespace

Text selectionWords() {
  takeAnalysisRange(RangeTest::bothEnds);
  return u"項目" + itemWords(itemsOfRange()) + markPause + u"記録" + decimal(firstRecord) + u"～" + decimal(lastRecord);
}

bool groupsFit(const ItemSpan& items) {
  if (items.count() >= 2) return true;
  tellFailure(u"項目が2つ以上必要です。項目の範囲を指定しなおしてください。", u"確認");
  return false;
}

bool rowsFit() {
  if (lastRecord > firstRecord) return true;
  tellFailure(u"記録が2つ以上必要です。記録の範囲を指定しなおしてください。", u"確認");
  return false;
}

VarianceResult oneWayResult(const ItemSpan& items, const std::vector<std::vector<double>>& groups, bool unequal) {
  const numbers::OneWay table = numbers::oneWay(groups);
  VarianceResult result = rangeResult(u"一元配置 ", items, u"項目=実験群", u"行=被験者");
  result.spokenTitle = u"一元配置、" + counted(groups.size(), u"群", table.total.df + 1);
  result.about.push_back(Text(unequal ? kUnequal : kEqual));
  result.rows = {{u"級間(列：実験群)  ", u"級間（列:実験変数）", table.between},
                 {u"級内(行：被験者)  ", u"級内（行:被験体）", table.within},
                 {u"     全体　　　　 ", {}, table.total, true}};
  return result;
}

VarianceResult trialsResult(const ItemSpan& items, const numbers::Matrix& values) {
  const numbers::TwoWay table = numbers::twoWay(values);
  VarianceResult result =
      rangeResult(u"二元配置 被験体×処理　練習､時間効果など", items, u"項目=試行、練習、疲労など", u"行=被験者");
  result.spokenTitle = u"二元配置、被験体と処理、" + decimal(values.columns) + u"列" + decimal(values.rows) + u"行";
  result.rows = {{u"処理(列：実験群)  ", {}, table.a, false, u"(列-1)"},
                 {u"個体(行：被験者)  ", {}, table.b, false, u"(行-1)"},
                 {u"残差             ", {}, table.error, false, u"([行-1]×[列-1])"},
                 {u"     全体  　　　 ", {}, table.total, true, u"(行×列-1)"}};
  return result;
}

VarianceResult crossedResult(const ItemSpan& items, const numbers::Matrix& values) {
  VarianceResult result = trialsResult(items, values);
  const VarianceResult crossed =
      rangeResult(u"二元配置 処理×処理ｾﾙ内検体が1", items, u"項目=処理A水準", u"行=処理B水準");
  result.title = crossed.title;
  result.about = crossed.about;
  result.spokenTitle = u"二元配置、処理と処理、" + decimal(values.columns) + u"列" + decimal(values.rows) + u"行";
  result.rows[0].name = u"処理A：列 ";
  result.rows[1].name = u"処理B：行  ";
  return result;
}

VarianceResult cellsResult(const DesignItems& items, const DesignRead& read, bool unequal) {
  const numbers::TwoWay table = numbers::twoWayCells(read.values.cells, read.groups[0], read.groups[1]);
  VarianceResult result;
  result.title = u"二元配置 処理×処理ｾﾙ内検体が複数";
  result.spokenTitle = u"二元配置、処理と処理、ｾﾙ内検体が複数、ﾃﾞｰﾀｽｳ" + decimal(read.values.rows);
  result.about = {fileWords(),
                  records(u"..処理対象記録"),
                  itemWords(items.values) + u"..処理対象項目",
                  groupLine(items.groups[0], u"A"),
                  groupLine(items.groups[1], u"B"),
                  Text(unequal ? kUnequal : kEqual)};
  result.rows = {{u"処理A       ", {}, table.a, false, {}, u"=処理A平均平方/セル内誤差平均平方"},
                 {u"処理B       ", {}, table.b, false, {}, u"=処理B平均平方/セル内誤差平均平方"},
                 {u"交互作用A×B ", {}, table.ab, false, {}, u"=交互作用AB平均平方/セル内誤差平均平方"},
                 {u"セル内誤差   ", {}, table.error},
                 {u"全体        ", {}, table.total, true}};
  return result;
}

VarianceResult threeWayResult(ThreeWayDesign design, const DesignItems& items, const DesignRead& read) {
  const ThreeWayWords words = wordsOf(design);
  const numbers::ThreeWay table = analysed(design, read);
  const bool subjects = design == ThreeWayDesign::sameSubjects, nested = design == ThreeWayDesign::otherSubjects;
  VarianceResult result;
  result.layout = VarianceLayout::figures;
  result.title = words.title;
  result.spokenTitle = Text(words.spoken) + u"、ﾃﾞｰﾀｽｳ" + decimal(table.total.df + 1);
  for (const TextView line : words.about) result.about.emplace_back(line);
  result.about.push_back(records(u"..処理対象記録"));
  result.about.push_back(itemWords(items.values) + (nested ? u"..処理対象項目(処理B）" : u"..処理対象項目"));
  result.about.push_back(groupLine(items.groups[0], u"A"));
  if (!nested) {
    result.about.push_back(groupLine(items.groups[1], u"B"));
    result.about.push_back(subjects ? itemWords(items.groups[2]) + u"..被験者(C)番号項目"
                                    : groupLine(items.groups[2], u"C"));
  }
  result.rows = subjects || nested ? subjectRows(design, table) : treatmentRows(design, table);
  result.denominators = words.denominators;
  return result;
}

}  // namespace zelko
