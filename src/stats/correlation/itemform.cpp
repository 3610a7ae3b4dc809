#include "stats/correlation/itemform.h"

#include <algorithm>
#include <iterator>

#include "platform/host.h"
#include "stats/frame/analysis.h"
#include "stats/frame/outputfolder.h"
#include "voice/dialogs.h"
#include "voice/talk.h"

namespace zelko {

namespace {
constexpr TextView kCaution = u"注意";
}

frmRP::frmRP() : Form(kName, u"項目指定") {
  Grid1.screenName = u"項目指定";
  for (Control* control :
       {static_cast<Control*>(&Grid1), static_cast<Control*>(&Check1), static_cast<Control*>(&Check2),
        static_cast<Control*>(&Label1), static_cast<Control*>(&Command1)})
    control->place = Place::newRow;
  wire();
  narrate();
}

void frmRP::wire() {
  items_.mayMarkSecond = [this] { return mayMarkSecond(); };
  Command1.onClick = [this] { frmRP_Command1_Click(); };
  Command2.onClick = [this] { frmRP_Command2_Click(); };
  Command3.onClick = [] { chooseResultFolder(); };
  Command1.isDefault = true;
  Command2.isCancel = true;
  onClose = [this] { frmRP_Command2_Click(); };
}

void frmRP::narrate() {
  Narration voice(*this);
  voice.explain([this] {
    const Text words = markStop + Label5.caption();
    return Label1.visible() ? words + Label1.caption() : words;
  });
  items_.narrate(voice);
  voice.check(Check1, u"ﾁｪｯｸﾎﾞｯｸｽ").check(Check2, u"ﾁｪｯｸﾎﾞｯｸｽ");
  voice.say(Command1, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ").say(Command2, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ").say(Command3, kResultFolderButton);
}

void frmRP::take(const ItemFormJob& job) {
  job_ = job;
  setCaption(job.caption);
  Label5.setCaption(job.explanation);
  Check1.setVisible(job.secondGroup == ItemFormJob::SecondGroup::whereChecked);
  Check2.setVisible(job.converts);
  Label1.setVisible(job.converts);
  items_.fill();
}

bool frmRP::hasSecondGroup() const {
  if (job_.secondGroup == ItemFormJob::SecondGroup::whereChecked) return Check1.value() == 1;
  return job_.secondGroup == ItemFormJob::SecondGroup::always;
}

ItemList frmRP::chosenItems() const {
  ItemList all = items_.marked(1);
  if (hasSecondGroup()) std::ranges::copy(items_.marked(2), std::back_inserter(all));
  std::ranges::sort(all);
  return all;
}

bool frmRP::mayMarkSecond() {
  if (hasSecondGroup()) return true;
  host().beep();
  showOK(u"内部相関計算(チェｯｸﾎﾞｯｸｽ2)のため群2項目を指定できません", kCaution);
  return false;
}

void frmRP::frmRP_Command1_Click() {
  const ItemList group1 = items_.marked(1), group2 = hasSecondGroup() ? items_.marked(2) : ItemList();
  if (job_.check) {
    if (const Text fault = job_.check(group1); !fault.empty()) {
      showOK(fault, kCaution);
      return Grid1.setFocus();
    }
  } else if (group1.empty() || (hasSecondGroup() && group2.empty())) {
    return items_.tellNothingMarked();
  }
  if (job_.run && beginAnalysis(RangeTest::wholeRecords)) job_.run(*this, group1, group2);
}

void frmRP::frmRP_Command2_Click() {
  analysisMode = u"BREAK";
  screen().unload(*this);
}

void openItemForm(const ItemFormJob& job) {
  const frmRP* there = loadedForm<frmRP>();
  if (const bool isKept = takeKeptForm(frmRP::kName); !isKept || !there || there->word() != job.word) {
    unload<frmRP>();
    form<frmRP>().take(job);
  }
  analysisMode = job.word;
  form<frmRP>().showModal();
  analysisMode.clear();
}

}  // namespace zelko
