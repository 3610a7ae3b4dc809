// The form that writes cells anew through a format: numbers, texts or dates.
#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "platform/forms/lists.h"
#include "tablejobs/replace/formatcell.h"

namespace zelko {

class frmFMT : public Form {
 public:
  static constexpr TextView kName = u"frmFMT";
  frmFMT();

  Label Label1{*this, u"Label1",
               u"指定範囲のﾃﾞｰﾀを　###.##、00.00　等の書式に従って書き換えます｡書式を入力して下さい。"};
  Label Label2{*this, u"Label2", u"書式入力"};
  TextBox Text1{*this, u"Text1"};
  Label Label3{*this, u"Label3", u"実行例"};
  TextBox Text2{*this, u"Text2"};
  OptionButton Option1{*this, u"Option1", u"数値型書式"};
  OptionButton Option2{*this, u"Option2", u"文字型書式"};
  OptionButton Option3{*this, u"Option3", u"日付型書式"};
  ComboBox Combo1{*this, u"Combo1"};
  Button Command1{*this, u"Command1", u"実行(CR)"};
  Button Command2{*this, u"Command2", u"取消(esc)"};
  Button Command4{*this, u"Command4", u"参照"};
  Button Command3{*this, u"Command3", u"ヘルプ"};

 private:
  void wire();
  void narrate();
  FormatKind kind() const;
  void frmFMT_Option_Click();
  void frmFMT_Combo1_Click();
  void frmFMT_Text1_Change();
  void frmFMT_Command1_Click();
  void frmFMT_Command4_Click();
  void showSample();

  Text previous_;
};

// The form and mnuF.
void registerFormatForm();

}  // namespace zelko
