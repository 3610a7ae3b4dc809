#include "files/output/outputending.h"

#include "files/picker/othertables.h"
#include "files/picker/pickeropening.h"
#include "platform/files/files.h"
#include "platform/forms/form.h"
#include "store/table/itemfile.h"
#include "voice/dialogs.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr int kOutput = 3;

std::int32_t recordOfTail(std::int64_t length) { return static_cast<std::int32_t>(length / recLen) + 1; }

}  // namespace

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

OutputBefore::OutputBefore(const Text& fullName) : fullName_(fullName) {
  if (!fileExists(fullName) || openRandom(kOutput, fullName, recLen) != FileError::none) return;
  length_ = fileLength(kOutput);
  getRecord(kOutput, recordOfTail(length_), tail_.data());
  closeFile(kOutput);
}

void OutputBefore::putBack() const {
  if (length_ < 0) {
    deleteFile(fullName_);
    return;
  }
  if (length_ % recLen != 0 && openRandom(kOutput, fullName_, recLen) == FileError::none) {
    putRecord(kOutput, recordOfTail(length_), tail_.data());
    closeFile(kOutput);
  }
  cutFile(fullName_, length_);
}

bool mayTakeOutput(const Text& fullName) {
  return !folderExists(fullName) && !isReadOnly(fullName) && !takesFilesOfOther(fullName) &&
         !waitsForItsRecords(fullName);
}

}  // namespace zelko
