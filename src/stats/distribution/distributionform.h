// The distribution of one item: histogram or table, figures, and the next item with one key.
#pragma once

#include <cstdint>

#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "platform/forms/grid.h"
#include "stats/distribution/itemdistribution.h"
#include "stats/distribution/shapewords.h"
#include "stats/frame/datacheck.h"

namespace zelko {

class frmDIST : public Form {
 public:
  static constexpr TextView kName = u"frmDIST";
  frmDIST();

  Label lblITEM{*this, u"lblITEM", u"項目 :"};
  Label lblFILE{*this, u"lblFILE", u""};
  Label Label1{*this, u"Label1", u"記録"};
  Label lblFST{*this, u"lblFST", u""};
  Label Label2{*this, u"Label2", u"-"};
  Label lblLST{*this, u"lblLST", u""};
  Label Label3{*this, u"Label3", u"排除"};
  Label Label12{*this, u"Label12", u""};
  PictureBox Picture1{*this, u"Picture1"};
  Label lblNT{*this, u"lblNT", u"N="};
  Label lblN{*this, u"lblN", u""};
  Label lblTOTAL{*this, u"lblTOTAL", u""};
  Label Label4{*this, u"Label4", u"平均値="};
  Label lblMEAN{*this, u"lblMEAN", u""};
  Label Label5{*this, u"Label5", u"SD="};
  Label lblSD{*this, u"lblSD", u""};
  Label Label6{*this, u"Label6", u"u="};
  Label lblU{*this, u"lblU", u""};
  Label Label7{*this, u"Label7", u"最大値="};
  Label lblMAX{*this, u"lblMAX", u""};
  Label Label8{*this, u"Label8", u"最小値="};
  Label lblMIN{*this, u"lblMIN", u""};
  Label Label9{*this, u"Label9", u"階級幅="};
  Label lblWIDTH{*this, u"lblWIDTH", u""};
  Label Label10{*this, u"Label10", u"横軸(階級)区切"};
  Button cmdCLUP{*this, u"cmdCLUP", u"増加"};
  Button Command1{*this, u"Command1", u"減少"};
  Label Label11{*this, u"Label11", u"縦軸倍率"};
  Button Command2{*this, u"Command2", u"伸張"};
  Button Command3{*this, u"Command3", u"縮小"};
  Button Command5{*this, u"Command5", u"棒ｸﾞﾗﾌ/表"};
  Button Command7{*this, u"Command7", u"ﾋﾟｸﾁｬｰ保存"};
  Button Command4{*this, u"Command4", u"ﾌｫｰﾑ印刷"};
  DataCheckButton CommandCheck{*this, RangeTest::start,
                               [this] { return std::vector{static_cast<std::int16_t>(item_)}; }};
  Button lblCR{*this, u"lblCR", u"次項目(CR)"};
  Button Command6{*this, u"Command6", u"終(ESC)"};

  // Reads the item in those records, computes and draws. An item without a number is told.
  void readup(int item, std::int32_t first, std::int32_t last);

 private:
  void place();
  void wire();
  void narrate();
  void frmDIST_KeyDown(KeyEvent& key);
  void frmDIST_Picture1_KeyDown(KeyEvent& key);
  void changeClasses(int by);
  void changeScale(float by);
  void frmDIST_lblCR_Click();
  void frmDIST_Command4_Click();
  void frmDIST_Command5_Click();
  void frmDIST_Command6_Click();
  void frmDIST_Command7_Click();
  void endAtCell();

  bool load();
  void draw();
  void drawSheet();
  void fillLabels();
  void fillFigures();
  void showTable();
  void showTableWindow();
  void walkTo(int k);
  bool hasData() const { return data_.n() > 0; }
  Text summary() const;
  Text pictureSentence() const;

  int item_ = 0;
  std::int32_t first_ = 1, last_ = 0;
  ValueDistribution data_;
  int nClass_ = 15;
  float yScale_ = 1;
  int walked_ = 1;  // the class that was read last
  bool table_ = false;
  bool stopped_ = false;  // the reading of the item
  bool asking_ = false;   // between two questions the picture has nothing to say
  ShapeKey shape_;
  PictureBox sheet_{*this, u"Picture2"};  // graph and figures in one, for paper and file
};

}  // namespace zelko
