#include "stats/distribution/distributionform.h"

#include "parts/job/editorhooks.h"
#include "parts/reading/helpform.h"
#include "platform/host.h"
#include "platform/text/format.h"
#include "platform/text/number.h"
#include "stats/distribution/classtable.h"
#include "stats/distribution/histogram.h"
#include "stats/distribution/plainnumber.h"
#include "stats/frame/analysis.h"
#include "stats/frame/printpicture.h"
#include "stats/frame/savepicture.h"
#include "store/table/itemfile.h"
#include "store/table/notice.h"
#include "store/table/table.h"
#include "voice/dialogs.h"
#include "voice/heard.h"
#include "voice/narration.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr int kFewestClasses = 2;
constexpr float kScaleStep = 0.2f;
constexpr std::size_t kNameLength = 70;
constexpr double kTitleTwips = 300;
constexpr TextView kAnyLetter = u"ﾅﾆｶﾉ　ｷｬﾗｸﾀｷｰ　ｦ　ｵｽﾄ　ﾅｲﾖｳｶﾞﾖﾏﾚﾏｽ";
constexpr TextView kDone = u"ﾌﾞﾝﾌﾟﾋｮｳｻｸｾｲ完了｡ｷｬﾗｸﾀｷｰｦ ｵｽﾄ ﾅｲﾖｳｶﾞ ﾖﾐｱｹﾞﾗﾚﾏｽ｡";
constexpr TextView kHowTo = u"左右矢印で階級を読みます。CRで次の項目、ｼﾌﾄﾌﾟﾗｽF11で形を読みます";

Text bareName(const Text& path) { return path.substr(path.rfind(u'/') + 1); }

// What came of a button is heard, also behind a click that brought the focus.
void sayNews(const Text& sentence) {
  nextIsHeard();
  talkGated(sentence);
}

bool isSummaryKey(const KeyEvent& key) {
  if (key.is(key::PageDown, shift::Ctrl)) return true;
  return key.mask == shift::None && key.code >= key::letter('E') && key.code <= key::letter('Z');
}

}  // namespace

frmDIST::frmDIST() : Form(kName, u"項目ﾃﾞｰﾀ（数値）度数分布") {
  Picture1.tabStop = true;
  Picture1.screenName = u"棒ｸﾞﾗﾌ";
  sheet_.setVisible(false);
  place();
  wire();
  narrate();
  Picture1.setFocus();
}

void frmDIST::place() {
  for (Control* control :
       {static_cast<Control*>(&Label1), static_cast<Control*>(&Picture1), static_cast<Control*>(&lblNT),
        static_cast<Control*>(&Label4), static_cast<Control*>(&Label7), static_cast<Control*>(&Label10),
        static_cast<Control*>(&Command5)})
    control->place = Place::newRow;
  for (Control* control :
       {static_cast<Control*>(&lblFILE), static_cast<Control*>(&lblFST), static_cast<Control*>(&Label2),
        static_cast<Control*>(&lblLST), static_cast<Control*>(&Label3), static_cast<Control*>(&Label12),
        static_cast<Control*>(&lblN), static_cast<Control*>(&lblTOTAL), static_cast<Control*>(&lblMEAN),
        static_cast<Control*>(&Label5), static_cast<Control*>(&lblSD), static_cast<Control*>(&Label6),
        static_cast<Control*>(&lblU), static_cast<Control*>(&lblMAX), static_cast<Control*>(&Label8),
        static_cast<Control*>(&lblMIN), static_cast<Control*>(&Label9), static_cast<Control*>(&lblWIDTH),
        static_cast<Control*>(&Label11)})
    control->place = Place::sameRow;
}

void frmDIST::wire() {
  onKeyDown = [this](KeyEvent& key) { frmDIST_KeyDown(key); };
  onKeyUp = [](KeyEvent& key) {
    if (key.is(key::function(11), shift::Shift)) key.swallow();
  };
  Picture1.onKeyDown = [this](KeyEvent& key) { frmDIST_Picture1_KeyDown(key); };
  cmdCLUP.onClick = [this] { changeClasses(1); };
  Command1.onClick = [this] { changeClasses(-1); };
  Command2.onClick = [this] { changeScale(kScaleStep); };
  Command3.onClick = [this] { changeScale(-kScaleStep); };
  Command4.onClick = [this] { frmDIST_Command4_Click(); };
  Command5.onClick = [this] { frmDIST_Command5_Click(); };
  Command6.onClick = [this] { frmDIST_Command6_Click(); };
  Command7.onClick = [this] { frmDIST_Command7_Click(); };
  appendHandler(CommandCheck.onClick, [this] { endAtCell(); });
  lblCR.onClick = [this] { frmDIST_lblCR_Click(); };
  lblCR.isDefault = true;
  Command6.isCancel = true;
  onClose = [this] { frmDIST_Command6_Click(); };
}

void frmDIST::narrate() {
  Narration voice(*this);
  voice.explain(kAnyLetter).say(Picture1, [this] { return pictureSentence(); });
  for (Button* button : {&cmdCLUP, &Command1})
    voice.say(*button, [this] { return Label10.caption() + decimal(nClass_) + markPause + u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ"; });
  for (Button* button : {&Command2, &Command3})
    voice.say(*button, [this] { return Label11.caption() + plainNumber(yScale_) + markPause + u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ"; });
  for (Button* button : {&Command4, &Command5, &Command6, &Command7, &lblCR}) voice.say(*button, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ");
}

// --- Reading and showing an item -----------------------------------------------------------------------------

void frmDIST::readup(int item, std::int32_t first, std::int32_t last) {
  item_ = item;
  first_ = firstRecord = first;
  last_ = lastRecord = last;
  if (talkMode != 0) talkNow(u"ｺｳﾓｸ" + decimal(item) + u"ﾉﾌﾞﾝﾌﾟﾋｮｳｻｸｾｲﾁｭｳ");
  if (!load()) {
    if (stopped_) return sayNews(u"強制終了!!");
    host().beep();
    return showOK(u"数値データ数が０個なので分布表は描けません", u"データ個数不足");
  }
  draw();
  fillLabels();
  if (loadedForm<frmHelp>()) showTableWindow();
  if (talkMode == 0) return;
  talkNow(decimal(item) + Text(kDone));
  waitSec(0.5);
}

// False without a number; the labels say so then.
bool frmDIST::load() {
  data_ = {};
  data_.classes = nClass_;
  walked_ = 1;
  stopped_ = !readValues(item_, data_.values);
  if (stopped_) data_.values.clear();
  analysisMode = table_ ? Text(u"TABLE") : Text();
  Picture1.clear();
  fillLabels();
  if (!hasData()) return false;
  data_.measure();
  asking_ = true;
  if (data_.minV == data_.maxV) askLimits(data_.minV, data_.maxV);
  asking_ = false;
  data_.count();
  return true;
}

void frmDIST::draw() {
  if (!hasData()) return Picture1.clear();
  if (table_) return drawLines(Picture1, classTable(data_.edges, data_.freq));
  drawHistogram(
      Picture1, data_.edges, data_.freq, data_.n(),
      {.full = u"100%", .none = u"0%", .yScale = yScale_, .mark = [](float mark) { return plainNumber(mark); }});
}

void frmDIST::fillLabels() {
  const std::size_t item = static_cast<std::size_t>(item_);
  lblITEM.setCaption(left(trimmed(itemName[item]), kNameLength) + format(item_, u"項目 ###:"));
  lblFILE.setCaption(bareName(docPath) + u":" + bareName(itemFilePath(docPath, docDrive)));
  lblFST.setCaption(format(first_, u"####"));
  lblLST.setCaption(format(last_, u"####"));
  Label12.setCaption(format(last_ - first_ + 1 - data_.n(), u"= ###0"));
  fillFigures();
}

void frmDIST::fillFigures() {
  lblN.setCaption(decimal(data_.n()));
  if (!hasData()) {
    lblTOTAL.setCaption(u" 合計=0");
    for (Label* label : {&lblMEAN, &lblSD, &lblU}) label->setCaption(u" *  ");
    for (Label* label : {&lblMAX, &lblMIN, &lblWIDTH}) label->setCaption(u" * ");
    return;
  }
  const numbers::Spread& spread = data_.spread;
  lblTOTAL.setCaption(u" 合計=" + plainNumber(spread.sum));
  lblMEAN.setCaption(plainNumber(spread.mean));
  lblSD.setCaption(plainNumber(spread.sd()));
  lblU.setCaption(plainNumber(spread.u()));
  lblMAX.setCaption(plainNumber(spread.max));
  lblMIN.setCaption(plainNumber(spread.min));
  lblWIDTH.setCaption(plainNumber(data_.edges.classWidth));
}

// --- Sentences -----------------------------------------------------------------------------------------------

Text frmDIST::summary() const {
  Text words = lblITEM.caption() + u"ﾉ　ﾌﾞﾝﾌﾟ";
  const std::pair<TextView, const Label*> pieces[] = {{u"。ﾃﾞｰﾀｽｳ(N)は", &lblN},
                                                      {u"。排除ﾃﾞｰﾀｽｳ", &Label12},
                                                      {u"。", &lblTOTAL},
                                                      {u"。平均値は", &lblMEAN},
                                                      {u"。ｻｲﾀﾞｲﾁは", &lblMAX},
                                                      {u"。最小値は", &lblMIN},
                                                      {u"。標準偏差(SD)ﾜ", &lblSD},
                                                      {u"。ｻﾝﾌﾟﾙﾄｼﾃﾉ標準偏差(u)ﾜ", &lblU},
                                                      {u"。階級幅　ｽﾅﾜﾁ　横軸の区切り幅　は", &lblWIDTH}};
  for (const auto& [words0, label] : pieces) words += Text(words0) + label->caption();
  return words + markStop + u"度数表示ｺﾏﾝﾄﾞﾎﾞﾀﾝのｸﾘｯｸで度数ﾋｮｳが　ﾖﾏﾚﾏｽ";
}

Text frmDIST::pictureSentence() const {
  if (asking_) return lblITEM.caption();
  const Text what = table_ ? Text(u"度数ﾋｮｳ") : Text(u"棒ｸﾞﾗﾌ");
  if (!hasData()) return lblITEM.caption() + markPause + what + markStop + u"数値データわありません";
  return lblITEM.caption() + markPause + what + markStop + classSentence(data_.edges, data_.freq, walked_) + markStop +
         Text(kHowTo);
}

void frmDIST::walkTo(int k) {
  if (k < 1 || k > nClass_) {
    host().beep();
  } else {
    walked_ = k;
  }
  talkGated(classSentence(data_.edges, data_.freq, walked_));
}

// --- Keys ----------------------------------------------------------------------------------------------------

void frmDIST::frmDIST_KeyDown(KeyEvent& key) {
  if (shape_.keyDown(key, data_.values, data_.edges, data_.freq)) return key.swallow();
  if (!isSummaryKey(key)) return;
  talkGated(summary());
  key.swallow();
}

void frmDIST::frmDIST_Picture1_KeyDown(KeyEvent& key) {
  if (key.mask != shift::None) return;
  if (key.code == key::Enter) {
    frmDIST_lblCR_Click();
    return key.swallow();
  }
  const bool back = key.code == key::Left || key.code == key::Up, on = key.code == key::Right || key.code == key::Down;
  if (!back && !on && key.code != key::Home && key.code != key::End) return;
  key.swallow();
  if (!hasData()) return host().beep();
  if (key.code == key::Home) return walkTo(1);
  if (key.code == key::End) return walkTo(nClass_);
  walkTo(walked_ + (on ? 1 : -1));
}

// --- Buttons -------------------------------------------------------------------------------------------------

void frmDIST::changeClasses(int by) {
  const int wanted = nClass_ + by;
  nClass_ = std::clamp(wanted, kFewestClasses, numbers::kMostClasses);
  walked_ = std::min(walked_, nClass_);
  if (nClass_ != wanted) {
    host().beep();
  } else if (hasData()) {
    data_.classes = nClass_;
    data_.count();
    draw();
    fillFigures();
  }
  sayNews(Label10.caption() + decimal(nClass_) + markPause + Label9.caption() + lblWIDTH.caption());
}

void frmDIST::changeScale(float by) {
  if (yScale_ + by < kScaleStep / 2) {
    host().beep();
  } else {
    yScale_ += by;
    draw();
  }
  sayNews(Label11.caption() + trimmed(format(static_cast<double>(yScale_), u"0.0")));
}

void frmDIST::frmDIST_lblCR_Click() { readup(item_ < itemCount ? item_ + 1 : 0, first_, last_); }

void frmDIST::frmDIST_Command5_Click() {
  table_ = !table_;
  analysisMode = table_ ? Text(u"TABLE") : Text();
  draw();
  fillFigures();
  if (talkMode == 0) return;
  if (table_) return showTable();
  unload<frmHelp>();
  sayNews(u"棒ｸﾞﾗﾌ");
}

// The window stands beside the form; what it shows is heard at once.
void frmDIST::showTable() {
  if (!hasData()) return sayNews(u"数値データわありません");
  showTableWindow();
  Text heard = u"度数ﾌﾞﾝﾌﾟﾋｮｳ";
  for (int k = 1; k <= nClass_; ++k) heard += markStop + classSentence(data_.edges, data_.freq, k);
  sayNews(heard);
}

void frmDIST::showTableWindow() {
  Text shown;
  for (const Text& line : classTable(data_.edges, data_.freq)) shown += line + kLineEnd;
  const Silence silence;
  openReading({.caption = u"度数ﾌﾞﾝﾌﾟﾋｮｳ", .text = shown, .report = true}).showWithoutFocus();
}

// The graph, or the table, with its figures below.
void frmDIST::drawSheet() {
  draw();
  sheet_.clear();
  double bottom = 0;
  const double down = kTitleTwips * 2;
  for (PictureBox::Operation stroke : Picture1.operations()) {
    stroke.y1 += down;
    if (stroke.stroke != PictureBox::Stroke::circle) stroke.y2 += down;
    bottom = std::max({bottom, stroke.y1, stroke.y2});
    sheet_.draw(stroke);
  }
  const auto words = [&](double y, const Text& text) {
    sheet_.draw({PictureBox::Stroke::text, kTitleTwips, y, 0, 0, 0, text});
  };
  words(kTitleTwips,
        lblITEM.caption() + u"  " + lblFILE.caption() + u"  記録 " + lblFST.caption() + u"-" + lblLST.caption());
  words(bottom + kTitleTwips * 2, u"N=" + lblN.caption() + u"  排除" + Label12.caption() + u" " + lblTOTAL.caption() +
                                      u"  平均値=" + lblMEAN.caption());
  words(bottom + kTitleTwips * 3, u"SD=" + lblSD.caption() + u"  u=" + lblU.caption() + u"  最大値=" +
                                      lblMAX.caption() + u"  最小値=" + lblMIN.caption() + u"  階級幅=" +
                                      lblWIDTH.caption());
}

void frmDIST::frmDIST_Command4_Click() {
  drawSheet();
  if (!printPicture(sheet_)) return tellFailure(u"フォームの印刷ができません。", caption());
  talkGated(u"印刷しました");
}

void frmDIST::frmDIST_Command7_Click() {
  drawSheet();
  savePictureAs(sheet_, lblITEM.caption(), pictureName(trimmed(itemName[static_cast<std::size_t>(item_)])));
}

// The check has led to a cell and hidden the form: the cell is heard, and the window of the table goes too.
void frmDIST::endAtCell() {
  if (visible()) return;
  const Silence silence;
  analysisMode.clear();
  unload<frmHelp>();
  screen().unload(*this);
}

void frmDIST::frmDIST_Command6_Click() {
  {
    const Silence silence;
    analysisMode.clear();
    unload<frmHelp>();
    editorHooks.reload(false);
  }
  nextIsHeard();
  screen().unload(*this);
}

}  // namespace zelko
