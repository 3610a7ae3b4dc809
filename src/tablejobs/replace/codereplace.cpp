#include "tablejobs/replace/codereplace.h"

#include "editor/main/commands.h"
#include "parts/job/job.h"
#include "platform/files/blockfiles.h"
#include "platform/files/ownedfile.h"
#include "platform/host.h"
#include "platform/text/number.h"
#include "store/records/records.h"
#include "store/records/walk.h"
#include "store/table/itemfile.h"
#include "store/table/notice.h"
#include "voice/dialogs.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr TextView kWork = u"ｺｰﾄﾞﾌｧｲﾙによる置換", kCheck = u"確認";

}  // namespace

CodesRead readCodes(const FileItem& chosen, CodeTable& codes) {
  OwnedFile file;
  if (file.openRandom(chosen.dataFile, recLen) != FileError::none) return CodesRead::failed;
  if (recCountOf(file.number()) == 0) return CodesRead::empty;
  const RecordShape shape = RecordShape::ofOtherTable();
  Walk walk;
  walk.last = recCountOf(file.number());
  walk.file = file.number();
  walk.shape = &shape;
  walk.work = kWork;
  const WalkEnd end = walkRecords(walk, [&](const WalkedRecord& record) {
    codes.add(record.cell(0), record.cell(chosen.item));
    return true;
  });
  return end == WalkEnd::done ? CodesRead::whole : end == WalkEnd::stopped ? CodesRead::stopped : CodesRead::failed;
}

CodesReplaced replaceByCodes(const CodeTable& codes) {
  CodesReplaced done;
  CodesOfBytes known(codes);
  CellRun run;
  run.work = kWork;
  run.scope = scopeOf(1, recCount(), currentItemOnly());
  run.change = [&](std::string_view cell) {
    const std::optional<std::string>& result = known.find(cell);
    if (!result) ++done.unknown;
    return result;
  };
  done.run = runOverCells(run);
  return done;
}

namespace {

bool isOpenTable(TextView dataFile) { return behindLinks(dataFile) == behindLinks(joinName(docDrive, docPath)); }

// False, told, where there is nothing to replace with.
bool haveCodes(const FileItem& chosen, CodeTable& codes) {
  switch (readCodes(chosen, codes)) {
    case CodesRead::whole:
      return true;
    case CodesRead::empty:
      showOK(u"コードﾌｧｲﾙには記入が有りません", kCheck);
      return false;
    case CodesRead::stopped:
      talkBehindDialog(u"中止しました。");
      return false;
    case CodesRead::failed:
      break;
  }
  tellFailure(u"コードﾌｧｲﾙが読めません", kCheck);
  return false;
}

void replaceBy(const CodeTable& codes) {
  const auto [run, unknown] = replaceByCodes(codes);
  if (!endCellRun(run)) return;
  JobCounts counts;
  counts.skipped = unknown;
  counts.done = run.changed;
  counts.cut = run.cut;
  talkBehindDialog(countsSentence(run.stopped ? JobEnd::stopped : JobEnd::done, counts));
}

}  // namespace

void codeReplace() {
  if (!beginJob(true, true)) return;
  if (recCount() == 0) return showOK(u"現在編集中のﾌｧｲﾙは全く未記入です", kCheck);
  const auto chosen = getfileno(false);
  if (!chosen) return;
  if (isOpenTable(chosen->dataFile)) return showOK(u"編集中のﾌｧｲﾙと同じです｡", kCheck);
  askYesNo(u"大文字小文字を区別しますか", kWork);
  if (msgAnswer != kYes && msgAnswer != kNo) return;
  CodeTable codes(msgAnswer == kYes);
  if (haveCodes(*chosen, codes)) replaceBy(codes);
}

void registerCodeReplace() { registerCommand(u"mnuDICT", codeReplace); }

}  // namespace zelko
