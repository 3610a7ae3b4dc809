#include "stats/cluster/dendrogramform.h"

#include "parts/ask/ask.h"
#include "parts/report/report.h"
#include "platform/host.h"
#include "platform/text/number.h"
#include "stats/frame/analysis.h"
#include "stats/frame/printpicture.h"
#include "stats/frame/savepicture.h"
#include "store/table/notice.h"
#include "store/table/table.h"
#include "voice/heard.h"
#include "voice/narration.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr TextView kTitle = u"デンドログラム";
constexpr TextView kHowTo =
    u"。上下矢印ｷｰで、併合の段を一つずつ読みます。左右矢印ｷｰで、その段で一つになった二つのクラスタに移ります。"
    u"Enterで、クラスタに含まれる全記録を読みます。Homeで最初の段、Endで最後の段に移ります。"
    u"名前の項目ボタンで、記録番号の代わりに名前を読みます。escで終了します。";

}  // namespace

FrmDENDR::FrmDENDR() : Form(kName, kTitle) {
  Picture1.tabStop = true;
  Picture1.screenName = kTitle;
  Picture1.onKeyDown = [this](KeyEvent& key) { FrmDENDR_Picture1_KeyDown(key); };
  Picture1.onClick = [this] { FrmDENDR_Picture1_Click(); };
  Command1.onClick = [this] { screen().unload(*this); };
  Command2.onClick = [this] { FrmDENDR_Command2_Click(); };
  Command3.onClick = [this] { FrmDENDR_Command3_Click(); };
  Command4.onClick = [this] { savePictureAs(Picture1, kTitle, pictureName(kTitle)); };
  Command3.place = Place::newRow;
  Command1.isCancel = true;
  narrate();
}

void FrmDENDR::narrate() {
  Narration voice(*this);
  voice.explain(kHowTo).say(Picture1, [this] { return focusSentence(); });
  for (Button* button : {&Command1, &Command2, &Command3, &Command4}) voice.say(*button, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ");
}

Text FrmDENDR::focusSentence() const {
  const Text name = Text(kTitle) + u"。";
  if (!words_ || words_->steps() == 0) return name + u"併合わありません";
  return name + words_->step(step_) + u"。上下矢印ｷｰで段を移動します";
}

void FrmDENDR::take(const MergeWords& words, const DendrogramTitles& titles) {
  words_ = words;
  titles_ = titles;
  table_ = docPath;
  first_ = firstRecord;
  last_ = lastRecord;
  step_ = 1;
  drawDendrogram(Picture1, *words_, titles_);
}

// --- The walk ------------------------------------------------------------------------------------------------

void FrmDENDR::FrmDENDR_Picture1_KeyDown(KeyEvent& key) {
  if (key.mask != shift::None || !words_ || words_->steps() == 0) return;
  switch (key.code) {
    case key::Up:
      goTo(step_ - 1);
      break;
    case key::Down:
      goTo(step_ + 1);
      break;
    case key::Home:
      goTo(1);
      break;
    case key::End:
      goTo(words_->steps());
      break;
    case key::Left:
    case key::Right:
      goToBranch(key.code == key::Right);
      break;
    default:
      return;
  }
  key.swallow();
}

void FrmDENDR::FrmDENDR_Picture1_Click() {
  if (words_ && words_->steps() > 0) talkGated(words_->members(step_));
}

void FrmDENDR::goTo(int step) {
  if (step < 1 || step > words_->steps()) {
    host().beep();
  } else {
    step_ = step;
  }
  talkGated(words_->step(step_));
}

void FrmDENDR::goToBranch(bool second) {
  const int branch = words_->branch(step_, second);
  if (branch > 0) return goTo(branch);
  host().beep();
  talkGated(words_->leaf(step_, second));
}

// --- Buttons -------------------------------------------------------------------------------------------------

void FrmDENDR::FrmDENDR_Command2_Click() {
  if (!printPicture(Picture1)) return tellFailure(u"フォームの印刷ができません。", kTitle);
  talkGated(u"印刷しました");
}

bool FrmDENDR::readNames(int item) {
  firstRecord = first_;
  lastRecord = last_;
  std::vector<Text> names;
  const bool read = readAnalysisRecords(kTitle, [&](const WalkedRecord& record) {
    names.push_back(record.trimmedCell(item));
    return true;
  });
  if (read) words_->setNames(names);
  return read;
}

void FrmDENDR::FrmDENDR_Command3_Click() {
  if (!words_ || docPath != table_) {
    host().beep();
    return talkGated(u"別の表が開かれているので、名前を読めません");
  }
  const auto item = askItem({.prompt = u"名前として読む項目の番号を入力してください", .title = Text(kTitle)});
  if (!item || !readNames(*item)) return;
  drawDendrogram(Picture1, *words_, titles_);
  {
    const Silence silence;
    Picture1.setFocus();
  }
  talkBehindDialog(u"項目" + decimal(*item) + u" " + trimmed(itemName[static_cast<std::size_t>(*item)]) +
                   u"で読みます。" + words_->step(step_));
}

void dendr(const ClusterChoice& choice, const MergeWords& words) {
  const Silence silence;
  unload<FrmDENDR>();
  form<FrmDENDR>().take(words, {.method = pictureMethod(choice.method),
                                .distance = pictureDistance(choice.distance),
                                .file = docPath.substr(docPath.rfind(u'/') + 1),
                                .when = timeLine()});
  form<FrmDENDR>().show();
}

}  // namespace zelko
