#include "voice/talk.h"

#include <cmath>

#include "platform/fault.h"
#include "platform/files/files.h"
#include "platform/forms/control.h"
#include "platform/forms/form.h"
#include "platform/host.h"
#include "voice/agent.h"
#include "voice/describe.h"

namespace zelko {

std::int16_t talkMode = 0;
std::int16_t agentOn = 0;
double talkLast = 0;
double talkGap = 0.2;
Text clipTail;
Text userClip;
const Text markStop = u"。";
const Text markPause = u"､";
Text appDir;
std::int64_t composedSentences = 0;

namespace {

constexpr std::size_t kLongestForCharacter = 356;
constexpr double kClockTick = 0.001;  // seconds

void toCharacter(TextView text) { form<frmAGENT>().Text1.setText(text); }

// The clipboard is cleared first, so that an equal sentence is news to the reader too.
void toClipboard(TextView sentence) {
  if (!host().clearClipboard()) return;
  host().sayOnClipboard(sentence);
}

bool startsWith(const Text& text, TextView mark) { return TextView(text).starts_with(mark); }

Text stateAndCaption(const Control* control, TextView sentence) {
  const bool ticked = control && control->value() == 1;
  Text out = ticked ? u"チェック" : u"ノーチェック";
  out += markPause;
  if (control) out += control->caption();
  return out.append(sentence);
}

}  // namespace

void talkNow(Text& sentence) {
  if (talkMode == 0) return;
  if (startsWith(sentence, markStop)) sentence.erase(0, markStop.size());
  if (startsWith(sentence, markPause)) sentence.erase(0, markPause.size());
  keepClip();
  sentence = trimmedRight(sentence);
  if (agentOn != 1) {
    toClipboard(sentence + clipTail);
    return;
  }
  if (sentence.size() > kLongestForCharacter) sentence = left(sentence, kLongestForCharacter) + u" 以下省略";
  toCharacter(sentence);
}

void talkNow(Text&& sentence) { talkNow(sentence); }

bool gateOpens() {
  if (talkMode == 0) return false;
  const double now = host().dayTimer();
  if (!(std::fabs(talkLast - now) > talkGap)) return false;
  talkLast = now;
  return true;
}

Text composed(const Form* form, TextView sentence) {
  ++composedSentences;
  const Control* control = form ? form->activeControl() : nullptr;
  if (contains(sentence, u"ﾃｷｽﾄﾎﾞｯｸｽ")) return (control ? control->text() : Text()) + markPause + Text(sentence);
  if (contains(sentence, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ")) return markPause + (control ? control->caption() : Text()) + Text(sentence);
  if (contains(sentence, u"ﾁｪｯｸﾎﾞｯｸｽ")) return stateAndCaption(control, sentence);
  return Text(sentence);
}

void talkGated(TextView sentence) {
  if (gateOpens()) talkNow(Text(sentence));
}

void talkCtl(TextView sentence) {
  if (gateOpens()) talkNow(composed(screen().activeForm(), sentence));
}

void talkS(const Form& form, TextView sentence) {
  if (gateOpens()) talkNow(composed(&form, sentence));
}

void talkD(const Form& form, TextView sentence) { talkS(form, sentence); }

void talkB(TextView sentence) {
  if (gateOpens()) talkNow(composed(screen().loaded(u"Form1"), sentence));
}

void keepClip() {
  Text there;
  if (!host().clipboardText(there)) return;
  if (right(there, 3) != u"。｡.") userClip = there;
}

void talkEnd() {
  if (talkMode == 0) return;
  talkNow(Text(u"Zelko ｼｭｳﾘｮｳ"));
  waitSec(2.5);
  if (agentOn == 1) return;
  if (host().clearClipboard()) host().setClipboard(userClip);
}

void talkAgain() {
  if (talkMode == 0 || agentOn == 1) return;
  Text last;
  if (!host().clipboardText(last)) return;
  waitSec(talkGap);
  toClipboard(last);
}

void waitSec(double seconds) {
  if (seconds <= 0) return;
  const double start = host().dayTimer();
  double passed = 0;
  // The day-timer is coarse: a wait that ended exactly on the gap would find the gate still shut.
  for (double rest = seconds; passed <= seconds; rest = kClockTick) {
    host().waitSeconds(rest);
    passed = static_cast<double>(host().dayTimer()) - start;
    if (passed < 0) throw Fault{u"オーバーフローしました。"};
  }
}

void handToUser(TextView text) {
  keepClip();
  if (agentOn == 1) {
    toCharacter(text);
    return;
  }
  putForUser(text);
}

void putForUser(TextView text) {
  if (!host().clearClipboard()) return;
  if (talkMode != 0 && agentOn != 1)
    host().sayOnClipboard(text);
  else
    host().setClipboard(text);
}

void resetTalk() {
  talkMode = 0;
  agentOn = 0;
  talkLast = 0;
  talkGap = 0.2;
  clipTail.clear();
  userClip.clear();
  appDir = currentFolder();
  composedSentences = 0;
  describesWalk = false;
}

}  // namespace zelko
