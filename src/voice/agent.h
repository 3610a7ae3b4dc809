// The form behind the second speech channel: what is written into its box, the talking character says.
#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"

namespace zelko {

// Loading it brings the character (Agent1 of old: the host's) on the screen; a character file that can't be
// loaded is a run-time fault. Shown without taking the focus.
class frmAGENT : public Form {
 public:
  static constexpr TextView kName = u"frmAGENT";
  frmAGENT();

  TextBox Text1;
  Button Command1, Command2;
  Frame Frame1;
  OptionButton Option1_0, Option1_1, Option1_2, Option1_3;
  Frame Frame2;
  OptionButton Option2_0, Option2_1, Option2_2, Option2_3;
  Frame Frame3;
  OptionButton Option3_0, Option3_1;

 private:
  void wireOptions();
  void frmAGENT_Text1_Change();
  void frmAGENT_Command1_Click();
  void giveBackSentence();
  void frmAGENT_Option1_Click(int index);
  void frmAGENT_Option2_Click(int index);
  void frmAGENT_Option3_Click(int index);
  void loadCharacter(TextView file);
  void tryTag(TextView tag, TextView word);

  // In front of each sentence; the last choice of speed or pitch alone holds.
  Text speedTag_;
  // What is to be said again: the name of the button that does so must not take its place.
  Text sentence_;
  bool givingBack_ = false;
};

}  // namespace zelko
