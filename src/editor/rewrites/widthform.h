// The width of the current item, changed by ear: each step is shown in the sheet and spoken, and only the commit
// writes.
#pragma once

#include <array>

#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "store/table/table.h"

namespace zelko {

class frmFLN : public Form {
 public:
  static constexpr TextView kName = u"frmFLN";
  frmFLN();

  TextBox Text1{*this, u"Text1"};  // the cell as it would be
  Button Command1{*this, u"Command1", u"項目幅広げる(shift+ｽﾍﾟｰｽ)"};
  Button Command2{*this, u"Command2", u"項目幅せばめる(ctrl+ｽﾍﾟｰｽ)"};
  Button Command3{*this, u"Command3", u"現ﾌｧｲﾙ読込/最近の項目挿入操作時項目幅に戻す"};
  Button Command4{*this, u"Command4", u"確定(CR)"};
  Button Command5{*this, u"Command5", u"中止(ESC)"};
  Button Command6{*this, u"Command6", u"今の変更作業初期状態に戻す"};

  int firstStep = 0;  // taken once the form has said what it is
  // The cell of the cursor into Text1, unheard.
  void showRuler();

 private:
  void wire();
  void narrate();
  void takeFirstStep();
  void close();
  void frmFLN_KeyDown(KeyEvent& key);
  void frmFLN_Command4_Click();
  void frmFLN_Command5_Click();
  Text sentence() const;
  std::array<std::int16_t, kMaxItems> widthsAtStart_ = itemWidth;
};

// Opens the form on the current item and, where `step` is 1 or -1, makes the item that much wider or narrower at once;
// returns when the form is closed. The caller has committed the box.
void changeWidth(int step);

}  // namespace zelko
