#include "files/picker/pickerreference.h"

#include "editor/main/commands.h"
#include "files/picker/deletetable.h"
#include "files/picker/pickeropening.h"
#include "store/table/itemfile.h"
#include "store/table/notice.h"
#include "store/table/table.h"

namespace zelko {

void refFileacs(TextView dataFile) {
  const Text inEdit = docPath.empty() ? Text() : joinName(docDrive, docPath);
  if (!inEdit.empty() && isSameFile(dataFile, inEdit)) {
    // A link leads to it under another name, which the user should know.
    tellFailure(u"編集中のﾌｧｲﾙと同じです｡", inEdit == dataFile ? u"確認" : u"編集中のﾌｧｲﾙ");
    return;
  }
  Text error;
  refjinput(dataFile, error);
  if (error.empty()) runCommand(u"REF");
}

void refjinput(TextView dataFile, Text& error) {
  Text drive, path;
  splitName(dataFile, drive, path);
  readKFileOther(path, drive, error);
  keepEditedTableOpen();
  if (!error.empty()) return;
  otherDrive = drive;
  otherPath = path;
}

}  // namespace zelko
