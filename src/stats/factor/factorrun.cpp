#include "stats/factor/factorrun.h"

#include "editor/main/commands.h"
#include "platform/text/number.h"
#include "stats/correlation/itemform.h"
#include "stats/correlation/serialitems.h"
#include "stats/factor/factorsolution.h"
#include "stats/frame/analysis.h"
#include "stats/frame/datamatrix.h"
#include "store/table/table.h"
#include "voice/dialogs.h"

namespace zelko {

namespace {

constexpr TextView kTitle = u"因子分析（主因子法）", kName = u"因子分析";
constexpr TextView kFinished =
    u"因子分析終了！結果ﾌｧｲﾙが表示されています.ｼﾌﾄ矢印ｷｰテキスト範囲指定操作で範囲部が読まれます。";
constexpr TextView kExplanation =
    u"指定項目間の積率相関係数を用い主成分法による因子分析を行います。指定ﾃﾞﾚｸﾄﾘの[KEKKA.TXT]に結果が得られます) "
    u".なおﾃﾞｰﾀ値０のサンプルはＮより排除され計算されます。";

void refuse(AnalysisRun& run, const Text& why) {
  run.refuse();
  showOK(why, u"ﾃﾞｰﾀの見直し");
}

// What speaks against the data; empty for nothing.
Text faultOf(const DataMatrix& read, const numbers::Covariance& basics, const ItemList& items) {
  if (read.data.rows < 2) return u"記録が1件だけなので、計算できません";
  if (basics.constantItem < 0) return {};
  const auto item = static_cast<std::size_t>(items[static_cast<std::size_t>(basics.constantItem)]);
  return u"項目" + decimal(static_cast<std::int64_t>(item)) + u":" + trimmed(itemName[item]) +
         u"の値がすべて同じなので、計算できません";
}

void runFactor(frmRP& form, const ItemList& items, const ItemList&) {
  AnalysisRun run(kTitle);
  if (!run.begin(kTitle)) return;
  const DataMatrix read = readDataMatrix(items, kName, TestedCells::all);
  if (read.bad) {
    return refuse(run, u"項目ﾃﾞｰﾀに数字以外のﾃﾞｰﾀがありました。ﾃﾞｰﾀをチェｯｸしなおしてください(記録" +
                           decimal(read.bad->record) + u"項目" + decimal(read.bad->item) + u")");
  }
  if (!read.whole) return analysisMode == u"BREAK" ? run.stop() : run.refuse();
  const numbers::Covariance basics = numbers::var(read.data);
  if (const Text fault = faultOf(read, basics, items); !fault.empty()) return refuse(run, fault);
  FactorSolution solution(run, read.data, basics, items);
  if (!solution.solve()) return run.stop();
  run.nameCells(solution.cellNames());
  run.finish(form, Text(kFinished) + solution.spokenFigures(), true);
}

}  // namespace

void registerFactor() {
  registerCommand(u"mnuFCTOR", [] {
    openItemForm({.word = u"FACTOR",
                  .caption = u"因子分析(主成分法)",
                  .explanation = Text(kExplanation),
                  .check = [](const ItemList& items) { return chkSerial(items, itemCount); },
                  .run = runFactor});
  });
}

}  // namespace zelko
