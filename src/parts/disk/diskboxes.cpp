#include "parts/disk/diskboxes.h"

#include "parts/disk/filewords.h"
#include "parts/disk/makefolder.h"
#include "platform/forms/form.h"
#include "store/rewrite/recovery.h"
#include "store/table/notice.h"
#include "voice/talk.h"

namespace zelko {

namespace {

void tellNoDrive() { tellFailure(u"ドライブが 用意されていないのでは ないですか?", u"ﾄﾞﾗｲﾌﾞｴﾗｰ"); }

void tellNoFolder(TextView folder) {
  tellFailure(spokenName(folder) + u"は開けません。ﾌｫﾙﾀﾞがないか、読み取りが許可されていません。", u"ﾌｫﾙﾀﾞｴﾗｰ");
}

// The mark of a list has moved: what it stands on, and the box.
void sayMark(const ListBox& list) {
  if (list.listIndex() < 0 || !gateOpens()) return;
  ++composedSentences;
  talkNow(spokenName(list.text()) + Text(boxWord(&list)));
}

}  // namespace

DiskBoxes::DiskBoxes(DriveBox& drives, FolderBox& folders, FileBox& files)
    : drives_(drives), folders_(folders), files_(files) {
  drives_.onChange = [this] { driveChosen(); };
  drives_.onClick = [this] { sayMark(drives_); };
  drives_.onKeyDown = [this](KeyEvent& key) { driveKeyDown(key); };
  // A mark that was moved and not chosen goes back.
  drives_.onLostFocus = [this] { drives_.setDrive(drives_.drive()); };
  folders_.onChange = [this] { folderOpened(); };
  folders_.onClick = [this] { sayMark(folders_); };
  folders_.onKeyDown = [this](KeyEvent& key) {
    if (!key.is(key::Enter, shift::None)) return;
    key.swallow();
    openMarkedFolder();
  };
  // The box has opened the folder by then, where it could.
  folders_.onDblClick = [this] {
    if (folders_.markedPath() != folders_.path()) tellNoFolder(folders_.markedPath());
  };
}

void DiskBoxes::open(TextView folder) {
  ++following_;
  if (!folders_.setPath(folder)) folders_.setPath(u"/");
  --following_;
}

void DiskBoxes::refresh() {
  folders_.refresh();
  files_.refresh();
}

Text DiskBoxes::pathOf(TextView name) const { return pathIn(files_.path(), name); }

void DiskBoxes::openMarkedFolder() {
  const Text marked = folders_.markedPath();
  if (!folders_.setPath(marked)) tellNoFolder(marked);
}

void DiskBoxes::folderOpened() {
  // A table that an interrupted rewrite left without its name would not be in the list.
  if (following_ == 0) offerRecovery(pathIn(folders_.path(), u""));
  files_.setPath(folders_.path());
  ++following_;
  drives_.setDrive(folders_.path());
  --following_;
  if (following_ > 0) return;
  folderIsNews_ = true;
  fire(onFolderChanged);
  sayFolderReport();
}

bool DiskBoxes::sayFolderReport() {
  if (!folderIsNews_ || talkMode == 0) return false;
  if (!gateOpens()) return true;
  folderIsNews_ = false;
  ++composedSentences;
  const TextView box = boxWord(files_.form().activeControl());
  if (words.changed) {
    talkNow(words.changed(spokenName(folders_.path()), box));
    return true;
  }
  std::vector<Text> names;
  for (const Text& listed : files_.entries()) {
    names.push_back(spokenName(shownName(listed)));
    if (names.size() == kNamesInReport) break;
  }
  talkNow(folderReport(files_.path(), names, box));
  return true;
}

void DiskBoxes::driveChosen() {
  if (following_ > 0 || folders_.setPath(drives_.drive())) return;
  tellNoDrive();
  ++following_;
  drives_.setDrive(folders_.path());
  --following_;
}

// The drive that is chosen already: its box has nothing to change, but the user wants to go there.
void DiskBoxes::driveKeyDown(KeyEvent& key) {
  if (!key.is(key::Enter, shift::None) || drives_.text() != drives_.drive()) return;
  key.swallow();
  if (!folders_.setPath(drives_.drive())) tellNoDrive();
}

void DiskBoxes::narrate(Narration& voice) {
  voice.say(drives_, [this] {
    return words.drive + u"ドライブ、" + spokenName(drives_.text()) + u"ドライブﾎﾞｯｸｽ" +
           u"矢印ｷｰでﾄﾞﾗｲﾌﾞ変更 CRで確定します";
  });
  voice.say(folders_, [this] {
    return words.folder + u"フォルダ、" + spokenName(folders_.path()) + u"ﾌｫﾙﾀﾞﾎﾞｯｸｽ" +
           u"矢印ｷｰでﾌｫﾙﾀﾞを選択し、CRｷｰを叩くとﾌｫﾙﾀﾞが変更されます";
  });
}

void DiskBoxes::narrateFiles(Narration& voice) {
  voice.say(files_, [this] {
    const Text name = files_.count() == 0 ? Text(kNoFileHere) : spokenName(shownName(files_.fileName()));
    return u"ファイル、" + name + u"ﾌｧｲﾙﾘｽﾄﾎﾞｯｸｽ";
  });
}

void DiskBoxes::sayMarkedFile(const Sentence& sentence) {
  if (files_.listIndex() < 0 || sayFolderReport() || !gateOpens()) return;
  ++composedSentences;
  talkNow(sentence());
}

void DiskBoxes::sayMarkedFile() {
  sayMarkedFile([this] { return spokenName(shownName(files_.fileName())) + u"ﾌｧｲﾙﾘｽﾄﾎﾞｯｸｽ"; });
}

bool DiskBoxes::makeFolderHere() {
  if (!makeFolder(folders_.markedPath())) return false;
  refresh();
  folders_.setFocus();
  return true;
}

Text DiskBoxes::whereItStands(const Control* focused) const {
  if (focused == &drives_) return u"ドライブ" + spokenName(drives_.text());
  if (focused == &folders_) return u"フォルダ" + spokenName(folders_.path());
  return {};
}

}  // namespace zelko
