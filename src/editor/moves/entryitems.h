// Entry items: the cursor going forward visits only the items marked here.
#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "platform/forms/grid.h"

namespace zelko {

class Form5 : public Form {
 public:
  static constexpr TextView kName = u"Form5";
  Form5();

  Grid Grid1{*this, u"Grid1"};  // number, name, mark
  Button Command1{*this, u"Command1", u"OK"};
  Button Command2{*this, u"Command2", u"キャンセル"};

 private:
  void Form5_Grid1_KeyPress(CharEvent& event);
  void Form5_Command1_Click();
  void Form5_Command2_Click();
  void mark(bool on);
  Text rowSentence() const;
};

void registerEntryItems();

}  // namespace zelko
