#include "files/output/outputending.h"

#include "editor/moves/moves.h"
#include "files/picker/othertables.h"
#include "files/picker/pickeropening.h"
#include "platform/files/files.h"
#include "platform/forms/form.h"
#include "store/table/cursor.h"
#include "store/table/itemfile.h"
#include "voice/dialogs.h"
#include "voice/talk.h"

namespace zelko {

WorkIn askWhereToWork(TextView question, TextView title) {
  if (askYesNo(u"<<<<<元のﾌｧｲﾙで作業しますか>>>>?\r" + Text(question), title)) return WorkIn::source;
  return msgAnswer == kNo ? WorkIn::output : WorkIn::again;
}

bool workInOutput(const Text& fullName, Form& dialog) {
  Text error;
  openTable(fullName, error);
  // The cell is news, whatever was said a moment ago.
  talkLast = 0;
  if (error.empty()) {
    forgetOldTable();
    closeAndEnter(dialog);
    return true;
  }
  keepEditedTableOpen();
  screen().unload(dialog);
  return false;
}

void endInOutput(const Text& fullName, Form& dialog, TextView question, TextView title) {
  const WorkIn where = askWhereToWork(question, title);
  mode.clear();
  if (where == WorkIn::output) {
    workInOutput(fullName, dialog);
    return;
  }
  // Where the user is now is news, whatever the dialog said a moment ago.
  talkLast = 0;
  screen().unload(dialog);
  reloadCur();
}

bool mayTakeOutput(const Text& fullName) {
  return !folderExists(fullName) && !isReadOnly(fullName) && !takesFilesOfOther(fullName) &&
         !waitsForItsRecords(fullName);
}

}  // namespace zelko
