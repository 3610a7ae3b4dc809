#include "platform/qt/keycodes.h"

#include <utility>

#include "platform/forms/keys.h"
#include "platform/forms/routing.h"

namespace zelko {

namespace {

// Codes of keys that have no name of their own here: signs of the main block and of the keypad, and whatever types
// a character without a code (kana keys, an input method).
constexpr int kKeypadMultiply = 106, kKeypadAdd = 107, kKeypadSubtract = 109, kKeypadPoint = 110, kKeypadDivide = 111,
              kTypesOnly = key::Other;

constexpr std::pair<int, int> kNamed[] = {
    {Qt::Key_Backspace, key::Backspace},
    {Qt::Key_Tab, key::Tab},
    {Qt::Key_Backtab, key::Tab},
    {Qt::Key_Return, key::Enter},
    {Qt::Key_Enter, key::Enter},
    {Qt::Key_Shift, key::Shift},
    {Qt::Key_Control, key::Ctrl},
    {Qt::Key_Alt, key::Alt},
    {Qt::Key_Escape, key::Esc},
    {Qt::Key_Space, key::Space},
    {Qt::Key_PageUp, key::PageUp},
    {Qt::Key_PageDown, key::PageDown},
    {Qt::Key_End, key::End},
    {Qt::Key_Home, key::Home},
    {Qt::Key_Left, key::Left},
    {Qt::Key_Up, key::Up},
    {Qt::Key_Right, key::Right},
    {Qt::Key_Down, key::Down},
    {Qt::Key_Insert, key::Insert},
    {Qt::Key_Delete, key::Delete},
};

// Signs by the key of the main block that they stand on.
constexpr std::pair<int, int> kSigns[] = {
    {Qt::Key_Semicolon, 186},  {Qt::Key_Colon, 186},      {Qt::Key_Equal, 187},       {Qt::Key_Plus, 187},
    {Qt::Key_Comma, 188},      {Qt::Key_Less, 188},       {Qt::Key_Minus, 189},       {Qt::Key_Underscore, 189},
    {Qt::Key_Period, 190},     {Qt::Key_Greater, 190},    {Qt::Key_Slash, 191},       {Qt::Key_Question, 191},
    {Qt::Key_QuoteLeft, 192},  {Qt::Key_AsciiTilde, 192}, {Qt::Key_BracketLeft, 219}, {Qt::Key_BraceLeft, 219},
    {Qt::Key_Backslash, 220},  {Qt::Key_Bar, 220},        {Qt::Key_yen, 220},         {Qt::Key_BracketRight, 221},
    {Qt::Key_BraceRight, 221}, {Qt::Key_Apostrophe, 222}, {Qt::Key_QuoteDbl, 222},
};

template <std::size_t N>
int lookedUp(const std::pair<int, int> (&table)[N], int qtKey) {
  for (const auto& [from, to] : table)
    if (from == qtKey) return to;
  return 0;
}

int keypadCode(int qtKey) {
  if (qtKey >= Qt::Key_0 && qtKey <= Qt::Key_9) return key::Num0 + qtKey - Qt::Key_0;
  switch (qtKey) {
    case Qt::Key_Asterisk:
      return kKeypadMultiply;
    case Qt::Key_Plus:
      return kKeypadAdd;
    case Qt::Key_Minus:
      return kKeypadSubtract;
    case Qt::Key_Period:
    case Qt::Key_Comma:
      return kKeypadPoint;
    case Qt::Key_Slash:
      return kKeypadDivide;
    default:
      return 0;
  }
}

// Shift turns a keypad digit into a key that moves while NumLock is on; only a digit was meant when Ctrl is held too.
constexpr std::pair<int, int> kShiftedKeypad[] = {
    {Qt::Key_Insert, key::Num0},       {Qt::Key_End, key::Num0 + 1},  {Qt::Key_Down, key::Num0 + 2},
    {Qt::Key_PageDown, key::Num0 + 3}, {Qt::Key_Left, key::Num0 + 4}, {Qt::Key_Right, key::Num0 + 6},
    {Qt::Key_Home, key::Num0 + 7},     {Qt::Key_Up, key::Num0 + 8},   {Qt::Key_PageUp, key::Num0 + 9},
};

int keypadCommandCode(const QKeyEvent& event) {
  if (event.key() == Qt::Key_Clear) return key::Num0 + 5;
  const auto both = Qt::ShiftModifier | Qt::ControlModifier;
  return (event.modifiers() & both) == both ? lookedUp(kShiftedKeypad, event.key()) : 0;
}

// Shift and a digit of the upper row arrive as the sign on that key, which differs from layout to layout; the number
// of the physical key does not.
int digitRowCode(const QKeyEvent& event) {
  constexpr quint32 kFirst = 10, kLast = 19;
  const quint32 scan = event.nativeScanCode();
  if (!(event.modifiers() & Qt::ShiftModifier) || scan < kFirst || scan > kLast) return 0;
  return key::Digit0 + static_cast<int>(scan - kFirst + 1) % 10;
}

bool types(const QString& text) { return text.size() == 1 && text[0] >= QChar(u' ') && text[0] != QChar(u'\x7f'); }

int codeOf(const QKeyEvent& event) {
  const int qtKey = event.key();
  if (event.modifiers() & Qt::KeypadModifier) {
    if (const int code = keypadCode(qtKey)) return code;
    if (const int code = keypadCommandCode(event)) return code;
  }
  if (const int code = lookedUp(kNamed, qtKey)) return code;
  if (qtKey >= Qt::Key_0 && qtKey <= Qt::Key_9) return key::Digit0 + qtKey - Qt::Key_0;
  if (qtKey >= Qt::Key_A && qtKey <= Qt::Key_Z) return key::A + qtKey - Qt::Key_A;
  if (qtKey >= Qt::Key_F1 && qtKey <= Qt::Key_F12) return key::F1 + qtKey - Qt::Key_F1;
  if (const int code = digitRowCode(event)) return code;
  if (const int code = lookedUp(kSigns, qtKey)) return code;
  return event.text().isEmpty() || event.text()[0] < QChar(u' ') ? 0 : kTypesOnly;
}

int ownBit(int code) {
  if (code == key::Shift) return shift::Shift;
  if (code == key::Ctrl) return shift::Ctrl;
  return code == key::Alt ? shift::Alt : 0;
}

}  // namespace

int maskOf(Qt::KeyboardModifiers modifiers) {
  return (modifiers & Qt::ShiftModifier ? shift::Shift : 0) | (modifiers & Qt::ControlModifier ? shift::Ctrl : 0) |
         (modifiers & Qt::AltModifier ? shift::Alt : 0);
}

bool Keystroke::isModifier() const { return ownBit(code) != 0; }

Keystroke keystrokeOf(const QKeyEvent& event) {
  Keystroke stroke;
  stroke.code = codeOf(event);
  stroke.mask = maskOf(event.modifiers()) & ~ownBit(stroke.code);
  if (stroke.isModifier() || stroke.code == 0) return stroke;
  const bool command = stroke.mask & shift::CtrlAlt;
  stroke.ch = !command && types(event.text()) ? event.text()[0].unicode() : characterOf(stroke.code, stroke.mask);
  return stroke;
}

bool editorMayHave(const Keystroke& stroke, bool multiLine) {
  if (stroke.mask & shift::Alt) return false;
  switch (stroke.code) {
    case key::Left:
    case key::Right:
    case key::Home:
    case key::End:
    case key::Backspace:
    case key::Delete:
    case key::Insert:
      return true;
    case key::Up:
    case key::Down:
    case key::PageUp:
    case key::PageDown:
      return multiLine;
    case key::Enter:
      return multiLine && !(stroke.mask & shift::Ctrl);
    case key::Tab:
    case key::Esc:
    case 0:
      return false;
    default:
      break;
  }
  if (!(stroke.mask & shift::Ctrl)) return stroke.ch != 0 || stroke.code == key::Other;
  const int code = stroke.code;
  return code == 'A' || code == 'C' || code == 'V' || code == 'X' || code == 'Z';
}

}  // namespace zelko
