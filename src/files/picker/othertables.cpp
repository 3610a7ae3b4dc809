#include "files/picker/othertables.h"

#include "parts/disk/ownnames.h"
#include "platform/files/files.h"
#include "store/rewrite/recovery.h"
#include "store/table/itemfile.h"

namespace zelko {

namespace {

bool isItemFile(TextView file) {
  TableDescription table;
  return fileExists(file) && readDescription(file, table) == ReadResult::ok;
}

}  // namespace

bool itemFileIsDataOfOther(TextView dataFile) {
  const Text itemFile = itemFilePath(dataFile, {});
  return fileExists(itemFile) && !isItemFile(itemFile) && isItemFile(itemFilePath(itemFile, {}));
}

bool takesFilesOfOther(TextView dataFile) {
  return isOwnName(dataFile) || isItemFile(dataFile) || itemFileIsDataOfOther(dataFile);
}

bool waitsForItsRecords(TextView dataFile) {
  const auto swap = interruptedSwap(dataFile.substr(0, dataFile.rfind(u'/') + 1));
  return swap && dataFile == swap->folder + swap->data && !offerRecovery(dataFile);
}

}  // namespace zelko
