#include "stats/twogroups/uform.h"

#include <numeric>

#include "editor/main/commands.h"
#include "parts/ask/typed.h"
#include "parts/report/report.h"
#include "platform/host.h"
#include "platform/text/format.h"
#include "platform/text/number.h"
#include "stats/frame/analysis.h"
#include "stats/frame/outputfolder.h"
#include "store/table/notice.h"
#include "voice/dialogs.h"
#include "voice/heard.h"
#include "voice/names.h"
#include "voice/progress.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr TextView kNote = u"注意", kSpoken = u"0.0###";
constexpr int kMostTrials = 100'000'000;

constexpr TextView kHow =
    u"。群1と群2のﾃﾞｰﾀを入力するか、メニューでクリップファイルから貼り付けて、u-"
    u"testボタンまたわ組換え法ボタンを押してください。"
    u"ctrl+ﾍﾟｰｼﾞﾀﾞｳﾝで結果が読まれます。";

Text boundText(const numbers::UTest& test) {
  return test.bound > 0 ? u"<" + format(test.bound, u"0.####") + u"片検" : Text(u"n.s");
}

Text spokenBound(const numbers::UTest& test) {
  return test.bound > 0 ? u"｡確率わ" + format(test.bound, u"0.####") + u"未満、片検" : Text(u"｡n.s");
}

PrintLine dataLine(TextView name, const std::vector<double>& values, const std::vector<double>& ranks) {
  PrintLine line;
  line.text(name).text(u"[");
  for (std::size_t i = 0; i < values.size(); ++i) line.number(values[i]).text(u"(").number(ranks[i]).text(u")/");
  line.text(u"]");
  return line;
}

PrintLine sumLine(TextView name, const std::vector<double>& values, double rankSum) {
  const double sum = std::accumulate(values.begin(), values.end(), 0.0);
  const auto n = static_cast<double>(values.size());
  PrintLine line;
  line.text(name).number(sum).text(u"   平均=").number(sum / n).text(u"　順位平均＝").number(rankSum / n);
  return line;
}

}  // namespace

FrmU::FrmU() : Form(kName, u"u-検定、組換え法") {
  Text3.labelledBy = &Label1;
  Text4.labelledBy = &Label2;
  Text5.labelledBy = &Label4;
  Text1.screenName = u"群1のﾃﾞｰﾀ";
  Text2.screenName = u"群2のﾃﾞｰﾀ";
  Grid1.screenName = u"群1の表";
  Grid2.screenName = u"群2の表";
  Text5.setText(u"1000");
  for (Control* control :
       {static_cast<Control*>(&Grid1), static_cast<Control*>(&Text1), static_cast<Control*>(&Grid2),
        static_cast<Control*>(&Text2), static_cast<Control*>(&Command2), static_cast<Control*>(&Label4),
        static_cast<Control*>(&Label5), static_cast<Control*>(&Command1)})
    control->place = Place::newRow;
  wire();
  buildMenu();
  narrate();
  Text1.setFocus();
}

void FrmU::wire() {
  Text3.onChange = [this] { talkRichChange(Text3, previous_[0]); };
  Text4.onChange = [this] { talkRichChange(Text4, previous_[1]); };
  previous_[2] = Text5.content();
  Text5.onChange = [this] { talkRichChange(Text5, previous_[2]); };
  sample1_.onChanged = sample2_.onChanged = [this] { forgetResults(); };
  Command1.onClick = [this] { FrmU_Command1_Click(); };
  Command2.onClick = [this] { FrmU_Command2_Click(); };
  Command3.onClick = [this] { screen().unload(*this); };
  Command4.onClick = [] { chooseResultFolder(); };
  Command5.onClick = [this] { FrmU_Command5_Click(); };
  Command3.isCancel = true;
  onKeyDown = [this](KeyEvent& key) {
    if (!key.is(key::PageDown, shift::Ctrl)) return;
    key.swallow();
    sayResult();
  };
}

void FrmU::buildMenu() {
  const auto add = [this](TextView caption, Sample& sample, TextView paste, TextView clear, TextView extend) {
    MenuEntry& bar = menu().add(nullptr, {}, caption);
    menu().add(&bar, paste, u"ｸﾘｯﾌﾟﾌｧｲﾙ貼り付け").command = [&sample] { sample.paste(); };
    menu().add(&bar, clear, u"ﾃﾞｰﾀ消去").command = [&sample] { sample.clear(); };
    menu().add(&bar, extend, u"行を増やす").command = [&sample] { sample.extend(); };
  };
  add(u"群1(&1)", sample1_, u"mnuPST1", u"mnuCdel1", u"mnuExt1");
  add(u"群2(&2)", sample2_, u"mnuPST2", u"mnucDel2", u"mnuExt2");
}

void FrmU::narrate() {
  Narration voice(*this);
  voice.explain(kHow).box(Text3, u"群1の名前ﾃｷｽﾄﾎﾞｯｸｽ").box(Text4, u"群2の名前ﾃｷｽﾄﾎﾞｯｸｽ");
  sample1_.narrate(voice);
  sample2_.narrate(voice);
  voice.say(Command2, u"､u検定を実行しますｺﾏﾝﾄﾞﾎﾞﾀﾝ").box(Text5, u"再割付回数ﾃｷｽﾄﾎﾞｯｸｽ");
  for (Button* button : {&Command5, &Command1, &Command3}) voice.say(*button, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ");
  voice.say(Command4, kResultFolderButton);
}

void FrmU::forgetResults() {
  groups_.reset();
  test_.reset();
  rates_.reset();
  Label3.setCaption({});
  Label5.setCaption({});
}

std::optional<FrmU::Groups> FrmU::readGroups() {
  auto first = sample1_.values();
  if (!first) return std::nullopt;
  auto second = sample2_.values();
  if (!second) return std::nullopt;
  return Groups{std::move(*first), std::move(*second)};
}

// The ranks of both together, into the grids. False, told, where there are too many values or none.
bool FrmU::ordering(const Groups& groups) {
  if (groups.first.size() > numbers::kUGroupLimit || groups.second.size() > numbers::kUGroupLimit) {
    tellFailure(u"データ数は500以下にしてください", kNote);
    return false;
  }
  if (groups.first.empty() || groups.second.empty()) {
    tellFailure(u"群1と群2のデータを入力してください", kNote);
    return false;
  }
  test_ = numbers::uTest(groups.first, groups.second);
  sample1_.showRanks(test_->ranks1);
  sample2_.showRanks(test_->ranks2);
  return true;
}

void FrmU::FrmU_Command2_Click() {
  auto groups = readGroups();
  if (!groups || !ordering(*groups)) return;
  groups_ = std::move(groups);
  Label3.setCaption(u"U=" + trimmed(str(test_->u)) + u" CR=" + trimmed(str(test_->cr)) + u" p" + boundText(*test_));
  sayResult();
}

void FrmU::FrmU_Command5_Click() {
  auto groups = readGroups();
  if (!groups) return;
  if (groups->first.size() < 2 || groups->second.size() < 2)
    return tellFailure(u"群1と群2のデータ個数は2以上にしてください", kNote);
  if (groups->first.size() + groups->second.size() > numbers::kReassignmentLimit)
    return tellFailure(u"群1と群2のデータ個数の合計は1000以下にしてください", kNote);
  const auto trials = typedWhole(Text5.content(), 1, kMostTrials);
  if (!trials) {
    Text5.setFocus();
    return tellFailure(u"再割付回数は十分大きい値を入力してください", kNote);
  }
  numbers::Reassignment reassignment(groups->first, groups->second);
  {
    Progress progress(u"組換え法　計算中．．．", *trials);
    while (reassignment.done() < *trials && progress.step(reassignment.done() + 1))
      reassignment.once([] { return host().randomBits(); });
  }
  if (reassignment.done() == 0) return talkBehindDialog(u"中止しました。");
  const double done = reassignment.done();
  rates_ = Rates{reassignment.done(), reassignment.observed(), format(reassignment.higher() / done, u"##0.####%"),
                 format(reassignment.lower() / done, u"(##0.####%)")};
  groups_ = std::move(groups);
  Label5.setCaption(decimal(rates_->trials) + u"回 " + rates_->higher + u" " + rates_->lower);
  talkBehindDialog(reassignment.done() < *trials ? u"中止しました。ここまで" + Label5.caption()
                                                 : u"組換え法、" + Label5.caption());
}

void FrmU::sayResult() {
  Text said;
  if (test_)
    said = u"U値は｡" + format(test_->u, kSpoken) + u"｡CRは｡" + format(test_->cr, kSpoken) + spokenBound(*test_);
  if (rates_)
    said += u"｡組換え法" + decimal(rates_->trials) + u"回､より大きい出現率" + rates_->higher + u"､より小さい出現率" +
            rates_->lower;
  if (said.empty()) host().beep();
  talkGated(said.empty() ? Text(u"まだ結果がありません") : said);
}

void FrmU::FrmU_Command1_Click() {
  if (!groups_) {
    auto groups = readGroups();
    if (!groups) return;
    groups_ = std::move(groups);
  }
  if (!test_ && !ordering(*groups_)) return;
  analysisMode = u"UTEST";
  Report report;
  const bool opened = report.open(resultFolder(), resultIsNew());
  analysisMode.clear();
  if (!opened) return;
  const DateTime now = host().now();
  report.line(Text(48, u'-'));
  report.line(PrintLine().text(shortDate(now)).zone().text(shortTime(now)));
  report.line(u"U-test ");
  report.line(u"群1:" + Text3.content());
  report.line(u"群2:" + Text4.content());
  report.line(dataLine(u"群1データ", groups_->first, test_->ranks1));
  report.line(dataLine(u"群2データ", groups_->second, test_->ranks2));
  report.line(sumLine(u"群1合計=", groups_->first, test_->r1));
  report.line(sumLine(u"群2合計=", groups_->second, test_->r2));
  PrintLine figures;
  figures.text(u"U=").number(test_->u).text(u" Ubar=").number(test_->ubar).text(u" CR=").number(test_->cr);
  report.line(figures.text(u" p=").text(boundText(*test_)));
  if (rates_) {
    report.line(u"---------組換え法による検討-----------");
    PrintLine line;
    line.number(rates_->trials).text(u"回").text(u"のランダム再割付を行ない､群1データ合計が").number(rates_->sum);
    report.line(line.text(u"より大きい(小さい）出現率＝").text(rates_->higher).text(rates_->lower));
  }
  if (report.close()) showOK(u"KEKKA.TXTに出力終了", u"確認");
}

void Utest() { form<FrmU>().showModal(); }

void registerUForm() {
  registerForm<FrmU>();
  registerCommand(u"mnuU", Utest);
}

}  // namespace zelko
