#include "stats/distribution/groupform.h"

#include <algorithm>

#include "parts/ask/ask.h"
#include "parts/job/editorhooks.h"
#include "parts/report/report.h"
#include "platform/host.h"
#include "platform/text/number.h"
#include "stats/frame/analysis.h"
#include "stats/frame/printpicture.h"
#include "stats/frame/resultviewer.h"
#include "stats/frame/run.h"
#include "stats/frame/savepicture.h"
#include "store/table/notice.h"
#include "store/table/table.h"
#include "voice/dialogs.h"
#include "voice/heard.h"
#include "voice/narration.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr TextView kTitle = u"群別度数分布";
constexpr TextView kHowTo =
    u"。左右矢印で階級を読みます。上下矢印かﾀﾌﾞｷｰで群を移動します。CRでｱｲｺﾝにし、また図に戻します。"
    u"ｺﾝﾄﾛｰﾙﾌﾟﾗｽpageDownで数値、ｼﾌﾄﾌﾟﾗｽF11で形を読みます。ｱﾙﾄｷｰでﾒﾆｭｰ、escで終了します。";
constexpr float kScaleStep = 0.2f;

Text nameOf(int item) { return trimmed(itemName[static_cast<std::size_t>(item)]); }

void sayNews(const Text& sentence) {
  nextIsHeard();
  talkGated(sentence);
}

}  // namespace

frmMDIST::frmMDIST() : Form(kName, kTitle) {
  fillMenu();
  onKeyDown = [this](KeyEvent& key) { frmMDIST_KeyDown(key); };
  onKeyUp = [](KeyEvent& key) {
    if (key.is(key::function(11), shift::Shift)) key.swallow();
  };
  onClose = [this] { leave(); };
  Narration(*this).explain(kHowTo);
}

void frmMDIST::command(MenuEntry* parent, TextView name, TextView caption, std::function<void()> action) {
  menu().add(parent, name, caption).command = std::move(action);
}

void frmMDIST::fillMenu() {
  MenuEntry& file = menu().add(nullptr, u"mnuFILE", u"ｸﾞﾗﾌ(&F)");
  command(&file, u"mnuBSAVE", u"ｸﾞﾗﾌ保存", [this] { savePicture(); });
  command(&file, u"mnuP", u"印刷", [this] { printCharts(); });
  command(&file, u"mnuKEKKA", u"KEKKA.TXT表示",
          [] { showResultViewer(lastResultFile().empty() ? resultFile(appDir) : lastResultFile()); });
  command(&file, u"mnuESC", u"終了(&E)", [this] { leave(); });
  MenuEntry& window = menu().add(nullptr, u"mnuWIN", u"ウィンドウ(&W)");
  command(&window, u"mnuCASC", u"重ねて表示", [this] { arrange(Arrangement::cascade, u"重ねて表示"); });
  command(&window, u"mnuHD", u"横割り表示", [this] { arrange(Arrangement::across, u"横割り表示"); });
  command(&window, u"mnuVD", u"縦割り表示", [this] { arrange(Arrangement::down, u"縦割り表示"); });
  command(&window, u"mnuICON", u"アイコンの整列", [this] { tellIcons(); });
  MenuEntry& scale = menu().add(nullptr, u"mnuSCALE", u"縮尺(&S)");
  command(&scale, u"mnuNX", u"縮尺率統一", [this] { sameScale(); });
  command(&scale, u"mnuML", u"縦拡", [this] { stretch(0, kScaleStep); });
  command(&scale, u"mnuMD", u"縦縮", [this] { stretch(0, -kScaleStep); });
  command(&scale, u"mnuYK", u"横拡", [this] { stretch(kScaleStep, 0); });
  command(&scale, u"mnuYS", u"横縮", [this] { stretch(-kScaleStep, 0); });
  MenuEntry& classes = menu().add(&scale, u"mnuDV", u"横分割数");
  command(&classes, u"mnuDUP", u"増加", [this] { changeClasses(1); });
  command(&classes, u"mnuDDN", u"減少", [this] { changeClasses(-1); });
}

void frmMDIST::take(GroupedValues read, int valueItem, int groupItem) {
  valueItem_ = valueItem;
  groupItem_ = groupItem;
  bothBad_ = read.bothBad;
  groupBad_ = read.groupBad;
  valueBad_ = read.valueBad;
  empty_.setCaption(u"項目" + decimal(valueItem) + u":" + nameOf(valueItem) + u"  群分け項目" + decimal(groupItem) +
                    u":" + nameOf(groupItem));
  for (int group = 1; group <= kMostGroups; ++group) {
    auto& values = read.groups[static_cast<std::size_t>(group)];
    if (values.empty()) continue;
    const std::size_t place = charts_.size();
    charts_.push_back(std::make_unique<GroupChart>(*this, group, std::move(values)));
    PictureBox& picture = charts_.back()->picture();
    picture.onGotFocus = [this, place] { current_ = place; };
    Narration(*this).say(picture, [this, place] {
      const Text said = opened_ ? Text() : opening() + markStop;
      opened_ = true;
      return said + charts_[place]->sentence() + markStop + charts_[place]->classWords();
    });
  }
}

Text frmMDIST::opening() const {
  Text words = Text(kTitle) + markPause + decimal(static_cast<std::int64_t>(charts_.size())) + u"群";
  const auto add = [&](int count, TextView what) {
    if (count > 0) words += markPause + Text(what) + decimal(count) + u"件";
  };
  add(groupBad_, u"無回答者数 群不明＝");
  add(valueBad_, u"ﾃﾞｰﾀ不適＝");
  add(bothBad_, u"両方不適＝");
  return words;
}

// --- Keys ----------------------------------------------------------------------------------------------------

GroupChart* frmMDIST::current() { return current_ < charts_.size() ? charts_[current_].get() : nullptr; }

void frmMDIST::frmMDIST_KeyDown(KeyEvent& key) {
  if (key.is(key::Esc, shift::None)) {
    key.swallow();
    return leave();
  }
  GroupChart* chart = current();
  if (!chart || menu().highlighted()) return;
  const ValueDistribution& data = chart->data();
  if (shape_.keyDown(key, data.values, data.edges, data.freq)) return key.swallow();
  if (key.is(key::PageDown, shift::Ctrl)) {
    talkGated(chart->sentence());
    return key.swallow();
  }
  if (key.is(key::Enter, shift::None)) {
    chart->setIcon(!chart->isIcon());
    sayNews(chart->title() + markPause + Text(chart->isIcon() ? u"ｱｲｺﾝ" : u"図"));
    return key.swallow();
  }
  if (key.mask != shift::None || key.code < key::End || key.code > key::Down) return;
  if (key.code == key::Up || key.code == key::Down) {
    goToChart(key.code == key::Down ? 1 : -1);
    return key.swallow();
  }
  if (key.code == key::Home || key.code == key::End) {
    chart->walkToEnd(key.code == key::End);
  } else if (!chart->walk(key.code == key::Right ? 1 : -1)) {
    host().beep();
  }
  talkGated(chart->classWords());
  key.swallow();
}

void frmMDIST::goToChart(int by) {
  const std::size_t wanted = current_ + static_cast<std::size_t>(by);
  if (wanted >= charts_.size()) return host().beep();
  charts_[wanted]->setVisible(true);
  const std::size_t before = current_;
  charts_[wanted]->picture().setFocus();
  current_ = wanted;
  if (cascade_) charts_[before]->setVisible(false);
}

// --- Menu ----------------------------------------------------------------------------------------------------

// One graph at a time, or all of them: one under the other, or side by side. The window is laid out anew as it opens.
void frmMDIST::arrange(Arrangement arrangement, TextView said) {
  if (charts_.empty()) return host().beep();
  cascade_ = arrangement == Arrangement::cascade;
  {
    const Silence silence;
    for (std::size_t i = 0; i < charts_.size(); ++i) {
      charts_[i]->setVisible(!cascade_ || i == current_);
      charts_[i]->picture().place = arrangement == Arrangement::down && i > 0 ? Place::sameRow : Place::newRow;
    }
    charts_[current_]->picture().setFocus();
  }
  sayNews(Text(said) + markPause + charts_[current_]->title());
}

void frmMDIST::sameScale() {
  if (charts_.empty()) return host().beep();
  double low = charts_[0]->data().minV, high = charts_[0]->data().maxV;
  for (const auto& chart : charts_) {
    low = std::min(low, chart->data().minV);
    high = std::max(high, chart->data().maxV);
  }
  const int classes = current()->data().classes;
  for (const auto& chart : charts_) chart->setLimits(low, high, classes);
  sayNews(u"縮尺率統一" + markPause + current()->classWords());
}

void frmMDIST::changeClasses(int by) {
  GroupChart* chart = current();
  if (!chart) return host().beep();
  if (!chart->setClasses(chart->data().classes + by)) host().beep();
  sayNews(chart->title() + markPause + u"横分割数" + decimal(chart->data().classes));
}

void frmMDIST::stretch(float across, float down) {
  GroupChart* chart = current();
  if (!chart) return host().beep();
  if (!chart->stretch(across, down)) host().beep();
  sayNews(chart->title() + markPause + chart->scaleWords());
}

void frmMDIST::tellIcons() {
  Text words = u"ｱｲｺﾝ";
  int icons = 0;
  for (const auto& chart : charts_) {
    if (!chart->isIcon()) continue;
    ++icons;
    words += markPause + chart->title();
  }
  sayNews(icons == 0 ? Text(u"ｱｲｺﾝわありません") : words);
}

void frmMDIST::savePicture() {
  GroupChart* chart = current();
  if (!chart || chart->isIcon()) return host().beep();
  savePictureAs(chart->picture(), empty_.caption() + u"  " + chart->title(),
                pictureName(nameOf(valueItem_) + u"群" + decimal(chart->group())));
}

void frmMDIST::printCharts() {
  for (const auto& chart : charts_) {
    if (chart->isIcon()) continue;
    if (printPicture(chart->picture())) continue;
    return tellFailure(u"プリンタエラーです。プリンタをチェックしてください", u"プリンタエラー");
  }
  sayNews(u"印刷しました");
}

void frmMDIST::leave() {
  {
    const Silence silence;
    analysisMode.clear();
    editorHooks.reload(false);
  }
  nextIsHeard();
  screen().unload(*this);
}

void showGroupDistributions() {
  if (!beginAnalysis(RangeTest::start)) return;
  const auto value = askItem({.prompt = u"値の項目番号を入力してください", .title = Text(kTitle)}, 1);
  const auto group =
      value ? askItem({.prompt = u"群分けの項目番号を入力してください", .title = Text(kTitle)}, 1) : std::nullopt;
  if (!group) return talkBehindDialog(u"群別度数分布を終わりました");
  GroupedValues read;
  if (!readGroups(*value, *group, read)) {
    analysisMode.clear();
    return talkBehindDialog(u"群別度数分布を中止しました");
  }
  if (read.badRecord != 0) {
    host().beep();
    showOK(u"群分けデータが不正です", u"群分けﾃﾞｰﾀの不正");
    return talkBehindDialog(u"記録" + decimal(read.badRecord) + u"の群番号が1から30までの整数でわありません");
  }
  const auto isEmpty = [](const std::vector<double>& values) { return values.empty(); };
  if (std::all_of(read.groups.begin(), read.groups.end(), isEmpty)) {
    host().beep();
    return showOK(u"数値データ数が０個なので分布表は描けません", u"データ個数不足");
  }
  analysisMode = u"MDIST";
  unload<frmMDIST>();
  form<frmMDIST>().take(std::move(read), *value, *group);
  nextIsHeard();
  form<frmMDIST>().show();
}

}  // namespace zelko
