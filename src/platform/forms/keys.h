// Key codes and shift masks as every handler sees them.
#pragma once

namespace zelko {

namespace key {
inline constexpr int Backspace = 8, Tab = 9, Enter = 13, Shift = 16, Ctrl = 17, Alt = 18, Esc = 27, Space = 32,
                     PageUp = 33, PageDown = 34, End = 35, Home = 36, Left = 37, Up = 38, Right = 39, Down = 40,
                     Insert = 45, Delete = 46;
inline constexpr int Digit0 = 48;  // to 57
inline constexpr int A = 65;       // to Z = 90
inline constexpr int Num0 = 96;    // keypad digits, to 105
inline constexpr int F1 = 112;     // to F12 = 123
inline constexpr int Other = 229;  // a character that no key of this list types
inline constexpr int letter(char upper) { return upper; }
inline constexpr int function(int n) { return F1 + n - 1; }
}  // namespace key

namespace shift {
inline constexpr int None = 0, Shift = 1, Ctrl = 2, ShiftCtrl = 3, Alt = 4, CtrlAlt = 6;
}  // namespace shift

// A key going through its handlers; a handler that sets `code` to 0 swallows it.
struct KeyEvent {
  int code = 0;
  int mask = 0;

  bool is(int wantedCode, int wantedMask) const { return code == wantedCode && mask == wantedMask; }
  void swallow() { code = 0; }
};

// A character going through its handlers; set to 0 it is swallowed. Enter is 13, Esc 27, Backspace 8.
struct CharEvent {
  char16_t ch = 0;
};

}  // namespace zelko
