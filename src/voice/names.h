// Reading text aloud: names of characters, words for an edit, keys in a text box, the caret.
#pragma once

#include "platform/text/text.h"

namespace zelko {

class TextBox;

// The spoken name of a character; the text itself where no name exists.
Text charName(TextView s);
Text dropChar(TextView text, char16_t ch);
// Position from 1 of the last `what` not before `lowest`; 0 where there is none.
std::size_t rinstrS(TextView text, TextView what, std::size_t lowest);

// Words for an edit: the inserted, erased or overwritten run with its word behind it. `before` differs from `after`.
Text diffText(TextView before, TextView after);
// What stands in place of a run of another length, as when a selection is typed over; empty for any other edit.
Text typedOver(TextView before, TextView after);

extern int selPrev;  // length of the selection at the previous key-up

// One key-up in a text box: selection, repeat keys, caret, Shift alone. Acts on the active control of the screen.
void talkTextKey(int code, int mask, int third, TextView description);
// The sentence of Shift+Left and Shift+Right, behind the gate; updates selPrev.
void talkSelection(const TextBox& box, int code);
void talkCaretChar();  // the caller holds the gate
void talkCaret();

// The change of a rich text box: speaks diffText of `previous` and its text through the gate, then takes the text over.
void talkRichChange(const TextBox& box, Text& previous);

}  // namespace zelko
