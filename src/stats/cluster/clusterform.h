// The form of the cluster analysis: the distance, the method, what is put out.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "stats/cluster/clusterchoice.h"

namespace zelko {

class FrmCLUS : public Form {
 public:
  static constexpr TextView kName = u"FrmCLUS";
  FrmCLUS();

  Frame Frame1{*this, u"Frame1", u"距離マトリックスの種類"};
  OptionButton Option1{*this, u"Option1", u"ユークリッド平方距離", -1, &Frame1};
  OptionButton Option2{*this, u"Option2", u"標準化ユークリッド平方距離", -1, &Frame1};
  OptionButton Option3{*this, u"Option3", u"マハラノビス汎距離", -1, &Frame1};
  OptionButton Option4{*this, u"Option4", u"ﾐﾝｺﾌｽｷ距離(1:市街地距離 2:ﾕｰｸﾘｯﾄﾞ距離)", -1, &Frame1};
  TextBox Text1{*this, u"Text1"};
  Frame Frame2{*this, u"Frame2", u"クラスタ分析法"};
  OptionButton Option5{*this, u"Option5", u"最短距離法", -1, &Frame2};
  OptionButton Option7{*this, u"Option7", u"最長距離法", -1, &Frame2};
  OptionButton Option8{*this, u"Option8", u"群平均法", -1, &Frame2};
  OptionButton Option9{*this, u"Option9", u"重心法", -1, &Frame2};
  OptionButton Option10{*this, u"Option10", u"メジアン法", -1, &Frame2};
  OptionButton Option11{*this, u"Option11", u"Ward法", -1, &Frame2};
  OptionButton Option12{*this, u"Option12", u"可変法", -1, &Frame2};
  CheckBox Check1{*this, u"Check1", u"プロセス出力"};
  Label Label1{*this, u"Label1", u"対象記録が多い場合出力を指定すると大変時間がかかります"};
  CheckBox Check2{*this, u"Check2", u"デンドログラム描記"};
  Button Command1{*this, u"Command1", u"実行"};
  Button Command2{*this, u"Command2", u"中止"};

  void take(const std::vector<std::int16_t>& items);
  bool done = false;  // the report stands

 private:
  void wire();
  void narrate();
  std::vector<OptionButton*> distances();
  std::vector<OptionButton*> methods();
  // nullopt, told, where the exponent is none.
  std::optional<ClusterChoice> choice();
  void FrmCLUS_Command1_Click();
  void FrmCLUS_Command2_Click();

  std::vector<std::int16_t> items_;
};

}  // namespace zelko
