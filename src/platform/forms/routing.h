// The way of one key through the model. Both hosts call it, so what a test sees is what the desktop does.
#pragma once

#include "platform/forms/form.h"

namespace zelko {

// Key down at the active form: open menu, menu shortcut, Alt+letter, the form's handler, the control's handler, Tab,
// default and cancel buttons, key press (with `ch`, 0 for a key that types nothing), and what the control itself does
// with the key. True when the key was used up; false leaves it to the native editor of the host.
bool routeKeyDown(int code, int mask, char16_t ch);
// Key up: the form's handler, then the control's. It goes to whatever has the focus now.
void routeKeyUp(int code, int mask);

// A whole key on a host without native editing: down, edit in the model, up.
void pressKey(int code, int mask);
// One character typed, with the key code that types it.
void typeCharacter(char16_t ch);

// The release of the key that pressKey holds down, now and not later: a modal loop begins with it, for the user lets go
// of the key that opened the form when the form is there.
void releaseHeldKey();

// The character that a key types without an input method (Enter 13, Esc 27, Backspace 8, Space, digits, letters); 0 for
// none.
char16_t characterOf(int code, int mask);

// A key by name, "Shift+Ctrl+S": its code and mask; false for a name that is none.
bool keyByName(TextView name, KeyEvent& out);
Text nameOfKey(int code, int mask);

}  // namespace zelko
