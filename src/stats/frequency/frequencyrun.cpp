#include "stats/frequency/frequencyrun.h"

#include <optional>

#include "platform/forms/form.h"
#include "platform/text/number.h"
#include "stats/frame/analysis.h"
#include "stats/frame/run.h"
#include "stats/frequency/frequencylines.h"
#include "store/table/table.h"
#include "voice/heard.h"

namespace zelko {

namespace {

constexpr TextView kTitle = u"ﾃﾞｰﾀ頻度集計";

// The untrimmed cells of an item; nothing where the reading was stopped or failed.
std::optional<std::vector<Text>> textsOf(int item) {
  std::vector<Text> texts;
  const bool whole = readAnalysisRecords(kTitle, [&](const WalkedRecord& record) {
    texts.push_back(record.cell(item));
    return true;
  });
  if (!whole) return std::nullopt;
  return texts;
}

// The report in the file, and the same in the window but for one heading.
class FrequencyReport {
 public:
  explicit FrequencyReport(AnalysisRun& run) : run_(run) {}

  void line(const Text& text) { line(text, text); }
  void line(const Text& inFile, const Text& inWindow) {
    run_.report().line(inFile);
    run_.windowLine(inWindow);
  }

  void item(int item, const numbers::Frequencies& counted) {
    line(decimal(item) + u":" + trimmed(itemName[static_cast<std::size_t>(item)]));
    line(frequencyRule());
    line(frequencyHeading(false), frequencyHeading(true));
    line(frequencyRule());
    for (const numbers::Frequency& row : counted.listed) line(frequencyRow(row, counted.n));
    line(frequencyRule());
  }

 private:
  AnalysisRun& run_;
};

bool writeItems(AnalysisRun& run, const std::vector<std::int16_t>& items) {
  FrequencyReport report(run);
  report.line(recordsOfAccess(firstRecord, lastRecord).line());
  run.compute(kTitle, static_cast<std::int64_t>(items.size()));
  std::int64_t done = 0;
  for (const std::int16_t item : items) {
    if (!run.step(done++)) return false;
    const auto texts = textsOf(item);
    if (!texts) return false;
    report.item(item, numbers::frequencies(*texts));
  }
  return true;
}

}  // namespace

void reportFrequencies(Form& form, const std::vector<std::int16_t>& items, TextView folder, bool anew) {
  const Text modeBefore = analysisMode;
  AnalysisRun run(docPath + u"ｺｳﾓｸﾃﾞｰﾀ種類別頻度集計結果表示(");
  if (!run.begin(folder, anew, kTitle)) return;
  analysisMode = u"SFCC";
  if (writeItems(run, items)) {
    run.finish(form, finishedSentence(kTitle));
  } else {
    closeUnheard(form);
    run.stop();
  }
  analysisMode = modeBefore;
}

}  // namespace zelko
