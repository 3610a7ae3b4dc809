// What is heard when a dialog or a job is over. The control that gets the focus back speaks at once, and the gate then
// drops what comes right behind it, or drops its sentence behind that of the dialog. Who closes something chooses here
// which of the two is heard, and touches neither the gate nor the pause.
#pragma once

#include "platform/text/text.h"

namespace zelko {

class Form;

// The form goes and the focus comes back without a word: the caller tells more than the control would.
void closeUnheard(Form& form);
// What comes next is news and is heard, whatever was said a moment ago.
void nextIsHeard();
// Lets the pause (talkGap) pass: what comes next is heard behind what was said last. Nothing in a silent run.
void waitPastGate();
// Says what came of a dialog, behind what the control says that got the focus back.
void talkBehindDialog(TextView sentence);

}  // namespace zelko
