// One form, five calculators: a value is typed, and its probability stands beside it at each keystroke.
#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "stats/calculators/calculation.h"

namespace zelko {

class FrmCPr : public Form {
 public:
  static constexpr TextView kName = u"FrmCPr";
  FrmCPr();

  Label Label10{*this, u"Label10", u""};
  CheckBox Check1{*this, u"Check1", u"素点入力"};
  Label Label5{*this, u"Label5", u""};
  TextBox Text1{*this, u"Text1"};
  Label Label6{*this, u"Label6", u"標準偏差入力"};
  TextBox Text2{*this, u"Text2"};
  Label Label8{*this, u"Label8", u"平均値入力"};
  TextBox Text3{*this, u"Text3"};
  Label Label3{*this, u"Label3", u""};
  Label Label4{*this, u"Label4", u"----＞"};
  Label Label1{*this, u"Label1", u""};
  Button Command1{*this, u"Command1", u"終了(esc)"};

  // What the form is for; before it is shown.
  void take(Calculator kind);

 private:
  void wire();
  void narrate();
  void nameBoxes();
  void FrmCPr_Text_Change(std::size_t box);
  void FrmCPr_Text_Enter();
  void FrmCPr_Check1_Click();
  void showResult();
  void sayResult();
  Calculation result() const;

  Calculator kind_ = Calculator::normal;
  std::array<Text, 3> previous_;
};

// The form and its five menu entries.
void registerCalculators();

}  // namespace zelko
