// What table design does: checking and making the table, leaving, and taking over the design of another table.
#include "editor/main/commands.h"
#include "editor/main/form1.h"
#include "editor/show/view.h"
#include "files/csv/csvimport.h"
#include "files/design/design.h"
#include "files/design/designapply.h"
#include "files/design/designform.h"
#include "files/picker/deletetable.h"
#include "files/picker/othertables.h"
#include "files/picker/pickerform.h"
#include "files/picker/pickeropening.h"
#include "parts/disk/filewords.h"
#include "platform/files/files.h"
#include "platform/host.h"
#include "platform/text/number.h"
#include "store/rewrite/rewrite.h"
#include "store/table/cursor.h"
#include "store/table/itemfile.h"
#include "store/table/notice.h"
#include "voice/dialogs.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr TextView kConfirm = u"確認";

// The file that stands there under that name in any case of its letters.
Text asItStands(const Text& dataFile) { return findIgnoringCase(dataFile).value_or(dataFile); }

bool standsAlready(const Text& dataFile) { return fileExists(dataFile) || fileExists(itemFilePath(dataFile, {})); }

bool mayReplaceDesign(const Text& dataFile) {
  if (takesFilesOfOther(dataFile)) {
    tellFailure(u"他の表のﾌｧｲﾙと重なる名前です。別のﾌｧｲﾙ名にして下さい", kConfirm);
    return false;
  }
  if (waitsForItsRecords(dataFile)) return false;
  if (!standsAlready(dataFile)) return true;
  return askYesNo(
      spokenName(dataFile) +
          u"という名前のﾌｧｲﾙが既にあります。その項目設定を新しい設定に書き換えますか。データはそのままです。",
      kConfirm);
}

}  // namespace

// --- 決定 ------------------------------------------------------------------------------------------------------

void frmDESIGN::frmDESIGN_Command1_Click() {
  if (!cells_.store() || !applyCount()) return;
  const Text typed = tableNameTyped(text3.content());
  if (typed.empty()) return tellCellFault({{}, u"ﾌｧｲﾙ名がありません。ﾌｧｲﾙ名は？", u"ﾌｧｲﾙ名なし"}, text3);
  const std::vector<DesignRow> design = rows();
  const Text memo = trimmed(text2.content());
  if (const Text faults = faultsOfTable(text1.content(), memo, design); !faults.empty())
    return showOK(faults, u"表使用値の誤り");
  if (makeOrChange(asItStands(typed), memo, design)) finish();
}

bool frmDESIGN::changesOpenTable(const Text& dataFile) const {
  return text3.content() == presetFile_ || isSameFile(dataFile, joinName(docDrive, docPath));
}

bool frmDESIGN::makeOrChange(const Text& dataFile, const Text& memo, const std::vector<DesignRow>& design) {
  if (changesTable_ && changesOpenTable(dataFile)) return changeOpenTable(memo, design);
  if (!docPath.empty() && isSameFile(dataFile, joinName(docDrive, docPath))) {
    tellFailure(u"編集中のﾌｧｲﾙと同じです｡", kConfirm);
    return false;
  }
  return mayReplaceDesign(dataFile) && makeTable(dataFile, memo, itemsOf(design));
}

bool frmDESIGN::changeOpenTable(const Text& memo, const std::vector<DesignRow>& design) {
  bool withRecords = false;
  if (divisionChanges(itemsOnDisk(), design)) {
    const Text question =
        u"項目幅区切り又は左／右詰め項目に変更がありました、新設定に沿って既存データを書き換えますか。\r"
        u"書き換えるは　はい　　区切りのみ変更しデータはそのままの場合は いいえ を選択";
    withRecords = askYesNo(question, u"<<<<<書き換えますか>>>>>　？");
    if (msgAnswer == kCancel) return false;
  }
  return redesignTable(memo, design, withRecords);
}

void frmDESIGN::finish() {
  done = true;
  // The cell of the table is news, whatever was said a moment ago.
  talkLast = 0;
  if (purpose_ == DesignFor::csv) {
    const Silence silence;
    return screen().unload(*this);
  }
  mode.clear();
  closeAndEnter(*this);
}

// --- 中止 ------------------------------------------------------------------------------------------------------

void frmDESIGN::frmDESIGN_Command2_Click() {
  if (File1.visible()) {
    closeReference();
    return showOK(u"参照ファイルリストを閉じました", u"参照ファイルリストクローズ");
  }
  const bool toPicker = purpose_ == DesignFor::csv && loadedForm<frmDISK>();
  if (!docPath.empty() || toPicker) return screen().unload(*this);
  if (!askYesNo(u"Zelkoを終了しますか？", kConfirm)) return;
  talkEnd();
  throw ProgramEnd{};
}

// --- The reference boxes ---------------------------------------------------------------------------------------

void frmDESIGN::unvisible() {
  for (Control* control : {static_cast<Control*>(&Label5), static_cast<Control*>(&Drive1), static_cast<Control*>(&Dir1),
                           static_cast<Control*>(&File1)})
    control->setVisible(false);
}

// The focus goes back to the design table first, without a word.
void frmDESIGN::closeReference() {
  const Silence silence;
  itemin.setFocus();
  unvisible();
}

void frmDESIGN::showReference(bool csvFiles) {
  listsCsv_ = csvFiles;
  File1.setPattern(csvFiles ? u"*.csv" : u"k?*.txt");
  boxes_.refresh();
  for (Control* control : {static_cast<Control*>(&Label5), static_cast<Control*>(&Drive1), static_cast<Control*>(&Dir1),
                           static_cast<Control*>(&File1)})
    control->setVisible(true);
  File1.setFocus();
}

Text frmDESIGN::chosenTable() const {
  return File1.listIndex() < 0 ? Text() : pathIn(File1.path(), tableOfItemFile(File1.fileName()));
}

Text frmDESIGN::shapeOfChosen() const {
  if (listsCsv_) return spokenName(File1.fileName());
  const Text name = spokenName(tableOfItemFile(File1.fileName()));
  TableDescription table;
  if (readDescription(pathIn(File1.path(), File1.fileName()), table) != ReadResult::ok)
    return name + u"。です。Zelkoﾌｧｲﾙでないかもしれません。";
  const auto count = static_cast<std::int64_t>(table.items.size()) - 1;
  if (count == 0) return name + markStop + u"項目はID項目のみで、項目名は" + trimmed(table.items[0].name) + u"。です。";
  return name + markStop + u"項目数" + decimal(count) + u"のファイルです" + u"第1項目の、項目名は" +
         trimmed(table.items[1].name) + u"。です。";
}

void frmDESIGN::frmDESIGN_File1_Click() {
  boxes_.sayMarkedFile([this] { return shapeOfChosen(); });
}

bool frmDESIGN::readKToDesign(TextView path, TextView drive) {
  TableDescription table;
  if (readDescription(itemFilePath(path, drive), table) != ReadResult::ok) {
    tellFailure(u"Zelkoﾌｧｲﾙでないか、項目設定を記述したﾌｧｲﾙが不良です", u"項目ﾌｧｲﾙ読込エラー");
    return false;
  }
  cells_.reshape([&] { fill(table.items); });
  // The place alone tells which item of the open table a row was.
  const int inTable = changesTable_ ? itemCount : -1;
  for (int item = 0; item <= highest(); ++item) oldItems_[static_cast<std::size_t>(item)] = item <= inTable ? item : -1;
  showCount();
  return true;
}

void frmDESIGN::frmDESIGN_Command3_Click() {
  if (!File1.visible() || listsCsv_) return showReference(false);
  const Text table = chosenTable();
  Text drive, path, report;
  splitName(table, drive, path);
  if (!table.empty()) {
    if (!readKToDesign(path, drive)) return;
    report = spokenName(tableOfItemFile(File1.fileName())) + u"の項目設定を写しました。";
  }
  closeReference();
  {
    const Silence silence;
    cells_.enter(1, static_cast<int>(DesignColumn::name));
  }
  talkS(*this, report + cellSentence());
}

// --- The doors -------------------------------------------------------------------------------------------------

bool showTableDesign(DesignFor purpose) {
  unload<frmDESIGN>();
  Screen::HandlerScope scope;  // the form is still there when its own unloading has ended it
  frmDESIGN& design = form<frmDESIGN>();
  design.take(purpose);
  design.showModal();
  return design.done;
}

namespace {

void designFor(DesignFor purpose) {
  storeTypedCell();
  showTableDesign(purpose);
}

void changeDesign() {
  if (docPath.empty()) return host().beep();
  designFor(DesignFor::openTable);
}

// The picker goes on with the list of CSV files, over the table that they are read into.
void designForCsv() {
  if (!commandOf(u"csvREAD")) return host().beep();
  storeEditedTable();
  csvSurveyed = {};
  const Text before = mode;
  if (!showTableDesign(DesignFor::csv)) {
    mode = before;
    return;
  }
  frmDISK* picker = loadedForm<frmDISK>();
  if (!picker) return mode.clear();
  const Form1* main = loadedForm<Form1>();
  if (!main || !main->visible()) enterEditor();
  picker->take(PickFor::csv);
  if (!csvSurveyed.file.empty()) picker->choose(csvSurveyed.file);
  picker->activate();
  picker->sayJob();
}

}  // namespace

void registerTableDesign() {
  registerForm<frmDESIGN>();
  registerCommand(u"mnuNEW", [] { designFor(DesignFor::newTable); });
  registerCommand(u"mnuKOUMOKU", changeDesign);
  registerCommand(u"SVCread", designForCsv);
}

}  // namespace zelko
