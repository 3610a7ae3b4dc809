// The question with yes, no and cancel, and the entry of one line.
#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"

namespace zelko {

class frmCMSG : public Form {
 public:
  static constexpr TextView kName = u"frmCMSG";
  frmCMSG();

  Label lblMSG;
  Button cmdYES, cmdNO, Command1;

 private:
  void wire(Button& button, std::int16_t answer, TextView spokenName);
  void frmCMSG_button_GotFocus(TextView spokenName);
  void frmCMSG_button_KeyDown(const Button& button, KeyEvent& key);
  void frmCMSG_button_KeyPress(CharEvent& event);
  void close(std::int16_t answer);
};

class frmTin : public Form {
 public:
  static constexpr TextView kName = u"frmTin";
  frmTin();

  Label Label1;
  TextBox Text1;
  Button Command1, Command2;

  // Puts in the text to begin with, marked whole, so that typing replaces it. Silent.
  void preset(TextView text);

 private:
  void frmTin_Text1_GotFocus();
  void frmTin_KeyDown(KeyEvent& key);
  void close(TextView answer);

  Text previous_;
};

}  // namespace zelko
