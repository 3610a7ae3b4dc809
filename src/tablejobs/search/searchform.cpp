#include "tablejobs/search/searchform.h"

#include <algorithm>

#include "editor/main/form1.h"
#include "editor/show/sheet.h"
#include "editor/show/showcell.h"
#include "parts/ask/ask.h"
#include "platform/host.h"
#include "platform/text/number.h"
#include "store/records/records.h"
#include "store/table/cursor.h"
#include "voice/dialogs.h"
#include "voice/heard.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr int kTimerMilliseconds = 4000;
constexpr double kActivatePause = 0.3;    // seconds
constexpr std::int32_t kShownEach = 256;  // records; of more, every so manieth

}  // namespace

frmSRCH::frmSRCH() : Form(kName, u"文字列の検索"), saved_{curRec, curItem} {
  mode = u"srch";
  Text1.labelledBy = &Label1;
  Label2.place = Place::sameRow;
  Frame1.place = Label3.place = Command2.place = Place::newRow;
  for (CheckBox* box : {&Check1, &Check2, &Check3, &Check4, &Check5}) box->place = Place::newRow;
  Check1.setValue(1);
  Command1.isDefault = true;
  Command3.isCancel = true;
  Timer1.setInterval(kTimerMilliseconds);
  Timer1.setEnabled(false);
  wireBoxes();
  wireButtons();
  narrate();
}

void frmSRCH::wireBoxes() {
  Text1.onGotFocus = [this] { frmSRCH_Text1_GotFocus(); };
  Text1.onKeyDown = [this](KeyEvent& key) { frmSRCH_Text1_KeyDown(key); };
  Text1.onChange = [this] {
    round_.end();
    talkS(*this, u"検索文字列ﾃｷｽﾄﾎﾞｯｸｽ");
  };
  for (CheckBox* box : {&Check1, &Check2, &Check3, &Check4, &Check5}) {
    box->onGotFocus = [this] { Command1.isDefault = false; };
    box->onLostFocus = [this] { Command1.isDefault = true; };
    box->onKeyPress = [box](CharEvent& event) {
      if (event.ch != key::Enter) return;
      event.ch = 0;
      box->act();
    };
  }
  Check1.onKeyPress = [this](CharEvent& event) { frmSRCH_Check1_KeyPress(event); };
  Check1.onClick = [this] { frmSRCH_Check1_Click(); };
  for (CheckBox* box : {&Check2, &Check3, &Check5}) box->onClick = [this] { round_.end(); };
}

void frmSRCH::wireButtons() {
  Command1.onClick = [this] { frmSRCH_Command1_Click(); };
  Command2.onClick = [this] { frmSRCH_Command2_Click(); };
  Command3.onClick = [this] { frmSRCH_Command3_Click(); };
  Timer1.onTimer = [this] { frmSRCH_Timer1_Timer(); };
  onActivate = [this] { frmSRCH_Activate(); };
  onUnload = [this] { frmSRCH_Unload(); };
  onClose = [this] { frmSRCH_Command3_Click(); };
}

void frmSRCH::askOnly(TextView job) {
  asksFor_ = mode = job;
  enableAll(true);
}

void frmSRCH::chooseDirection() {
  const bool last = curRec == recCount(), first = curRec == 1;
  const Silence silence;
  if (last) Check4.setValue(1);
  if (first) Check4.setValue(0);
}

SearchSettings frmSRCH::settings() const {
  const Spelling spelling = {Check3.value() == 1, Check5.value() == 1};
  return {{trimmed(Text1.content()), Check2.value() == 1, spelling},
          {Check1.value() == 1, searchItem, Check4.value() == 1}};
}

void frmSRCH::showItem() { Label2.setCaption(Check1.value() == 1 ? Text(u"全項目") : decimal(searchItem)); }

// --- Events ----------------------------------------------------------------------------------------------------

void frmSRCH::frmSRCH_Activate() {
  const Silence silence;
  waitSec(kActivatePause);
  enableAll(true);
  stopAsked_ = false;
  // Another table may be open by now.
  if (searchItem > itemCount) Check1.setValue(1);
  showItem();
}

void frmSRCH::frmSRCH_Unload() {
  if (asksFor_ != u"MLINE") mode.clear();
  Timer1.setEnabled(false);
}

void frmSRCH::frmSRCH_Text1_GotFocus() {
  if (found_ && talkMode != 0) {
    found_ = false;
    return sayFound();
  }
  Text1.moveCaretToEnd();
  talkS(*this, u"ｹﾝｻｸﾓｼﾞﾚﾂﾃｷｽﾄﾎﾞｯｸｽ");
}

void frmSRCH::frmSRCH_Text1_KeyDown(KeyEvent& key) {
  if (!key.is(key::Enter, shift::None) || !trimmed(Text1.content()).empty()) return;
  key.swallow();
  host().beep();
}

void frmSRCH::frmSRCH_Check1_KeyPress(CharEvent& event) {
  if (event.ch != key::Enter) return;
  event.ch = 0;
  const bool ticked = Check1.value() == 1;
  if (talkMode != 0) {
    ++composedSentences;
    talkNow(Text(ticked ? u"ﾉｰチェｯｸ" : u"チェｯｸ"));
    waitSec(ticked ? 1.2 : 1.0);
  }
  Check1.act();
}

void frmSRCH::frmSRCH_Check1_Click() {
  round_.end();
  const bool ticked = Check1.value() == 1;
  talkGated(Text(ticked ? u"チェック" : u"ノーチェック") + markPause + Check1.caption());
  if (ticked) {
    showItem();
    return Text1.setFocus();
  }
  const auto item = askItem({u"検索項目番号を入力してください", u"検索項目", decimal(curItem)});
  if (!item) {
    nextIsHeard();
    return Check1.setValue(1);
  }
  searchItem = *item;
  showItem();
  {
    const Silence silence;
    Text1.setFocus();
  }
  talkBehindDialog(u"検索項目" + Label2.caption() + trimmed(itemName[static_cast<std::size_t>(searchItem)]));
}

void frmSRCH::frmSRCH_Command1_Click() {
  if (asksOnly()) {
    searchConditions =
        SearchConditions{trimmed(Text1.content()), Check1.value(), Check2.value(), Check3.value(), searchItem};
    return screen().unload(*this);
  }
  if (!storedForSearch()) return;
  lastSearch = settings();
  const Scan result = scan();
  switch (result.end) {
    case ScanEnd::hit:
      return found(result.at);
    case ScanEnd::cameRound:
      return tellRound(result.at);
    case ScanEnd::stopped:
      return leave({curRec, curItem});
    case ScanEnd::failed:
      enableAll(true);
      tellSearchUnreadable();
  }
}

void frmSRCH::frmSRCH_Command2_Click() {
  if (asksOnly()) return screen().unload(*this);
  leave(saved_);
}

void frmSRCH::frmSRCH_Command3_Click() {
  stopAsked_ = true;
  if (scanning_) return;  // the scan sees it, and leaves
  if (asksOnly()) return screen().unload(*this);
  leave({curRec, curItem});
}

void frmSRCH::frmSRCH_Timer1_Timer() { talkS(*this, decimal(curRec) + u"ぎょう検索中"); }

// --- The search ------------------------------------------------------------------------------------------------

void frm1lock(int locked) {
  // While long work runs only a form that is live during work gets any event.
  if (frmSRCH* dialog = loadedForm<frmSRCH>()) dialog->liveDuringWork = locked == 1;
}

Scan frmSRCH::scan() {
  frm1lock(1);
  count_ = recCount();
  scanning_ = true;
  {
    const Silence silence;
    Command3.setFocus();
    enableAll(false);
  }
  Timer1.setEnabled(talkMode != 0);
  const Scan result = round_.next(*lastSearch, {}, [this](CellAt at) { return goOn(at); });
  Timer1.setEnabled(false);
  scanning_ = stopAsked_ = false;
  frm1lock(0);
  return result;
}

// Before each record, behind its events.
bool frmSRCH::goOn(CellAt at) {
  if (stopAsked_) return false;
  curRec = at.record;
  curItem = at.item;
  if (count_ <= kShownEach || at.record % kShownEach == 0) LabelIX.setCaption(str(curRec) + u"/" + decimal(count_));
  return true;
}

void frmSRCH::found(CellAt at) {
  host().beep();
  {
    const Silence silence;
    enableAll(true);
    LabelIX.setCaption(str(at.record) + u"/" + decimal(count_));
    showFoundCell(at);
    Text1.setFocus();
    show();
  }
  found_ = true;
  frmSRCH_Text1_GotFocus();
}

void frmSRCH::tellRound(CellAt at) {
  showFoundCell(at);
  const SearchWay& way = lastSearch->way;
  const Text report = roundReport(way);
  if (way.towardsHead) {
    if (talkMode != 0) {
      ++composedSentences;
      talkNow(report + u"検索終了");
    }
    showOK(report, u"検索終了");
  } else {
    showOK(report + u"ﾘﾀｰﾝｷｰをたたいてください文字列検索ﾌｫｰﾑに戻ります.", u"検索終了");
  }
  enableAll(true);
  Text1.setFocus();
}

// The cell is shown first: the box that gets the focus says it.
void frmSRCH::leave(CellAt cursor) {
  hideRangeMask();
  dropRange();
  cursor.record = std::clamp(cursor.record, 1, recCount() + 1);
  cursor.item = std::clamp<std::int16_t>(cursor.item, 0, itemCount);
  showFoundCell(cursor);
  showTitle();
  nextIsHeard();
  screen().unload(*this);
}

// Command3 stays alive while a search runs.
void frmSRCH::enableAll(bool enabled) {
  for (Control* control :
       {static_cast<Control*>(&Text1), static_cast<Control*>(&Command1), static_cast<Control*>(&Check1),
        static_cast<Control*>(&Check2), static_cast<Control*>(&Check3)})
    control->setEnabled(enabled);
  for (Control* control :
       {static_cast<Control*>(&Check4), static_cast<Control*>(&Check5), static_cast<Control*>(&Command2)})
    control->setEnabled(enabled && !asksOnly());
}

}  // namespace zelko
