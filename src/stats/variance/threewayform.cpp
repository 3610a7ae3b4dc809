#include "stats/variance/threewayform.h"

#include "editor/main/commands.h"
#include "stats/frame/outputfolder.h"
#include "stats/variance/variancehelp.h"
#include "voice/narration.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr TextView kHow =
    u"四つの配置のボタンから一つを選ぶと、対象項目と群分け項目の番号が順に問われます。"
    u"記録の範囲指定があれば、その記録だけが対象です。escで中止します。ctrl+ﾍﾟｰｼﾞﾀﾞｳﾝで結果が読まれます。";

}  // namespace

FrmBunsan3::FrmBunsan3() : Form(kName, u"3元配置分散分析") {
  struct Row {
    Button &run, &help;
    ThreeWayDesign design;
    VarianceHelp text;
  };
  for (const Row& row : {Row{Command1, Command4, ThreeWayDesign::treatments, VarianceHelp::treatments},
                         Row{Command2, Command5, ThreeWayDesign::sameSubjects, VarianceHelp::sameSubjects},
                         Row{Command3, Command6, ThreeWayDesign::otherSubjects, VarianceHelp::otherSubjects},
                         Row{Command7, Command8, ThreeWayDesign::replicated, VarianceHelp::replicated}}) {
    row.run.place = Place::newRow;
    row.run.onClick = [this, design = row.design] { run(design); };
    row.help.onClick = [text = row.text] { showVarianceHelp(text); };
  }
  for (Control* control :
       {static_cast<Control*>(&Label1), static_cast<Control*>(&Grid1), static_cast<Control*>(&Command9)})
    control->place = Place::newRow;
  narrate();
}

void FrmBunsan3::narrate() {
  Narration voice(*this);
  voice.explain([this] { return markStop + selectionWords() + markStop + Text(kHow) + Label1.caption(); });
  for (Button* button : {&Command1, &Command4, &Command7, &Command8, &Command5, &Command6, &Command9, &Command11})
    voice.say(*button, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ");
  voice.say(Command2, u"処理A各水準で同一被験体ｺﾏﾝﾄﾞﾎﾞﾀﾝ").say(Command3, u"処理A各水準で異なる被験体ｺﾏﾝﾄﾞﾎﾞﾀﾝ");
  result_.narrate(voice);
  voice.say(Command10, kResultFolderButton);
}

void FrmBunsan3::run(ThreeWayDesign design) {
  result_.clear();
  if (!beginVariance()) return;
  const bool nested = design == ThreeWayDesign::otherSubjects;
  const auto items =
      askDesignItems(nested ? AskedValues::run : AskedValues::item,
                     design == ThreeWayDesign::sameSubjects ? ThirdFactor::subject : ThirdFactor::treatment);
  if (!items) return result_.end(ReadEnd::stopped);
  const DesignRead read = readDesign(*items);
  if (read.end != ReadEnd::whole) return result_.end(read.end);
  const CellSize size = design == ThreeWayDesign::replicated ? CellSize::several : CellSize::one;
  if (!nested && !cellsFit(read, 3, size)) return;
  result_.show(threeWayResult(design, *items, read));
}

void registerThreeWayForm() {
  registerForm<FrmBunsan3>();
  registerCommand(u"mnu3", [] { showAnalysisForm<FrmBunsan3>(); });
}

}  // namespace zelko
