#include "files/picker/pickeropening.h"

#include "editor/main/form1.h"
#include "editor/main/state.h"
#include "editor/moves/commit.h"
#include "editor/moves/entryitems.h"
#include "editor/show/showcell.h"
#include "editor/show/spitem.h"
#include "editor/show/view.h"
#include "parts/disk/filewords.h"
#include "platform/files/files.h"
#include "platform/host.h"
#include "store/records/records.h"
#include "store/table/cursor.h"
#include "store/table/itemfile.h"
#include "store/table/notice.h"
#include "voice/dialogs.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr int kDataFile = 1;

}  // namespace

void storeEditedTable() {
  if (docPath.empty() || !isOpen(kDataFile)) return;
  form<Form1>().storeNames();
  flushRec();
}

void storeTypedCell() {
  if (docPath.empty() || !isOpen(kDataFile)) return;
  if (!commitBox()) return;
  storeEditedTable();
}

void keepEditedTableOpen() {
  if (docPath.empty() || isOpen(kDataFile) || reopenData()) return;
  tellFailure(u"編集中のﾌｧｲﾙが開けません。もう一度確認してください", u"編集中のﾌｧｲﾙ");
}

void forgetOldTable() {
  dropRange();
  autoIdOn = 0;
  allItemsOn = 1;
  form<Form1>().Label11.setCaption(entryItemsCaption());
  unload<frmSPITEM>();
  spItem = kNoItem;
}

bool openInPlace(TextView dataFile) {
  storeEditedTable();
  Text error;
  openTable(dataFile, error);
  if (error.empty()) {
    forgetOldTable();
    return true;
  }
  keepEditedTableOpen();
  showOK(u"Zelkoﾌｧｲﾙではない可能性があります。", spokenName(dataFile) + u"異常");
  return false;
}

void closeAndEnter(Form& picker) {
  {
    // The main form gets the focus with the boxes of the old table: what it says of them would be wrong.
    const Silence silence;
    screen().unload(picker);
  }
  enterEditor();
}

void endFromPicker() {
  if (talkMode != 0) waitSec(talkGap);
  talkEnd();
  throw ProgramEnd{};
}

}  // namespace zelko
