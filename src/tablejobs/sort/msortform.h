// Sorting by several keys: the table of the keys.
#pragma once

#include "parts/grid/celleditor.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "platform/forms/grid.h"
#include "tablejobs/sort/sorttable.h"

namespace zelko {

class frmMSORT : public Form {
 public:
  static constexpr TextView kName = u"frmMSORT";
  frmMSORT();

  Label Label1{*this, u"Label1", u""};  // the row
  Label Label2{*this, u"Label2", u""};  // what the column wants
  Grid Grid1{*this, u"Grid1"};
  TextBox Text1{*this, u"Text1"};
  Label Label3{*this, u"Label3", u"挿入"};
  Button Command1{*this, u"Command1", u"実行"};
  Button Command2{*this, u"Command2", u"ｷｬﾝｾﾙ(ESC)"};

  bool intoFile = false;  // what it is for; else the open table is put in order
  // Of the table that was checked last.
  const std::vector<SortKey>& keys() const { return keys_; }
  void enableButtons(bool enabled);
  // The number into the item of the current row.
  void takeItem(int item);

 private:
  void wireCells();
  void narrate();
  void frmMSORT_Activate();
  void frmMSORT_KeyDown(KeyEvent& key);
  static Text frmMSORT_Command1_GotFocus();
  void frmMSORT_Command1_Click();
  void frmMSORT_Command2_Click();

  static CellRules cellRules();
  Text nameOfRow(int row) const;
  Text promptOf(int row, int col) const;
  Text cellSentence(int row, int col) const;
  std::vector<SortRow> rows() const;
  bool checkTable();

  CellEditor cells_{Grid1, Text1, &Label3, cellRules()};
  std::vector<SortKey> keys_;
  bool opened_ = false;
};

void registerSortTable();
// mnuMSORT and mnuMSORTF.
void openSortByKeys();
void openSortByKeysIntoFile();
// The word of the second one, and what is done with its output: the name settled, or given up.
inline constexpr TextView kSortByKeysJob = u"MSORTF";
void sortByKeysIntoFile(const Text& fullName);
void keepSortForm();
// Unloads the form, where it is open, without a word; the cursor goes to the first cell then.
void closeSortForm();

}  // namespace zelko
