// Dialling the number of the current cell, or of its record, through a modem; the talk itself is the handset's.
#pragma once

#include "dial/dwcomm.h"
#include "dial/telsettings.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"

namespace zelko {

class frmTEL : public Form {
 public:
  static constexpr TextView kName = u"frmTEL";
  frmTEL();

  Label Label1{*this, u"Label1", u"電話番号"};
  TextBox Text1{*this, u"Text1"};
  Button Command1{*this, u"Command1", u"ダイアル"};
  Button Command2{*this, u"Command2", u"設定保存"};
  CheckBox Check1{*this, u"Check1", u"トーンダイアル"};
  Frame Frame1{*this, u"Frame1", u"ﾎﾟｰﾄ"};
  OptionButton Option1{*this, u"Option1", u"COM1", -1, &Frame1};
  OptionButton Option2{*this, u"Option2", u"COM2", -1, &Frame1};
  OptionButton Option3{*this, u"Option3", u"COM3", -1, &Frame1};
  Button Command3{*this, u"Command3", u"中止(ESC)"};
  Button Command4{*this, u"Command4", u"ポート設定"};
  CheckBox Check2{*this, u"Check2", u"電話のアプリに番号を渡す"};
  Timer Timer1{*this, u"Timer1"};
  dwComm PDQComm1;

 private:
  void wire();
  void narrate();
  void frmTEL_Activate();
  void frmTEL_Text1_Change();
  void frmTEL_Command1_Click();
  void frmTEL_Command2_Click();
  void frmTEL_Command3_Click();
  void frmTEL_Command4_Click();
  void frmTEL_Timer1_Timer();
  TelSettings settings() const;
  OptionButton& optionOf(int port);
  void phoneseting(TextView port, TextView device);
  void dial(const Text& number);
  void handOver(const Text& number);
  void hangUp();
  void fail();
  void setIdle();

  bool filled_ = false, filling_ = false, connected_ = false;
  Text previous_;
  std::string answer_;
};

void registerDialling();

}  // namespace zelko
