#include "voice/heard.h"

#include "platform/forms/form.h"
#include "voice/talk.h"

namespace zelko {

void closeUnheard(Form& form) {
  const Silence silence;
  screen().unload(form);
}

void nextIsHeard() { talkLast = 0; }

void waitPastGate() {
  if (talkMode != 0) waitSec(talkGap);
}

void talkBehindDialog(TextView sentence) {
  waitPastGate();
  talkGated(sentence);
}

}  // namespace zelko
