// The form that counts the distinct texts of chosen items.
#pragma once

#include "parts/disk/diskboxes.h"
#include "parts/grid/itemchoice.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "platform/forms/grid.h"
#include "platform/forms/lists.h"
#include "stats/frame/datacheck.h"

namespace zelko {

class frmDISP : public Form {
 public:
  static constexpr TextView kName = u"frmDISP";
  frmDISP();

  Label Label1{*this, u"Label1",
               u"指定項目のﾃﾞｰﾀを種類別にｶｳﾝﾄし頻度を表示します.結果はKEKKA.TXTに出力されます。"
               u"集計項目の指定はｸﾘｯｸか数字「１」入力です。"};
  Grid Grid1{*this, u"Grid1"};
  DataCheckButton Check{*this, RangeTest::bothEnds, [this] { return choice_.marked(); }};
  Label Label2{*this, u"Label2", u""};
  DriveBox Drive1{*this, u"Drive1"};
  FolderBox Dir1{*this, u"Dir1"};
  FileBox File1{*this, u"File1"};
  CheckBox Check1{*this, u"Check1", u"kekka.text追加/新規"};
  Button Command1{*this, u"Command1", u"実行(CR)"};
  Button Command2{*this, u"Command2", u"ｷｬﾝｾﾙ(ESC)"};
  Button Command3{*this, u"Command3", u"フォルダ作成(&F)"};

 private:
  void narrate();
  void showFolder();
  void frmDISP_Command1_Click();

  ItemChoice choice_{Grid1, 1};
  DiskBoxes boxes_{Drive1, Dir1, File1};
};

}  // namespace zelko
