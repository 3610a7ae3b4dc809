#include "stats/cluster/clus.h"

#include "parts/ask/ask.h"
#include "platform/text/number.h"
#include "platform/text/numcheck.h"
#include "platform/text/printline.h"
#include "stats/cluster/clustertables.h"
#include "stats/cluster/dendrogramform.h"
#include "stats/cluster/mergewords.h"
#include "stats/frame/analysis.h"
#include "stats/frame/datamatrix.h"
#include "stats/frame/run.h"
#include "stats/numbers/distances.h"
#include "voice/dialogs.h"

namespace zelko {

namespace {

constexpr TextView kTitle = u"クラスタ分析";
constexpr int kLeast = 3;
constexpr double kLowestBeta = -1, kHighestBeta = 1;
constexpr TextView kEndedEarly = u"距離10000未満の組がないので、併合をここで終了しました";

using Items = std::vector<std::int16_t>;

Text faultOf(const BadCell& bad) {
  const bool isBlank = bad.check == kBlankCell;
  return Text(isBlank ? u"ファイルデータに未記入個所があります"
                      : u"ファイルデータに数字又は.以外のデータが記述されています") +
         u"(記録" + decimal(bad.record) + u"項目" + decimal(bad.item) + u")";
}

// What speaks against the cells; empty for nothing.
Text faultOf(const DataMatrix& read, bool isMatrix) {
  if (read.bad) return faultOf(*read.bad);
  if (read.data.rows < kLeast) return u"データの数が少なすぎます＞2のこと";
  if (read.data.columns < kLeast) return u"変数の数が少なすぎます＞2のこと";
  if (!isMatrix || read.data.rows == read.data.columns) return {};
  return u"距離マトリックスの記録数と項目数が違います(記録" + decimal(read.data.rows) + u"件、項目" +
         decimal(read.data.columns) + u")";
}

numbers::Matrix distancesOf(const numbers::Matrix& data, const ClusterChoice& choice) {
  switch (choice.distance) {
    case Distance::squared:
      return numbers::yuk(data);
    case Distance::standardised:
      return numbers::stYuk(data);
    case Distance::mahalanobis:
      return numbers::maha(data);
    case Distance::minkowski:
      return numbers::mink(data, choice.exponent);
    case Distance::matrix:
      break;
  }
  return numbers::lowerTriangle(data);
}

std::vector<Text> headOf(const Items& items, const ClusterChoice& choice) {
  Text list;
  for (const std::int16_t item : items) list += u"/" + decimal(item);
  std::vector<Text> lines{Text(kTitle), fileLine(),
                          PrintLine().text(u" 対象記録").number(firstRecord).text(u"～").number(lastRecord).line(),
                          u" 対象項目" + list, u" データ種類"};
  if (choice.distance == Distance::matrix) {
    lines.push_back(distanceName(choice));
  } else {
    lines.push_back(u"  素点");
    lines.push_back(u"  距離マトリクス算出方式：" + distanceName(choice));
  }
  lines.push_back(timeLine());
  lines.push_back(u"　クラスタリング法" + methodName(choice));
  lines.push_back({});
  return lines;
}

// The steps, the first one reported, with processOut 1 all of them. False where the user stopped it.
bool clustring(AnalysisRun& run, numbers::Clustering& clustering, int processOut) {
  run.compute(kTitle, clustering.objects());
  for (int step = 1; clustering.choose(); ++step) {
    if (!run.step(step)) return false;
    if (processOut == 1 || step == 1) {
      for (const Text& line : outResult(clustering)) run.report().line(line);
    }
    clustering.merge();
  }
  run.rest();
  return true;
}

// False, told, where no constant was given.
bool askBeta(ClusterChoice& choice) {
  const auto beta = askNumber({.prompt = u"可変法の定数(β)を入力してください", .title = u"可変法", .preset = u"-0.25"},
                              kLowestBeta, kHighestBeta);
  if (!beta) {
    talkBehindDialog(u"クラスタ分析を中止しました");
    return false;
  }
  choice.beta = *beta;
  return true;
}

Text spokenFigures(const numbers::Clustering& clustering, const MergeWords& words) {
  Text said = u"。記録" + decimal(words.objects()) + u"件、" + decimal(words.steps()) + u"段";
  if (words.steps() > 0) said += u"。最後わ" + words.step(words.steps());
  if (!clustering.complete()) said += u"。" + Text(kEndedEarly);
  return said;
}

// The report of data that nothing speaks against.
bool report(Form& form, const Items& items, const ClusterChoice& choice, const numbers::Matrix& data) {
  numbers::Clustering clustering(distancesOf(data, choice), choice.method, choice.beta);
  AnalysisRun run(kTitle);
  if (!run.beginBare()) return false;
  run.openWindow();
  run.lines(headOf(items, choice));
  if (!clustring(run, clustering, choice.processOut)) {
    run.stop();
    return false;
  }
  run.lines(outSry(clustering.merges()));
  if (!clustering.complete()) run.lines({Text(kEndedEarly)});
  const MergeWords words(clustering, firstRecord);
  if (choice.picture) dendr(choice, words);
  if (run.finish(form, finishedSentence(kTitle) + spokenFigures(clustering, words), true)) return true;
  unload<FrmDENDR>();
  return false;
}

}  // namespace

bool clus(Form& form, const Items& items, ClusterChoice choice) {
  const bool isMatrix = choice.distance == Distance::matrix;
  const DataMatrix read =
      readDataMatrix(items, kTitle, isMatrix ? TestedCells::lowerTriangle : TestedCells::all, numbers::kObjectLimit);
  if (!read.bad && !read.whole) return false;
  if (const Text fault = faultOf(read, isMatrix); !fault.empty()) {
    showOK(fault, u"クラスタ分析エラー");
    return false;
  }
  if (choice.method == numbers::Linkage::flexible && !askBeta(choice)) return false;
  return report(form, items, choice, read.data);
}

}  // namespace zelko
