// Keys of Qt as the codes that the handlers know.
#pragma once

#include <QKeyEvent>

namespace zelko {

struct Keystroke {
  int code = 0;     // 0: a key that the program does not know (Meta, media keys, keys of the input method)
  int mask = 0;     // without the key's own bit for Shift, Ctrl and Alt
  char16_t ch = 0;  // what it types
  bool isModifier() const;
};
// The shift mask of modifiers that are held.
int maskOf(Qt::KeyboardModifiers modifiers);
Keystroke keystrokeOf(const QKeyEvent& event);

// Whether a native editor may have a key that nobody took: typing, moving, erasing, the clipboard. Everything else
// would do what the program doesn't know of (Alt+letter types a letter, Ctrl and the keypad's plus a sign).
bool editorMayHave(const Keystroke& stroke, bool multiLine);

}  // namespace zelko
