#include "tablejobs/blocks/blocks.h"

#include "editor/main/commands.h"
#include "parts/job/job.h"
#include "platform/host.h"
#include "platform/text/number.h"
#include "store/records/records.h"
#include "store/table/cursor.h"
#include "tablejobs/blocks/blockextract.h"
#include "tablejobs/blocks/blockform.h"
#include "tablejobs/blocks/recordblock.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr TextView kExtraction = u"BTYU";

void openExtraction() {
  if (!beginJob(false, true)) return;
  mode = kExtraction;
  unload<FrmBROCK>();
  FrmBROCK& dialog = form<FrmBROCK>();
  dialog.use = [&dialog](const BlockRanges& ranges) { extractBlocks(dialog, ranges); };
  dialog.showModal();
  if (mode == kExtraction) mode.clear();
}

}  // namespace

std::optional<BlockRanges> askBlockRanges(TextView word) {
  if (docPath.empty()) {
    host().beep();
    return std::nullopt;
  }
  const bool forStatistics = contains(word, u"MLINE");
  mode = word;
  unload<FrmBROCK>();
  FrmBROCK& dialog = form<FrmBROCK>();
  dialog.firstItem = forStatistics && itemCount > 0 ? 1 : 0;
  std::optional<BlockRanges> chosen;
  dialog.use = [&](const BlockRanges& ranges) {
    chosen = ranges;
    screen().unload(dialog);
  };
  dialog.showModal();
  if (mode == word) mode.clear();
  if (chosen && forStatistics && chosen->records.empty()) chosen->records = u"1-" + decimal(recCount());
  return chosen;
}

void registerBlocks() {
  registerForm<FrmBROCK>();
  registerCommand(u"mnuMBROCK", openExtraction);
  registerRecordBlock();
}

}  // namespace zelko
