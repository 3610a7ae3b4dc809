// The calculator for a typed table of n by m counts, with a simulation of chance tables.
#pragma once

#include <optional>

#include "parts/grid/celleditor.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "stats/numbers/contingency.h"

namespace zelko {

class frmRCkai : public Form {
 public:
  static constexpr TextView kName = u"frmRCkai";
  frmRCkai();

  Label Label1{*this, u"Label1", u"行のカテゴリ数"};
  TextBox Text1{*this, u"Text1"};
  Label Label2{*this, u"Label2", u"列のカテゴリ数"};
  TextBox Text2{*this, u"Text2"};
  Label Label3{*this, u"Label3", u"セルの頻度"};
  TextBox Text4{*this, u"Text4"};
  Grid Grid1{*this, u"Grid1"};
  Label Label4{*this, u"Label4", u"カイ自乗値="};
  Label Label5{*this, u"Label5", u"df="};
  Label Label6{*this, u"Label6", u"P="};
  Label Label7{*this, u"Label7", u"連関値(C1)="};
  Label Label14{*this, u"Label14", u"SQR(カイ自乗値/(N×(大きいほうのカテゴリ数-1))"};
  Label Label8{*this, u"Label8", u"連関値(C2)="};
  Label Label15{*this, u"Label15", u"クラメールのV"};
  Label Label9{*this, u"Label9", u"連関値(C3)="};
  Label Label16{*this, u"Label16", u"チュプロフのT"};
  Label Label10{*this, u"Label10", u"試行回数"};
  TextBox Text3{*this, u"Text3"};
  Label Label11{*this, u"Label11", u""};  // hits of the simulation
  Label Label13{*this, u"Label13", u""};  // their rate
  Button Command1{*this, u"Command1", u"ﾓﾝﾃｶﾙﾛｼﾐｭﾚｰｼｮﾝ"};
  Button Command2{*this, u"Command2", u"中止(esc)"};

 private:
  void wire();
  void wireCount(TextBox& box, int& count);
  void narrate();
  // The titles of rows and columns, "合計" the last.
  void xTitle();
  void yTitle();
  void resize();
  void takeCount(int count, int& kept);
  std::optional<numbers::Counts> counts() const;
  void compute();
  void showSums();
  void showResult();
  Text cellSentence(int row, int col);
  Text resultSentence() const;
  void frmRCkai_KeyDown(KeyEvent& key);
  void frmRCkai_Command1_Click();

  int rows_ = 2, columns_ = 2;
  CellEditor cells_{Grid1,
                    Text4,
                    nullptr,
                    {.lastCol = 3,
                     .passed = {3},
                     .left = CellLeft::checked,
                     .rowsChange = false,
                     .growsOnEnter = false,
                     .marks = true,
                     .arrowsLeaveEmpty = true,
                     .walksGrid = true}};
  numbers::ContingencyTest test_;
  bool isWhole_ = false;  // each cell holds a count
  bool isNews_ = false;   // the result has not been said yet
  Text simulated_;        // the sentence of the last simulation of this table
};

// The form and mnunm.
void registerContingencyForm();

}  // namespace zelko
