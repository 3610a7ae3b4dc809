// The message, the question with OK or cancel, and the closing form of a computation.
#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"

namespace zelko {

class FrmOK : public Form {
 public:
  static constexpr TextView kName = u"FrmOK";
  FrmOK();

  Label Label1;
  Button Command1;

 private:
  void FrmOK_Activate();
  void FrmOK_Command1_Click();
};

class frmOKCAN : public Form {
 public:
  static constexpr TextView kName = u"frmOKCAN";
  frmOKCAN();

  Label Label1;
  Button Command1, Command2;

 private:
  void frmOKCAN_Activate();
  void close(bool answer);
};

class FrmRepeat : public Form {
 public:
  static constexpr TextView kName = u"FrmRepeat";
  FrmRepeat();

  Label Label1;
  Button Command1, Command2;
  Text result;

 private:
  void FrmRepeat_Activate();
  void FrmRepeat_Command1_Click();
  void FrmRepeat_Command2_Click();
};

}  // namespace zelko
