// The form that asks for two runs of items and for the folder of the report on their rank correlations.
#pragma once

#include <optional>

#include "parts/disk/diskboxes.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "platform/forms/lists.h"
#include "stats/correlation/spearmanrun.h"
#include "stats/frame/datacheck.h"

namespace zelko {

class frmRS : public Form {
 public:
  static constexpr TextView kName = u"frmRS";
  frmRS();

  Label Label1{*this, u"Label1",
               u"ｸﾞﾙｰﾌﾟ１、ｸﾞﾙｰﾌﾟ２で指定するすべての項目間の各記録のﾃﾞｰﾀをNとした順位相関係数を求めます。"};
  Label Label2{*this, u"Label2", u"群1の項目"};
  Label Label5{*this, u"Label5", u"ｸﾞﾙｰﾌﾟ1項目の先頭項目番号"};
  TextBox Text1{*this, u"Text1"};
  Label Label6{*this, u"Label6", u"ｸﾞﾙｰﾌﾟ1項目の最終項目番号"};
  TextBox Text2{*this, u"Text2"};
  Label Label3{*this, u"Label3", u"群2の項目"};
  Label Label7{*this, u"Label7", u"ｸﾞﾙｰﾌﾟ２項目の先頭項目番号"};
  TextBox Text3{*this, u"Text3"};
  Label Label8{*this, u"Label8", u"ｸﾞﾙｰﾌﾟ２項目の最終項目番号"};
  TextBox Text4{*this, u"Text4"};
  CheckBox Check1{*this, u"Check1", u"0排除/含める"};
  Label Label4{*this, u"Label4", u"kekka.txtのパス"};
  Label Label9{*this, u"Label9", u""};
  DriveBox Drive1{*this, u"Drive1"};
  FolderBox Dir1{*this, u"Dir1"};
  FileBox File1{*this, u"File1"};
  CheckBox Check2{*this, u"Check2", u"kekka.text追加/新規"};
  Button Command1{*this, u"Command1", u"実行"};
  Button Command2{*this, u"Command2", u"ｷｬﾝｾﾙ"};
  Button Command3{*this, u"Command3", u"フォルダ作成(&F)"};
  DataCheckButton CommandCheck{*this, RangeTest::bothEnds, [this] { return chosenItems(); }};

 private:
  void wire();
  void wireBox(TextBox& box, TextView request);
  void narrate();
  void showFolder();
  std::optional<ItemRun> itemsFrom(TextBox& first, TextBox& last);
  std::vector<std::int16_t> chosenItems() const;  // as far as the boxes are right
  void refuse(TextBox& box);
  Text boxSentence(const TextBox& box) const;
  void frmRS_Command1_Click();
  void frmRS_Command2_Click();

  DiskBoxes boxes_{Drive1, Dir1, File1};
};

// The form and mnuRS.
void registerRankForm();

}  // namespace zelko
