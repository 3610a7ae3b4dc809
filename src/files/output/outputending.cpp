#include "files/output/outputending.h"

#include "files/picker/othertables.h"
#include "files/picker/pickeropening.h"
#include "platform/files/files.h"
#include "platform/forms/form.h"
#include "store/table/itemfile.h"
#include "voice/dialogs.h"
#include "voice/talk.h"

namespace zelko {

void askWhereToWork(TextView question, TextView title) {
  askYesNo(u"<<<<<元のﾌｧｲﾙで作業しますか>>>>?\r" + Text(question), title);
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

bool mayTakeOutput(const Text& fullName) {
  return !folderExists(fullName) && !isReadOnly(fullName) && !takesFilesOfOther(fullName) &&
         !waitsForItsRecords(fullName);
}

}  // namespace zelko
