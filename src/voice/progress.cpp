#include "voice/progress.h"

#include <algorithm>
#include <exception>

#include "platform/forms/routing.h"
#include "platform/host.h"
#include "platform/text/number.h"
#include "voice/narration.h"
#include "voice/progressform.h"
#include "voice/talk.h"

namespace zelko {

frmDOE::frmDOE() : Form(kName, u"作業中"), Label1(*this, u"Label1", u""), Command1(*this, u"Command1", u"中止(ESC)") {
  liveDuringWork = true;
  Command1.isCancel = true;
  Command1.onClick = [this] { stopAsked = true; };
  Command1.onGotFocus = [this] { frmDOE_Command1_GotFocus(); };
  onClose = [this] { stopAsked = true; };
  Command1.onKeyUp = [this](KeyEvent& key) {
    if (talkMode != 0 && isRepeatKey(key))
      talkS(*this, markPause + caption() + markPause + Label1.caption() + u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ");
  };
  Narration(*this).explain(u"。中止するときわ　ESCを叩いてください。");
}

// Without the gate, so that the sentence at the end of a short work is not lost to this one.
void frmDOE::frmDOE_Command1_GotFocus() {
  if (talkMode == 0) return;
  ++composedSentences;
  talkNow(caption() + markStop + Command1.caption() + u"ｺﾏﾝﾄﾞぼたん");
}

Progress::Progress(TextView work, std::int64_t total)
    : total_(total), opened_(!loadedForm<frmDOE>()), form_(form<frmDOE>()) {
  form_.setCaption(work);
  form_.Label1.setCaption(work);
  if (opened_) form_.show();
}

// The form below speaks when it gets the focus back, and may fail; while another failure is on its way that one counts.
Progress::~Progress() noexcept(false) {
  if (!opened_) return;
  if (std::uncaught_exceptions() == 0) {
    screen().unload(form_);
    return;
  }
  try {
    screen().unload(form_);
  } catch (...) {
  }
}

bool Progress::step(std::int64_t done) {
  host().letEventsThrough();
  const std::int64_t tenths = tenthsOf(done);
  if (tenths != shownTenths_) {
    shownTenths_ = tenths;
    form_.Label1.setCaption(decimal(tenths * 10) + u"%完了");
  }
  stopped_ = form_.stopAsked;
  return !stopped_;
}

LateProgress::LateProgress(TextView work, std::int64_t total) : work_(work), total_(total) { restart(); }

bool LateProgress::isLate() {
  constexpr float kSeconds = 1;
  const float now = host().dayTimer();
  begun_ = std::min(begun_, now);  // midnight
  return now - begun_ > kSeconds;
}

void LateProgress::close() {
  const Silence silence;
  dialog_.reset();
}

void LateProgress::restart() {
  begun_ = host().dayTimer();
  takeLostEscape();
}

bool LateProgress::shows(std::int64_t done) { return dialog_ ? dialog_->shows(done) : isLate(); }

bool LateProgress::step(std::int64_t done) {
  if (!dialog_ && isLate()) dialog_.emplace(work_, total_);
  if (dialog_) return dialog_->step(done);
  host().letEventsThrough();
  return !takeLostEscape();
}

}  // namespace zelko
