#include "files/hozonending.h"

#include <filesystem>

#include "files/diskopening.h"
#include "platform/files.h"
#include "platform/form.h"
#include "store/itemfile.h"
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

std::int64_t lengthOfOutput(const Text& fullName) {
  std::error_code error;
  const auto length = std::filesystem::file_size(toUtf8(fullName), error);
  return error ? -1 : static_cast<std::int64_t>(length);
}

void takeBackOutput(const Text& fullName, std::int64_t length) {
  if (length < 0)
    deleteFile(fullName);
  else
    cutFile(fullName, length);
}

bool mayTakeOutput(const Text& fullName) {
  if (folderExists(fullName) || isReadOnly(fullName)) return false;
  TableDescription itemFile;
  return !fileExists(fullName) || readDescription(fullName, itemFile) != ReadResult::ok;
}

}  // namespace zelko
