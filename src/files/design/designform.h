// The form of table design.
#pragma once

#include <vector>

#include "files/design/design.h"
#include "files/design/designcheck.h"
#include "parts/disk/diskboxes.h"
#include "parts/grid/celleditor.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "platform/forms/grid.h"

namespace zelko {

class frmDESIGN : public Form {
 public:
  static constexpr TextView kName = u"frmDESIGN";
  frmDESIGN();

  Label Label1{*this, u"Label1", u"項目数"};
  RichTextBox text1{*this, u"text1"};
  Label Label2{*this, u"Label2", u"表メモ"};
  RichTextBox text2{*this, u"text2"};
  Label Label10{*this, u"Label10", u"ﾌｧｲﾙ名（拡張子つけない)"};
  RichTextBox text3{*this, u"text3"};
  Label Label4{*this, u"Label4", u"ﾌｧｲﾙ名をﾄﾞﾗｲﾌﾞとﾌﾙﾊﾟｽで入力して下さい｡拡張子はtxtのみです。入力の必要有りません"};
  Label Label3{*this, u"Label3",
               u"各項目の項目名、左づめ､みぎづめで配置するか､を､RまたはLで指定、項目幅(半角文字数)を､該当セルに記入"};
  Grid Grid1{*this, u"Grid1"};
  RichTextBox itemin{*this, u"itemin"};  // lies over the current cell of the grid: all typing goes through it
  Label Label9{*this, u"Label9", u"挿入"};
  Label Label8{*this, u"Label8", u"表の記入が終ったら｢決定」を押して下さい｡後で変更可能です。"};
  Button Command1{*this, u"Command1", u"決定"};
  Button Command2{*this, u"Command2", u"中止(ESC)"};
  Button Command3{*this, u"Command3", u"他ﾌｧｲﾙ参照.on/off"};
  Button Command4{*this, u"Command4", u"CSVﾌｧｲﾙから項目名と項目幅を提案"};  // where the items of one are designed
  Label Label5{*this, u"Label5", u"項目ﾃﾞｻﾞｲﾝ参考ﾌｧｲﾙの指定"};
  DriveBox Drive1{*this, u"Drive1"};
  FolderBox Dir1{*this, u"Dir1"};
  FileBox File1{*this, u"File1"};

  bool done = false;  // the table was made or changed

  // Before it is shown; a new table is designed where nothing is told.
  void take(DesignFor purpose);

  // The rows of the design, the ID item first.
  std::vector<DesignRow> rows() const;
  // Loads an item file straight into the grid; false, told, and nothing changed, where it is none.
  bool readKToDesign(TextView path, TextView drive);

 private:
  void wireBoxes();
  void wireCells();
  void wireReference();
  void wireButtons();
  void narrate();
  void startNew();
  void startFromTable();
  void setBoxes(TextView count, TextView memo, TextView file);

  void frmDESIGN_Activate();
  void frmDESIGN_box_Change(RichTextBox& box, Text& previous);
  void sayChange(const RichTextBox& box, Text& previous);
  void frmDESIGN_box_KeyDown(RichTextBox& box, KeyEvent& key);
  void frmDESIGN_text1_LostFocus();
  void frmDESIGN_File1_Click();
  void frmDESIGN_Command1_Click();
  void frmDESIGN_Command2_Click();
  void frmDESIGN_Command3_Click();
  void frmDESIGN_Command4_Click();

  // The writing cell.
  static CellRules cellRules();
  int item() const { return cells_.row() - 1; }
  int highest() const { return Grid1.rows() - 2; }
  Text cellSentence() const;
  Text rowInserted(int item);
  Text rowDeleted(int item);

  // The shape of the grid.
  void setHeadings();
  void setRow(int item, const DesignRow& row);
  DesignRow row(int item) const;
  static DesignRow addedRow(int item);
  void setItems(int highest);
  void fill(const std::vector<ItemLine>& items);
  bool applyCount();
  void showCount();

  // What 決定 does.
  bool changesOpenTable(const Text& dataFile) const;
  bool makeOrChange(const Text& dataFile, const Text& memo, const std::vector<DesignRow>& design);
  bool changeOpenTable(const Text& memo, const std::vector<DesignRow>& design);
  void finish();

  // The reference boxes.
  void unvisible();
  void showReference(bool csvFiles);
  void closeReference();
  Text chosenTable() const;
  Text shapeOfChosen() const;
  void proposeFrom(const Text& csvFile);

  DiskBoxes boxes_{Drive1, Dir1, File1};
  CellEditor cells_{Grid1, itemin, &Label9, cellRules()};
  std::vector<int> oldItems_;             // of each row: the item of the open table that it was, or -1
  Text presetFile_;                       // the file box as it was at the start
  Text lastCount_, lastMemo_, lastFile_;  // the boxes at their last change
  DesignFor purpose_ = DesignFor::newTable;
  Text word_;                  // published in `mode`
  bool listsCsv_ = false;      // the boxes show CSV files, not tables
  bool changesTable_ = false;  // the design of the open table is being changed
  bool opened_ = false;        // the opening sentence is said
  bool marked_ = false;        // the whole text of the box is marked: what is typed replaces it
  bool filling_ = false;       // the program fills a box
};

}  // namespace zelko
