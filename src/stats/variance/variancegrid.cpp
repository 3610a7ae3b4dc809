#include "stats/variance/variancegrid.h"

#include "parts/job/editorhooks.h"
#include "parts/report/report.h"
#include "platform/host.h"
#include "platform/text/daytime.h"
#include "stats/frame/analysis.h"
#include "stats/frame/outputfolder.h"
#include "voice/dialogs.h"
#include "voice/heard.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr TextView kNoResult = u"まだ結果がありません";
constexpr std::size_t kHeadRule = 48;

// Until there is a result the columns stand as wide as one will be, so that the window has room for it.
constexpr int kWaitingWidths[kVarianceColumns] = {0, 22, 22, 28, 32};
constexpr int kCharacterTwips = 120;

// The designs with three factors begin with their name, as the other analyses do; the others with a ruled head.
void writeHead(Report& report, const VarianceResult& result) {
  if (result.layout == VarianceLayout::figures) return report.head(result.title);
  const DateTime now = host().now();
  const Text rule(kHeadRule, u'-');
  report.line(rule);
  report.line(PrintLine().text(shortDate(now)).zone().text(shortTime(now)).text(u" " + result.title));
  report.line(rule);
}

}  // namespace

VarianceGrid::VarianceGrid(Form& form, Grid& grid, Button& report, Button& folder, Button& stop, int rows)
    : form_(form), grid_(grid), leastRows_(rows), folder_(appDir) {
  grid_.screenName = u"分散分析表";
  grid_.onRowColChange = [this] { moved(); };
  report.onClick = [this] { writeReport(); };
  folder.onClick = [this] { chooseFolder(); };
  stop.onClick = [this] { leave(); };
  stop.isCancel = true;
  form_.onClose = [this] { leave(); };
  form_.onKeyDown = [this](KeyEvent& key) {
    if (!key.is(key::PageDown, shift::Ctrl)) return;
    key.swallow();
    sayResult();
  };
  clear();
  for (int col = 1; col < kVarianceColumns; ++col) grid_.setColWidth(col, kWaitingWidths[col] * kCharacterTwips);
}

void VarianceGrid::narrate(Narration& voice) {
  voice.say(grid_, [this] { return focusSentence(); });
}

void VarianceGrid::clear() {
  filling_ = true;
  result_.reset();
  grid_.setRows(1);
  grid_.setRows(leastRows_);
  grid_.setCols(kVarianceColumns);
  for (int col = 0; col < kVarianceColumns; ++col) grid_.setCellText(0, col, varianceColumn(col));
  grid_.setCell(1, 1);
  rowBefore_ = 1;
  filling_ = false;
}

void VarianceGrid::show(VarianceResult result) {
  clear();
  filling_ = true;
  grid_.setRows(static_cast<int>(result.rows.size()) + 1);
  for (int col = 1; col < kVarianceColumns; ++col) grid_.setColWidth(col, 0);
  int row = 0;
  for (const VarianceRow& source : result.rows) {
    ++row;
    int col = 0;
    for (const Text& cell : gridCells(source, result.layout)) grid_.setCellText(row, col++, cell);
  }
  filling_ = false;
  result_ = std::move(result);
  ran_ = true;
  {
    const Silence silence;
    grid_.setFocus();
  }
  talkBehindDialog(resultSentence(*result_));
}

void VarianceGrid::end(ReadEnd end) {
  if (end == ReadEnd::stopped) talkBehindDialog(u"分散分析を中止しました");
}

Text VarianceGrid::cellSentence() const {
  const Text cell = grid_.text();
  return grid_.cell(0, grid_.col()) + markPause + (cell.empty() ? Text(u"ブランク") : cell);
}

Text VarianceGrid::focusSentence() const {
  if (!result_) return u"分散分析表ｸﾞﾘｯﾄﾞ" + markStop + Text(kNoResult);
  return u"分散分析表ｸﾞﾘｯﾄﾞ" + markStop + grid_.cell(grid_.row(), 0) + markPause + cellSentence() + markStop +
         u"矢印ｷｰで表のｾﾙ、ctrl+ﾍﾟｰｼﾞﾀﾞｳﾝで結果が読まれます";
}

void VarianceGrid::moved() {
  if (filling_) return;
  const bool newRow = grid_.row() != rowBefore_;
  rowBefore_ = grid_.row();
  if (!result_) return talkGated(kNoResult);
  talkGated((newRow ? grid_.cell(grid_.row(), 0) + markPause : Text()) + cellSentence());
}

void VarianceGrid::sayResult() {
  if (!result_) host().beep();
  talkGated(result_ ? resultSentence(*result_) : Text(kNoResult));
}

void VarianceGrid::chooseFolder() {
  analysisMode = u"BUNSAN";
  chooseResultFolder();
  folder_ = resultFolder();
  chosen_ = true;
}

void VarianceGrid::writeReport() {
  if (!result_) {
    host().beep();
    return talkGated(kNoResult);
  }
  Report report;
  if (!report.open(folder_, chosen_ && resultIsNew())) return;
  writeHead(report, *result_);
  for (const Text& line : reportTable(*result_)) report.line(line);
  if (!report.close()) return;
  analysisMode.clear();
  showOK(folder_ + (folder_.ends_with(u'/') ? u"" : u"/") + u"KEKKA.TXTに出力終了", u"確認");
}

// The range was for this form: it goes with it, where an analysis was made.
void VarianceGrid::leave() {
  analysisMode.clear();
  if (ran_) {
    const Silence silence;
    editorHooks.reload(false);
  }
  nextIsHeard();
  screen().unload(form_);
}

}  // namespace zelko
