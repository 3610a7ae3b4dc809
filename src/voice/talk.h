// The door through which every sentence goes: the clipboard, or the talking character.
#pragma once

#include <cstdint>

#include "platform/text/text.h"

namespace zelko {

class Form;

extern std::int16_t talkMode;  // 0 silent, 1 data only, 2 with record and item number
extern std::int16_t agentOn;   // 1: the talking character speaks in place of the clipboard
extern double talkLast;        // day-timer at the last gated sentence, seconds
extern double talkGap;         // inhibit time, seconds, 0.1..1
extern Text clipTail;          // behind every clipboard sentence
extern Text userClip;          // the user's own clipboard text, set aside
extern const Text markStop;    // "。"
extern const Text markPause;   // "､"
extern Text appDir;            // the program's folder, with a "/" at its end

// Without the gate. The sentence is changed in place: a leading "。", then a leading "､", and trailing blanks are cut.
void talkNow(Text& sentence);
void talkNow(Text&& sentence);
// Behind the gate.
void talkGated(TextView sentence);
// Behind the gate, with the control-aware composition on the active control of the active form.
void talkCtl(TextView sentence);
// The same, looking at `form`'s own active control.
void talkS(const Form& form, TextView sentence);
void talkD(const Form& form, TextView sentence);
void talkB(TextView sentence);  // Form1's

// The gate: false when silent or within talkGap of the last gated sentence; true takes the moment as the new last
// one. Tested before any sentence is composed.
bool gateOpens();

// The composition of talkCtl for a sentence, without gate and without speaking.
Text composed(const Form* form, TextView sentence);
// How many sentences were composed since the start: a silent run leaves it at 0.
extern std::int64_t composedSentences;

void keepClip();
void talkEnd();
void talkAgain();
// Freezes the program. A wait across midnight ends in the overflow fault.
void waitSec(double seconds);

// Puts a text for the user on the channel (clipboard, or the character), keepClip first: data handed over, whole and
// past the gate, also in a silent run.
void handToUser(TextView text);
// Puts it on the clipboard, whichever channel speaks. Where the clipboard is the channel, the text is heard.
void putForUser(TextView text);

// zlkTalk and mAgent in appDir; what can't be read leaves 0.
void readSpeechSettings();
void writeSpeechSettings();

// Everything in this header as at the start.
void resetTalk();

// The test "talkMode 0 for the moment": sentences of the program's own changes are held back while it lives.
class Silence {
 public:
  Silence() : kept_(talkMode) { talkMode = 0; }
  ~Silence() { talkMode = kept_; }
  Silence(const Silence&) = delete;
  Silence& operator=(const Silence&) = delete;

 private:
  std::int16_t kept_;
};

}  // namespace zelko
