// The dialog of record and item blocks.
#pragma once

#include <functional>

#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "tablejobs/blocks/blocks.h"

namespace zelko {

class FrmBROCK : public Form {
 public:
  static constexpr TextView kName = u"FrmBROCK";
  FrmBROCK();

  Label Label1{*this, u"Label1", u""};
  Label Label2{*this, u"Label2", u"記録範囲"};
  TextBox Text1{*this, u"Text1"};
  Label Label3{*this, u"Label3", u"項目範囲"};
  TextBox Text2{*this, u"Text2"};
  Button Command1{*this, u"Command1", u"実行(CR)"};
  Button Command2{*this, u"Command2", u"中止(ESC)"};

  int firstItem = 0;  // of the item range that an empty box stands for
  // Both boxes are right; the form is still there. Without it the form goes.
  std::function<void(const BlockRanges&)> use;

 private:
  void FrmBROCK_Activate();
  void FrmBROCK_Change(TextBox& box, Text& previous);
  void FrmBROCK_Command1_Click();
  void FrmBROCK_Command2_Click();
  bool isRange(TextBox& box, int kind, TextView title);

  Text lastRecords_, lastItems_;
  bool opened_ = false, filling_ = false;
};

}  // namespace zelko
