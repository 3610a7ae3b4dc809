// The input box of the main form, for all who read or fill it: they need not know the form. While no main form is
// loaded it is empty and takes nothing.
#pragma once

#include "platform/text/text.h"

namespace zelko {

Text inputText();
// The given text in place of what the box holds, unheard; the echo memory takes it over.
void setInputSilently(TextView text);
// Empties the box without any sentence and clears the echo memory.
void emptyInputBox();
// The program's own text into the box: it is echoed as an edit and never committed by itself. All floors fill the box
// through this.
void fillInputBox(TextView text);
void focusInputBox();
// Moves the caret of the focused box to the end of its text; handlers of keys stand still meanwhile.
void caretEnd(TextView text);

}  // namespace zelko
