// The form that shows a help text.
#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"

namespace zelko {

class frmHelp : public Form {
 public:
  static constexpr TextView kName = u"frmHelp";
  frmHelp();

  RichTextBox Text1{*this, u"Text1"};
  Button Command1{*this, u"Command1", u"戻る(esc)"};

 private:
  void frmHelp_Text1_KeyUp(KeyEvent& key);
};

}  // namespace zelko
