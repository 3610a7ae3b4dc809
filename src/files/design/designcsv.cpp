// The items of a new table as a CSV file suggests them.
#include <optional>

#include "files/csv/csvfile.h"
#include "files/csv/csvimport.h"
#include "files/csv/csvproposal.h"
#include "files/design/designform.h"
#include "parts/disk/filewords.h"
#include "platform/text/number.h"
#include "store/table/notice.h"
#include "voice/dialogs.h"
#include "voice/progress.h"
#include "voice/talk.h"

namespace zelko {

namespace {

// nullopt after a message, or where the user stopped it.
std::optional<CsvProposal> surveyOf(const Text& path) {
  CsvFile file;
  if (!file.open(path)) {
    tellFailure(u"ﾌｧｲﾙがオープンできません。ﾌｧｲﾙ名を確認してください", u"確認");
    return std::nullopt;
  }
  Progress progress(u"CSVﾌｧｲﾙを調べています", file.length());
  if (!file.recognise([&](std::int64_t) { return progress.step(0); })) return std::nullopt;
  CsvSurvey survey(file.isUtf8());
  CsvReader reader = file.reader(true);
  CsvLine line;
  for (std::int64_t lines = 0; reader.next(line); ++lines) {
    survey.take(line);
    if (lines % kCsvLinesBetweenLooks == 0 && !progress.step(reader.taken())) return std::nullopt;
  }
  return survey.proposal();
}

Text wordsOf(const CsvProposal& proposal) {
  Text words = u"項目数" + decimal(static_cast<std::int64_t>(proposal.items.size()) - 1) + u"。";
  words += proposal.heading ? u"１行目を項目名にしました。１行目は記録になりません。" : u"項目名の行はありません。";
  words += u"項目幅は、一番長いﾃﾞｰﾀの幅です。";
  if (proposal.narrowed) words += u"幅の合計が254を超えるので、広い項目の幅をせばめました。";
  if (proposal.passedFields > 0) words += u"後ろの" + decimal(proposal.passedFields) + u"項目は入りきりません。";
  return words;
}

}  // namespace

void frmDESIGN::proposeFrom(const Text& csvFile) {
  const auto proposal = surveyOf(csvFile);
  if (!proposal) return;
  if (proposal->items.empty()) return showOK(u"ﾃﾞｰﾀのないCSVﾌｧｲﾙです", u"確認");
  cells_.reshape([&] {
    fill(proposal->items);
    for (int& old : oldItems_) old = -1;
    Grid1.setCell(1, 1);
  });
  showCount();
  csvSurveyed = {csvFile, proposal->heading};
  closeReference();
  talkBehindDialog(spokenName(File1.fileName()) + markStop + wordsOf(*proposal) + cellSentence());
}

void frmDESIGN::frmDESIGN_Command4_Click() {
  if (!File1.visible() || !listsCsv_) return showReference(true);
  if (File1.listIndex() < 0) return closeReference();
  proposeFrom(boxes_.pathOf(File1.fileName()));
}

}  // namespace zelko
