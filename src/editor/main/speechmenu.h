// The menu of speech: levels, the talking character, the inhibit time, the speed of the reader.
#pragma once

namespace zelko {

class Form1;

void speakDataOnly();   // level 1
void speakWithPlace();  // level 2
void speakNothing();    // says so, waits, level 0
// A click on "Speek!": off where speech is on, else level 2.
void switchSpeech();

// Ticks of the menu and the mark "Speek!" as the level says, where the main form is loaded.
void showSpeechState();
void showSpeechStateOn(Form1& main);  // the same, for the main form while it loads

// The next step of the reader's speed, 0 to 9 and round.
void stepSpeed();

void registerSpeechMenu();

}  // namespace zelko
