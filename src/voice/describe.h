// Shift+Ctrl+K in a text box: which character stands at the caret, so that kanji of one sound can be told apart.
#pragma once

#include <functional>

#include "platform/text/text.h"

namespace zelko {

class TextBox;
struct KeyEvent;

// Who knows the characters, registered by the wiring; until then every character is told as it stands.
struct CharacterHooks {
  std::function<Text(TextView)> description = [](TextView character) { return Text(character); };
  std::function<Text(TextView)> code = [](TextView character) { return Text(character); };
  std::function<bool(TextView)> isKanji = [](TextView) { return false; };
  // The walk by characters waits for a while: `onCharacterWait` is to be called when it is over, once; false calls it
  // off.
  std::function<void(bool)> wait = [](bool) {};
};
extern CharacterHooks characterHooks;

extern bool describesWalk;  // a walk by characters tells each kanji by itself, after a wait

// For each key-up of a text box, in front of all that it does: the same question asked again is another one only with
// nothing between. True: it was Shift+Ctrl+K, and is answered behind the gate: the character at the caret, behind the
// text its last one, a selection character by character, and in an empty box `instead` likewise. Asked again: the
// codes.
bool answersDescription(const TextBox& box, const KeyEvent& key, TextView instead);

// The walk came to this character: it is described after the wait, if `describesWalk` and it is a kanji.
void describeAfterWait(TextView character);
void onCharacterWait();

}  // namespace zelko
