// The dialog in which a range is chosen: it holds the keyboard while the cursor walks to the far corner.
#pragma once

#include <cstdint>

#include "platform/forms/controls.h"
#include "platform/forms/form.h"

namespace zelko {

class frmHANI : public Form {
 public:
  static constexpr TextView kName = u"frmHANI";
  frmHANI();

  Label Label1{*this, u"Label1", u"記録(行)"};
  TextBox Text1{*this, u"Text1"};  // rangeRec1
  TextBox Text2{*this, u"Text2"};  // rangeRec2
  Label Label3{*this, u"Label3", u"項目(列)"};
  TextBox Text3{*this, u"Text3"};  // rangeItem1
  TextBox Text4{*this, u"Text4"};  // rangeItem2
  TextBox Text5{*this, u"Text5"};  // the catcher of keys
  Label Label6{*this, u"Label6", u"どこから？（ｶｰｿﾙ移動+CR）"};
  Button Command2{*this, u"Command2", u"終(CR)"};
  Button Command1{*this, u"Command1", u"取消(esc)"};

  // Shows the dialog for the range variables of rangeKind; returns when the range is finished, dropped or used.
  void choose();

 private:
  void narrate();
  void frmHANI_KeyUp(KeyEvent& key);
  void frmHANI_Text5_KeyDown(KeyEvent& key);
  void frmHANI_Text5_KeyUp(KeyEvent& key);
  void frmHANI_Command2_Click();
  void frmHANI_Command1_Click();

  bool jumpKey(const KeyEvent& key);
  void answerKey(int number);
  void clip();
  void sum(int code);
  void fillBoxes();
  bool takeBoxes();
  void catchUp();
  void close();

  bool choosing_ = false;  // opened for a range
  bool leaving_ = false;   // a command uses the range up: the dialog asks for nothing any more
};

// Opens the dialog on the range variables of rangeKind, with these corners; returns when the range is finished, dropped
// or used.
void beginRange(std::int32_t rec1, std::int32_t rec2, std::int16_t item1, std::int16_t item2);

// One key that moves the cursor while a range is being chosen; nothing is stored, announced or reloaded. False for a
// key that moves nothing.
bool moveWhileChoosing(const KeyEvent& key);

}  // namespace zelko
