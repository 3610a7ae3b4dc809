#include "files/picker/pickeritems.h"

#include "editor/show/itemlist.h"
#include "files/picker/pickeropening.h"
#include "store/table/itemfile.h"
#include "store/table/mainform.h"
#include "store/table/table.h"
#include "voice/dialogs.h"

namespace zelko {

namespace {

// The second description as it was: another command may be at work with it.
class KeptDescription {
 public:
  KeptDescription() = default;
  ~KeptDescription() {
    otherItemCount = count_;
    otherItemName = name_;
    otherItemLR = lr_;
    otherItemWidth = width_;
    otherItemStart = start_;
  }
  KeptDescription(const KeptDescription&) = delete;
  KeptDescription& operator=(const KeptDescription&) = delete;

 private:
  decltype(otherItemCount) count_ = otherItemCount;
  decltype(otherItemName) name_ = otherItemName;
  decltype(otherItemLR) lr_ = otherItemLR;
  decltype(otherItemWidth) width_ = otherItemWidth;
  decltype(otherItemStart) start_ = otherItemStart;
};

}  // namespace

void showTableItems(TextView dataFile, TextView name) {
  const KeptDescription kept;
  const bool marked = readOnlyMarkShown();
  Text drive, path, error;
  splitName(dataFile, drive, path);
  readKFileOther(path, drive, error, false);
  if (marked) showReadOnlyMark(true);
  if (error.empty()) return showOtherItemList(name);
  keepEditedTableOpen();
  showOK(Text(name) + u"はZelkoﾌｧｲﾙではない可能性があります。", u"Zelkoﾌｧｲﾙのｱｸｾｽ");
}

}  // namespace zelko
