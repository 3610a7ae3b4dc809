// What the picker does: opening, deleting, handing over, and leaving.
#include <algorithm>

#include "editor/main/commands.h"
#include "files/picker/deletetable.h"
#include "files/picker/pickerform.h"
#include "files/picker/pickeritems.h"
#include "files/picker/pickeropening.h"
#include "files/picker/pickerreference.h"
#include "files/picker/pickerwords.h"
#include "parts/disk/filewords.h"
#include "platform/files/files.h"
#include "platform/host.h"
#include "store/table/cursor.h"
#include "store/table/table.h"
#include "voice/dialogs.h"
#include "voice/talk.h"

namespace zelko {

Text frmDISK::ownName(TextView listed) const { return job_->tables ? tableOfItemFile(listed) : Text(listed); }

// The chosen entry as File1 lists it, whichever list shows it.
Text frmDISK::chosenEntry() const {
  const int index = list().listIndex();
  return index < 0 ? Text() : File1.entries()[static_cast<std::size_t>(index)];
}

Text frmDISK::chosenFile() const {
  if (list().listIndex() < 0) return {};
  const Text file = boxes_.pathOf(ownName(chosenEntry()));
  // The data file may differ from its item file in the case of its letters.
  return job_->tables ? findIgnoringCase(file).value_or(file) : file;
}

void frmDISK::frmDISK_Command1_Click() {
  if (list().listIndex() < 0) return host().beep();
  switch (job_->purpose) {
    case PickFor::table:
      return openChosen();
    case PickFor::deletion:
      return deleteChosen();
    case PickFor::reference:
      return refFileacs(chosenFile());
    case PickFor::csv:
      return runCommand(u"csvREAD");
    case PickFor::layout:
    case PickFor::text:
      return runCommand(job_->word);
  }
}

void frmDISK::openChosen() {
  if (!openInPlace(chosenFile())) return;
  mode.clear();
  closeAndEnter(*this);
}

void frmDISK::deleteChosen() {
  const int index = list().listIndex();
  if (deleteTable(chosenFile(), boxes_.pathOf(chosenEntry()))) afterDeletion(index);
}

void frmDISK::deleteMarked() {
  const int index = list().listIndex();
  if (deleteLayout(chosenFile())) afterDeletion(index);
}

// The mark goes to the neighbour, so that a long list is not walked from its beginning again.
void frmDISK::afterDeletion(int index) {
  const Silence silence;
  File1.refresh();
  fillList1();
  list().setListIndex(std::min(index, list().count() - 1));
  Text1.setText(ownName(chosenEntry()));
}

void frmDISK::frmDISK_Command2_Click() {
  if (job_->purpose != PickFor::csv) return runCommand(u"SVCread");
  frmDISK_Command1_Click();
}

void frmDISK::frmDISK_Command3_Click() {
  if (docPath.empty()) {
    if (askYesNo(u"Zelkoを終了しますか？", u"確認")) endFromPicker();
    return;
  }
  mode = job_->callerWaits ? u"tyusi" : u"";
  fire(onGivenUp);
  screen().unload(*this);
}

void frmDISK::frmDISK_Command4_Click() {
  if (boxes_.makeFolderHere()) fillList1();
}

void frmDISK::frmDISK_cmdNOTZLK_Click() {
  const bool toAllFiles = job_->purpose != PickFor::text;
  take(toAllFiles ? PickFor::text : PickFor::table);
  if (toAllFiles)
    talkD(*this, u"Zelkoファイルでないファイルの読み込みへ");
  else
    talkD(*this, Text(job_->caption) + Text(job_->prompt));
}

void frmDISK::frmDISK_list_KeyUp(KeyEvent& key) {
  if (heldKey_ != key.code || key.mask != shift::None) return;
  heldKey_ = 0;
  if (key.code == key::Space) {
    List1.visible() ? dispOItem() : dispItem();
  } else if (key.code == key::Delete && job_->purpose == PickFor::layout && File1.listIndex() >= 0) {
    deleteMarked();
  }
}

// Every item file begins with the same letter: what the user types is the beginning of the table's own name.
void frmDISK::frmDISK_File1_KeyPress(CharEvent& event) {
  if (!job_->tables || event.ch <= u' ') return;
  const Text typed = upperCase(TextView(&event.ch, 1));
  event.ch = 0;
  const std::vector<Text>& names = File1.entries();
  for (int step = 1; step <= File1.count(); ++step) {
    const int at = (File1.listIndex() + step) % File1.count();
    if (upperCase(mid(names[static_cast<std::size_t>(at)], 2, 1)) == typed && at != File1.listIndex())
      return File1.setListIndex(at);
  }
  host().beep();
}

void frmDISK::dispItem() { showItems(ownName(chosenEntry())); }

void frmDISK::dispOItem() { showItems(List1.text()); }

void frmDISK::showItems(TextView name) {
  if (name.empty() || job_->purpose == PickFor::layout || job_->purpose == PickFor::csv) return host().beep();
  showTableItems(chosenFile(), spokenName(name));
}

}  // namespace zelko
