// The way of one key through the model. Both hosts call it, so what a test sees is what the desktop does.
#pragma once

#include "platform/forms/form.h"

namespace zelko {

// Key down at the active form: open menu, menu shortcut, Alt+letter, the form's handler, the control's handler, Tab,
// default and cancel buttons, key press (with `ch`, 0 for a key that types nothing), and what the control itself does
// with the key. True when the key was used up; false leaves it to the native editor of the host.
bool routeKeyDown(int code, int mask, char16_t ch);
// Key up, with the mask that the key went down with: the form's handler, then the control's. It belongs to the form and
// the control that took the press; where these have the focus no more, where a menu or a button's Alt+letter used the
// press up, or where a modifier has made a chord meanwhile, nobody hears of it.
void routeKeyUp(int code);
// Whether Esc was pressed since it was asked last while work or a wait kept every form from taking it.
bool takeLostEscape();
// The form that the key on its way opens answers the release itself, as one that walks on while the key is held.
void passRelease(const Form& form);
// No key is down any more, as when another program has the keyboard; or none that this form, which is going, took.
void forgetPresses();
void forgetPresses(const Form& form);

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
