#include "stats/cluster/clusterform.h"

#include "parts/ask/typed.h"
#include "parts/grid/cellfault.h"
#include "parts/keys/enterkey.h"
#include "stats/cluster/clus.h"
#include "stats/frame/analysis.h"
#include "voice/narration.h"
#include "voice/talk.h"

namespace zelko {

namespace {

int chosenOf(const std::vector<OptionButton*>& options) {
  for (std::size_t k = 0; k < options.size(); ++k) {
    if (options[k]->value() != 0) return static_cast<int>(k);
  }
  return 0;
}

}  // namespace

FrmCLUS::FrmCLUS() : Form(kName, u"クラスタ分析") {
  Text1.setText(u"2");
  Text1.setWidth(1200);
  Text1.screenName = u"ﾐﾝｺﾌｽｷ距離の定数";
  Option1.setValue(1);
  Option5.setValue(1);
  for (Control* control :
       {static_cast<Control*>(&Option1), static_cast<Control*>(&Option2), static_cast<Control*>(&Option3),
        static_cast<Control*>(&Option4), static_cast<Control*>(&Check1), static_cast<Control*>(&Check2),
        static_cast<Control*>(&Command1)})
    control->place = Place::newRow;
  wire();
  narrate();
}

void FrmCLUS::wire() {
  toggleOnEnter(Check1);
  toggleOnEnter(Check2);
  Command1.onClick = [this] { FrmCLUS_Command1_Click(); };
  Command2.onClick = [this] { FrmCLUS_Command2_Click(); };
  Command1.isDefault = true;
  Command2.isCancel = true;
  onClose = [this] { FrmCLUS_Command2_Click(); };
}

void FrmCLUS::narrate() {
  Narration voice(*this);
  voice.explain(
      u"。距離の種類と、クラスタ分析の方法を選んで、実行します。"
      u"デンドログラム描記にチェックすると、図が作られ、併合の段を矢印ｷｰで聞くことができます。escで中止します。");
  for (const auto& options : {distances(), methods()}) {
    for (OptionButton* option : options) {
      voice.say(*option, [option] {
        return option->frame()->caption() + markPause + option->caption() + Text(option->value() ? u"選択中" : u"") +
               u"ｵﾌﾟｼｮﾝﾎﾞﾀﾝ";
      });
    }
  }
  voice.box(Text1, u"ﾐﾝｺﾌｽｷ距離の定数、1わ市街地距離、2わﾕｰｸﾘｯﾄﾞ距離ﾃｷｽﾄﾎﾞｯｸｽ");
  voice.check(Check1, u"対象記録が多い場合出力を指定すると大変時間がかかりますﾁｪｯｸﾎﾞｯｸｽ");
  voice.check(Check2, u"ﾁｪｯｸﾎﾞｯｸｽ");
  voice.say(Command1, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ").say(Command2, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ");
}

std::vector<OptionButton*> FrmCLUS::distances() { return {&Option1, &Option2, &Option3, &Option4}; }

std::vector<OptionButton*> FrmCLUS::methods() {
  return {&Option5, &Option7, &Option8, &Option9, &Option10, &Option11, &Option12};
}

void FrmCLUS::take(const std::vector<std::int16_t>& items) {
  items_ = items;
  const bool isRaw = inputKind == u"raw";
  for (OptionButton* option : distances()) option->setEnabled(isRaw);
  Text1.setEnabled(isRaw);
}

std::optional<ClusterChoice> FrmCLUS::choice() {
  ClusterChoice chosen;
  chosen.distance = inputKind == u"mat" ? Distance::matrix : static_cast<Distance>(chosenOf(distances()) + 1);
  chosen.method = static_cast<numbers::Linkage>(chosenOf(methods()) + 1);
  chosen.processOut = Check1.value();
  chosen.picture = Check2.value() == 1;
  if (chosen.distance != Distance::minkowski) return chosen;
  const auto exponent = typedNumber(typedCode(Text1.content()));
  if (!exponent || *exponent <= 0) {
    tellCellFault(
        {.said = {}, .text = u"ﾐﾝｺﾌｽｷ距離の定数わ、0より大きい数字を入力してください", .title = u"クラスタ分析エラー"},
        Text1);
    return std::nullopt;
  }
  chosen.exponent = *exponent;
  return chosen;
}

void FrmCLUS::FrmCLUS_Command1_Click() {
  if (const auto chosen = choice()) done = clus(*this, items_, *chosen);
}

void FrmCLUS::FrmCLUS_Command2_Click() {
  analysisMode = u"cancel";
  screen().unload(*this);
}

}  // namespace zelko
