// The calculator for a typed 2 by 2 table, with a simulation of chance tables.
#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "stats/numbers/fourfold.h"

namespace zelko {

class frmKAI : public Form {
 public:
  static constexpr TextView kName = u"frmKAI";
  frmKAI();

  Label Label15{*this, u"Label15", u"ｾﾙ　１　の　１の頻度"};
  TextBox Text1{*this, u"Text1"};
  Label Label16{*this, u"Label16", u"ｾﾙ　２　の　１　の頻度"};
  TextBox Text2{*this, u"Text2"};
  Label Label17{*this, u"Label17", u"ｾﾙ　１　の　２　の　頻度？"};
  TextBox Text3{*this, u"Text3"};
  Label Label18{*this, u"Label18", u"ｾﾙ　２　の　２　の頻度"};
  TextBox Text4{*this, u"Text4"};
  Label Label5{*this, u"Label5", u"列と行の計"};
  Label Label1{*this, u"Label1", u""};  // a + c
  Label Label2{*this, u"Label2", u""};  // b + d
  Label Label3{*this, u"Label3", u""};  // a + b
  Label Label4{*this, u"Label4", u""};  // c + d
  Label Label6{*this, u"Label6", u"カイ自乗値"};
  Label Label7{*this, u"Label7", u""};
  Label Label8{*this, u"Label8", u"連関値"};
  Label Label9{*this, u"Label9", u""};
  Label Label10{*this, u"Label10", u"確率"};
  Label Label11{*this, u"Label11", u""};
  Label Label12{*this, u"Label12", u""};  // "Yete's修正済", or why there is no result
  Label Label13{*this, u"Label13", u"試行回数"};
  TextBox Text5{*this, u"Text5"};
  Label Label14{*this, u"Label14", u""};  // the simulation
  Button Command2{*this, u"Command2", u"ﾓﾝﾃｶﾙﾛｼﾐｭﾚｰｼｮﾝ"};
  Button Command1{*this, u"Command1", u"終了(esc)"};

 private:
  void wire();
  void narrate();
  struct Cells {
    numbers::Fourfold table;
    TextBox* wrong = nullptr;  // the first box that holds no count of 16 bits
    bool isWhole = true;       // each holds one
  };
  Cells cells();
  // Sums and result of what the boxes hold; blank while they are unfinished.
  void readkai();
  void tellWrong();
  Text resultSentence();
  void frmKAI_box_Enter(TextBox* next);
  void frmKAI_KeyDown(KeyEvent& key);
  void frmKAI_Command2_Click();

  numbers::FourfoldTest test_;
  Text simulated_;  // the sentence of the last simulation of this table
  bool hasResult_ = false, isNew_ = true;
};

// The form and mnuKAI.
void registerFourfoldForm();

}  // namespace zelko
