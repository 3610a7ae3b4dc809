// The form that extracts the records for which a table of conditions holds.
#pragma once

#include "parts/grid/celleditor.h"
#include "tablejobs/extract/conditions.h"
#include "tablejobs/extract/extraction.h"

namespace zelko {

class Form7 : public Form {
 public:
  static constexpr TextView kName = u"Form7";
  Form7();

  Label Label2{*this, u"Label2", u"条件番号(若い程優先度が高い)"};
  Label Label3{*this, u"Label3", u"判断ﾀｲﾌﾟ(文字型：Ｌ　数値型：Ｎ)"};
  Label Label4{*this, u"Label4", u"判断ﾃﾞｰﾀ項目番号"};
  Label Label5{*this, u"Label5", u"比較判断記号(<>=<==>[ ] |を使って記述)"};
  Label Label6{*this, u"Label6", u"条件(@+数字は数字項目のﾃﾞｰﾀ)"};
  Grid Grid1{*this, u"Grid1"};
  TextBox Text1{*this, u"Text1"};  // lies over the current cell of the grid
  Label Label8{*this, u"Label8", u"挿入"};
  Label Label7{*this, u"Label7", u"無印／印あり"};
  CheckBox Check1{*this, u"Check1", u"大文字小文字無区別／区別"};
  CheckBox Check2{*this, u"Check2", u"逐一/自動(逐一の場合途中で変更可)"};
  CheckBox Check3{*this, u"Check3", u"正論理/負論理(合致しないもの検索)"};
  Button Command1{*this, u"Command1", u"検索"};
  Button Command2{*this, u"Command2", u"終了(ESC)"};
  Button Command3{*this, u"Command3", u"抽出(CR)"};
  Button Command4{*this, u"Command4", u"SKIP(&N)"};
  Label Label1{*this, u"Label1", u""};  // the prompt at a candidate
  Label Label9{*this, u"Label9", u""};  // progress

  // Checks the table of conditions and brings it into its form; the message of the first fault, or an empty text.
  Text checkCondTable();
  // The number of an item that was chosen from the list.
  void takeItem(int item);

 private:
  static CellRules cellRules();
  ExtractionRules rules();
  void wire();
  void narrate();
  Label& heading(int col);
  void markHeading();
  bool ready();
  ConditionLogic logic() const;
  std::vector<ConditionRow> rowsOfGrid() const;
  Text cellSentence(int row, int col);
  Text cellState() const;
  void Form7_Text1_KeyDown(KeyEvent& key);

  CellEditor cells_{Grid1, Text1, &Label8, cellRules()};
  Extraction extraction_;
  std::optional<ConditionTest> test_;
  std::vector<ConditionRow> tested_;  // the rows and the logic that test_ was made of
  ConditionLogic testedLogic_;
  int saidRow_ = 0;
};

// mnuMFIND, mnuFIND, their forms and their job in the output dialog.
void registerExtraction();

}  // namespace zelko
