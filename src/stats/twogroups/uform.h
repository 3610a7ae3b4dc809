// Two groups of values compared: by ranks, and by random reassignment.
#pragma once

#include <array>
#include <optional>

#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "platform/forms/grid.h"
#include "stats/numbers/utest.h"
#include "stats/twogroups/sample.h"

namespace zelko {

class FrmU : public Form {
 public:
  static constexpr TextView kName = u"FrmU";
  FrmU();

  Label Label1{*this, u"Label1", u"群1の名前"};
  TextBox Text3{*this, u"Text3"};
  Label Label2{*this, u"Label2", u"群2の名前"};
  TextBox Text4{*this, u"Text4"};
  Grid Grid1{*this, u"Grid1"};
  TextBox Text1{*this, u"Text1"};
  Grid Grid2{*this, u"Grid2"};
  TextBox Text2{*this, u"Text2"};
  Button Command2{*this, u"Command2", u"u-test"};
  Label Label3{*this, u"Label3", u""};  // U and its bound
  Label Label4{*this, u"Label4", u"再割付回数"};
  TextBox Text5{*this, u"Text5"};
  Button Command5{*this, u"Command5", u"組換え法"};
  Label Label5{*this, u"Label5", u""};  // trials done, and the rates
  Button Command1{*this, u"Command1", u"KEKKA出力"};
  Button Command4{*this, u"Command4", u"ﾌｫﾙﾀﾞ変更"};
  Button Command3{*this, u"Command3", u"中止(esc)"};

 private:
  struct Groups {
    std::vector<double> first, second;
  };
  struct Rates {
    int trials = 0;
    double sum = 0;
    Text higher, lower;
  };
  void wire();
  void narrate();
  void buildMenu();
  void forgetResults();
  std::optional<Groups> readGroups();
  bool ordering(const Groups& groups);
  void FrmU_Command1_Click();
  void FrmU_Command2_Click();
  void FrmU_Command5_Click();
  void sayResult();

  Sample sample1_{Grid1, Text1, u"群1"}, sample2_{Grid2, Text2, u"群2"};
  std::array<Text, 3> previous_;  // of the names and the number of trials
  std::optional<Groups> groups_;
  std::optional<numbers::UTest> test_;
  std::optional<Rates> rates_;
};

// The form and mnuU.
void Utest();
void registerUForm();

}  // namespace zelko
