#include "files/picker/filenumber.h"

#include "editor/show/itemlist.h"
#include "files/picker/pickerreference.h"
#include "files/picker/pickerwords.h"
#include "parts/disk/filewords.h"
#include "platform/files/files.h"
#include "platform/host.h"
#include "platform/text/number.h"
#include "store/table/description.h"
#include "store/table/itemfile.h"
#include "store/table/notice.h"
#include "voice/talk.h"

namespace zelko {

frmFileNo::frmFileNo() : Form(kName, u"他ﾌｧｲﾙの項目指定") {
  File1.setPattern(pickerJob(PickFor::reference).pattern);
  boxes_.open(appDir);
  boxes_.onFolderChanged = [this] { List1.clear(); };
  boxes_.shownName = tableOfItemFile;
  File1.onClick = [this] { frmFileNo_File1_Click(); };
  File1.onDblClick = [this] { frmFileNo_Command1_Click(); };
  List1.onDblClick = [this] { frmFileNo_Command1_Click(); };
  Command1.onClick = [this] { frmFileNo_Command1_Click(); };
  Command2.onClick = [this] { screen().unload(*this); };
  Command1.isDefault = true;
  Command2.isCancel = true;
  Dir1.place = Place::sameRow;
  File1.place = Place::newRow;
  Check1.place = Place::newRow;
  narrate();
  File1.setFocus();
}

void frmFileNo::narrate() {
  Narration voice(*this);
  voice.explain(
      u"ﾌｧｲﾙﾘｽﾄﾎﾞｯｸｽでｸﾘｯｸやCRｷｰを叩いて、ﾌｧｲﾙを選択すると､項目ﾘｽﾄﾎﾞｯｸｽに指定ﾌｧｲﾙ内の項目が"
      u"表示されます。項目ﾘｽﾄﾎﾞｯｸｽで項目を選択し、CRｷｰを叩くと確定します。中止はｴｽｹｰﾌﾟｷｰです。");
  boxes_.narrate(voice);
  boxes_.narrateFiles(voice);
  voice.list(List1, u"項目ﾘｽﾄﾎﾞｯｸｽ").check(Check1, u"ﾁｪｯｸﾎﾞｯｸｽ");
  voice.say(Command1, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ").say(Command2, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ");
}

Text frmFileNo::dataFile() const {
  if (File1.listIndex() < 0) return {};
  const Text file = boxes_.pathOf(tableOfItemFile(File1.fileName()));
  return findIgnoringCase(file).value_or(file);
}

// Without a message: the list is filled while the user walks over the files, good and bad.
bool frmFileNo::zdispItem() {
  TableDescription table;
  std::vector<Text> rows;
  const bool read = readDescription(boxes_.pathOf(File1.fileName()), table) == ReadResult::ok;
  if (read) {
    for (const ItemLine& item : table.items)
      rows.push_back(itemListRow(static_cast<int>(rows.size()), item.name, item.alignment, item.width));
  }
  List1.setEntries(std::move(rows));
  return read;
}

void frmFileNo::frmFileNo_File1_Click() {
  if (File1.listIndex() < 0) return;
  zdispItem();
  boxes_.sayMarkedFile();
}

// First the file, then its item; whoever has chosen no item yet is led to the list of items.
void frmFileNo::frmFileNo_Command1_Click() {
  const Text file = dataFile();
  if (file.empty()) return host().beep();
  if (List1.count() == 0)
    return tellFailure(u"Zelkoﾌｧｲﾙではない可能性があります。", spokenName(tableOfItemFile(File1.text())) + u"異常");
  const int item = List1.listIndex();
  if (item < 0) {
    if (List1.hasFocus()) return host().beep();
    return List1.setFocus();
  }
  Text error;
  refjinput(file, error);
  if (!error.empty()) return;
  const Text name = trimmed(otherItemName[static_cast<std::size_t>(item)]);
  chosen = FileItem{file, item, Check1.value() == 1 ? name : decimal(item)};
  screen().unload(*this);
}

std::optional<FileItem> getfileno(bool mayTakeName) {
  unload<frmFileNo>();
  // Held here: the form is gone when the loop ends.
  std::optional<FileItem> chosen;
  frmFileNo& picker = form<frmFileNo>();
  picker.Check1.setEnabled(mayTakeName);
  picker.onUnload = [&] { chosen = picker.chosen; };
  picker.showModal();
  return chosen;
}

}  // namespace zelko
