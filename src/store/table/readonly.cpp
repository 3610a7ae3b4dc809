#include "store/table/readonly.h"

#include "platform/files/files.h"
#include "platform/host.h"
#include "store/records/records.h"
#include "store/table/itemfile.h"
#include "store/table/mainform.h"
#include "store/table/notice.h"
#include "store/table/sharing.h"
#include "voice/dialogs.h"

namespace zelko {

namespace {

TextView titleOf(bool lock) { return lock ? u"書き込み禁止のセット" : u"書き込み禁止の解除"; }

bool confirmed(bool lock) {
  if (!lock) return askYesNo(u"編集中の読み取り専用指定を解除します。", titleOf(lock));
  return askYesNo(u"編集中のﾌｧｲﾙを読み取り専用にセットします｡解除しない限り編集できません。", titleOf(lock));
}

}  // namespace

bool tableIsReadOnly() { return !docPath.empty() && (openedToRead() || isReadOnly(joinName(docDrive, docPath))); }

bool refusedAsReadOnly() {
  if (!tableIsReadOnly()) return refusedForAnother();
  tellReadOnly();
  return true;
}

void toggleReadOnly() {
  if (docPath.empty()) return host().beep();
  const bool lock = !tableIsReadOnly();
  // There is no attribute to be released where the medium itself refuses.
  if (lock && systemForbidsWriting(joinName(docDrive, docPath))) {
    showReadOnlyMark(true);
    return tellFailure(u"書き込みのできない媒体か、書き込みの許されていないﾌｧｲﾙです。ここでは解除出来ません",
                       titleOf(false));
  }
  if (!confirmed(lock)) return;
  // What was typed before the lock is still stored; behind it nothing is.
  if (lock && !flushRec()) return;
  closeFile(1);
  openForWritingAgain();
  const Text name = joinName(docDrive, docPath);
  const bool changed = isReadOnly(name) == lock || setReadOnly(name, lock) == FileError::none;
  if (!reopenData() || !changed) return tellWriteError();
  showReadOnlyMark(lock);
  talkBehindDialog(titleOf(lock));
}

}  // namespace zelko
