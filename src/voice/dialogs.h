// Voice dialogs: a message, a question, an entry, each spoken when it opens.
#pragma once

#include <cstdint>

#include "platform/text/text.h"
#include "voice/heard.h"

namespace zelko {

inline constexpr std::int16_t kYes = 6, kNo = 7, kCancel = 2;

extern bool okAnswer;           // frmOKCAN
extern std::int16_t msgAnswer;  // frmCMSG: kYes, kNo or kCancel
extern Text tinAnswer;          // frmTin

void showOK(TextView text, TextView title);
bool askOK(TextView text, TextView title);
// The caller may read msgAnswer instead; true for yes.
bool askYesNo(TextView text, TextView title);
// The typed text; empty for cancel, which no caller can tell from an empty entry.
Text talkAsk(TextView prompt, TextView title, TextView preset);
// The closing form of a computation: says `result` when it opens and as often as it is asked to. The caller then shows
// the result file.
void showRepeat(TextView result);

// The forms of this floor, for the list of all forms.
void registerVoiceForms();

}  // namespace zelko
