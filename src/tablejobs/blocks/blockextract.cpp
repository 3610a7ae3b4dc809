#include "tablejobs/blocks/blockextract.h"

#include "files/output/outputending.h"
#include "files/output/outputtable.h"
#include "parts/disk/filewords.h"
#include "parts/grid/cellfault.h"
#include "parts/job/job.h"
#include "parts/ranges/rangetext.h"
#include "platform/files/blockfiles.h"
#include "platform/host.h"
#include "platform/text/number.h"
#include "store/records/records.h"
#include "store/rewrite/rewrite.h"
#include "store/table/cursor.h"
#include "store/table/itemfile.h"
#include "store/table/notice.h"
#include "tablejobs/blocks/blockform.h"
#include "tablejobs/blocks/blockplan.h"
#include "voice/dialogs.h"
#include "voice/progress.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr int kDataFile = 1;

Text bareName(TextView name) { return Text(name.substr(name.rfind(u'/') + 1)); }

// A bare name lies beside the table, one without an extension gets its own. Empty where nothing was entered.
Text askOutputName() {
  Text name =
      trimmed(talkAsk(u"出力ファイル名は,（パスを含めて記述）", u"抽出ファイル名の入力", besideTable(u"extract.txt")));
  if (trimmed(bareName(name)).empty()) return {};
  if (bareName(name).find(u'.') == Text::npos) name += u".TXT";
  if (!name.starts_with(u'/')) name = besideTable(name);
  return findIgnoringCase(name).value_or(name);
}

bool readOld(std::int64_t first, std::size_t count, char* out) {
  const std::size_t size = count * std::size_t{recLen};
  std::size_t got = 0;
  return readBlock(kDataFile, first * recLen, out, size, got) == FileError::none && got == size;
}

// The records go out as they are made, a block at a time.
RewriteEnd writeRecords(const RewritePlan& plan, RecordAppender& output, Progress& progress) {
  const auto write = [&](std::string_view records) {
    for (std::size_t at = 0; at < records.size(); at += std::size_t{recLen})
      if (!output.append(records.substr(at, std::size_t{recLen}))) return false;
    return true;
  };
  return rewriteRecords(plan, readOld, write, [&](std::int64_t done) { return progress.step(done); });
}

RewriteEnd makeTable(const BlockPlan& plan, OutputTable& output) {
  RewriteEnd end;
  {
    Progress progress(u"抽出中", recordsOf(plan.records));
    end = writeRecords(plan.records, output.records(), progress);
  }
  if (end == RewriteEnd::done && !output.finish(plan.description)) end = RewriteEnd::failed;
  output.takeBack();
  return end;
}

void tellLeftOut(std::size_t items) {
  if (items == 0) return;
  showOK(u"項目幅の合計が254バイトを超えました。入りきらない後ろの" + decimal(static_cast<std::int64_t>(items)) +
             u"項目は、抽出ﾌｧｲﾙに入っていません",
         u"抽出ファイル");
}

}  // namespace

void extractBlocks(FrmBROCK& dialog, const BlockRanges& ranges) {
  const TableDescription table{itemsOnDisk(), {}};
  auto plan = planBlocks(table, recCount(), ranges.records, ranges.items);
  if (!plan) {
    return tellCellFault({{}, u"項目の数は1から255までです", u"項目ﾌﾞﾛｯｸ指定のあやまり"}, dialog.Text2);
  }
  const Text fullName = askOutputName();
  if (fullName.empty()) return;
  const auto items = numbersOfRange(ranges.items, std::size_t{kMaxItems});
  plan->description.memo = memoOfBlocks(spokenName(bareName(docPath)), *items, host().now());
  plan->description.reserved = decimal(recLen);
  OutputTable output;
  if (!output.replace(fullName)) return;
  switch (makeTable(*plan, output)) {
    case RewriteEnd::failed:
    case RewriteEnd::refused:
      return tellWriteError();
    case RewriteEnd::stopped:
      return talkBehindDialog(u"中止しました。抽出ﾌｧｲﾙは作られていません。");
    case RewriteEnd::done:
      break;
  }
  tellLeftOut(plan->leftOut);
  endInOutput(
      fullName, dialog,
      u"元のﾌｧｲﾙで作業しますか、抽出ﾌｧｲﾙにいきますか。元のﾌｧｲﾙの場合　はい　、抽出ﾌｧｲﾙの場合 いいえ を押して下さい。",
      u"作業終了しました!");
}

}  // namespace zelko
