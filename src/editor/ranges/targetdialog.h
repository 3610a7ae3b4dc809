// The dialog in which the destination of a move or copy is pointed at.
#pragma once

#include <cstdint>

#include "editor/ranges/targetpointer.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"

namespace zelko {

class frmMSSG : public Form {
 public:
  static constexpr TextView kName = u"frmMSSG";
  frmMSSG();

  Label Label1{*this, u"Label1", u""};  // what is being done
  TextBox Text2{*this, u"Text2"};       // the destination; its keys move the pointer
  Button Command1{*this, u"Command1", u""};
  Button Command2{*this, u"Command2", u"中止(ESC)"};
  Pointing pointing = Pointing::cellsToCopy;

 private:
  void frmMSSG_Text2_KeyDown(KeyEvent& key);
  void frmMSSG_Command1_Click();
  void moveRecordsThere();
  void moveItemsThere();
  void moveDataThere();

  Text pointed_;  // what the pointer said last
};

struct PointingWords {
  TextView mode, title, button, sentence;
};
// With the cursor and moveTo on the first destination: opens the dialog; returns when the work is done or was given up.
void pointAtTarget(Pointing what, const PointingWords& words);
// Esc: `mode` empty, no masks, no range, the input box ready and empty.
void moveCancel();

}  // namespace zelko
