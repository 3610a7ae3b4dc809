// Student's t and the ratio of the deviations of two groups, from their means, deviations and counts.
#pragma once

#include <array>

#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "stats/numbers/ttest.h"

namespace zelko {

class frmT : public Form {
 public:
  static constexpr TextView kName = u"frmT";
  frmT();

  Label Label1{*this, u"Label1", u"ｸﾞﾙｰﾌﾟ１の平均値"};
  TextBox Text1{*this, u"Text1"};
  Label Label2{*this, u"Label2", u"ｸﾞﾙｰﾌﾟ１の標準偏差"};
  TextBox Text2{*this, u"Text2"};
  Label Label3{*this, u"Label3", u"ｸﾞﾙｰﾌﾟ１のﾃﾞｰﾀｽｳ"};
  TextBox Text3{*this, u"Text3"};
  Label Label4{*this, u"Label4", u"ｸﾞﾙｰﾌﾟ２の平均値"};
  TextBox Text4{*this, u"Text4"};
  Label Label5{*this, u"Label5", u"ｸﾞﾙｰﾌﾟ2の標準偏差"};
  TextBox Text5{*this, u"Text5"};
  Label Label6{*this, u"Label6", u"ｸﾞﾙｰﾌﾟ2のﾃﾞｰﾀｽｳ"};
  TextBox Text6{*this, u"Text6"};
  Label Label7{*this, u"Label7", u""};  // t, its degrees of freedom, its probability
  Label Label8{*this, u"Label8", u""};  // F and its degrees of freedom
  Button Command1{*this, u"Command1", u"終了(esc)"};

 private:
  struct Row {
    TextBox* box;
    Label* name;
  };
  void wire();
  void narrate();
  numbers::TTest result() const;
  void frmT_Text_Change(std::size_t box);
  void frmT_Text_Enter(std::size_t box);
  void readT();

  std::array<Row, 6> rows_;
  std::array<Text, 6> previous_;
};

// The form and mnuT.
void registerTForm();

}  // namespace zelko
