// The form that stands while long work runs.
#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"

namespace zelko {

class frmDOE : public Form {
 public:
  static constexpr TextView kName = u"frmDOE";
  frmDOE();

  Label Label1;
  Button Command1;
  bool stopAsked = false;

 private:
  void frmDOE_Command1_GotFocus();
};

}  // namespace zelko
