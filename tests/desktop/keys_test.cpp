#include <doctest/doctest.h>

#include <QApplication>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTimer>

#include "desktop/desk.h"
#include "platform/qt/qstring.h"

namespace zelko {

namespace {

constexpr auto kShift = Qt::ShiftModifier;
constexpr auto kCtrl = Qt::ControlModifier;
constexpr auto kAlt = Qt::AltModifier;
constexpr auto kPad = Qt::KeypadModifier;

Text numbers(std::initializer_list<int> values) {
  std::string out;
  for (const int value : values) out += (out.empty() ? "" : " ") + std::to_string(value);
  return fromUtf8(out);
}

// Notes every event of a box as one word and its numbers.
void watch(FormOfAll& all, TextBox& box) {
  box.onKeyDown = [&all](KeyEvent& key) { all.log.push_back(u"down " + numbers({key.code, key.mask})); };
  box.onKeyPress = [&all](CharEvent& typed) { all.log.push_back(u"press " + numbers({typed.ch})); };
  box.onChange = [&all, &box] { all.log.push_back(u"change " + box.content() + u" " + numbers({box.selStart()})); };
  box.onKeyUp = [&all](KeyEvent& key) { all.log.push_back(u"up " + numbers({key.code, key.mask})); };
}

}  // namespace

TEST_CASE("keys of the display as the handlers know them") {
  struct Row {
    int qtKey;
    Qt::KeyboardModifiers modifiers;
    const char* text;
    int code, mask, ch;
  };
  const Row rows[] = {
      {Qt::Key_S, kShift | kCtrl, "\x13", 'S', shift::ShiftCtrl, 0},
      {Qt::Key_A, {}, "a", 'A', 0, 'a'},
      {Qt::Key_A, kShift, "A", 'A', shift::Shift, 'A'},
      {Qt::Key_N, kAlt, "n", 'N', shift::Alt, 0},
      {Qt::Key_5, kPad, "5", key::Num0 + 5, 0, '5'},
      {Qt::Key_5, kPad | kCtrl, "\x1d", key::Num0 + 5, shift::Ctrl, 0},
      {Qt::Key_Clear, kPad | kCtrl, "", key::Num0 + 5, shift::Ctrl, 0},
      {Qt::Key_End, kPad | kCtrl | kShift, "", key::Num0 + 1, shift::ShiftCtrl, 0},
      {Qt::Key_Left, kPad, "", key::Left, 0, 0},
      {Qt::Key_Enter, kPad, "\r", key::Enter, 0, 13},
      {Qt::Key_Return, {}, "\r", key::Enter, 0, 13},
      {Qt::Key_Escape, {}, "\x1b", key::Esc, 0, 27},
      {Qt::Key_Backtab, kShift, "", key::Tab, shift::Shift, 9},
      {Qt::Key_Space, kCtrl, "", key::Space, shift::Ctrl, 0},
      {Qt::Key_F12, {}, "", key::function(12), 0, 0},
      {Qt::Key_Shift, kShift, "", key::Shift, 0, 0},
      {Qt::Key_Comma, {}, ",", 188, 0, ','},
      {Qt::Key_unknown, {}, "漢", key::Other, 0, u'漢'},
      {Qt::Key_Henkan, {}, "", 0, 0, 0},
      {Qt::Key_Super_L, Qt::MetaModifier, "", 0, 0, 0},
  };
  for (const Row& row : rows) {
    CAPTURE(row.qtKey);
    const Keystroke stroke = keystrokeOf(QKeyEvent(QEvent::KeyPress, row.qtKey, row.modifiers, QString(row.text)));
    CHECK(stroke.code == row.code);
    CHECK(stroke.mask == row.mask);
    if (row.code != key::Tab) CHECK(stroke.ch == row.ch);
  }
}

TEST_CASE("one key goes down, is pressed, edits, changes and comes up, in this order") {
  Desk desk;
  auto& all = form<FormOfAll>();
  watch(all, all.Text1);
  all.show();
  Desk::letEventsRun();
  Desk::type("ab");
  CHECK(all.log == std::vector<Text>{u"down 65 0", u"press 97", u"change a 1", u"up 65 0", u"down 66 0", u"press 98",
                                     u"change ab 2", u"up 66 0"});
  all.log.clear();
  SUBCASE("the caret is known after each key") {
    Desk::press(Qt::Key_Left);
    CHECK(all.Text1.selStart() == 1);
    Desk::press(Qt::Key_Home, kShift);
    CHECK(all.Text1.selLength() == 1);
    CHECK(all.Text1.selStart() == 0);
  }
  SUBCASE("Alt and a letter, Ctrl and the keypad's plus type nothing") {
    Desk::press(Qt::Key_N, kAlt, "n");
    Desk::press(Qt::Key_Plus, kCtrl | kPad, "+");
    CHECK(all.Text1.content() == u"ab");
    CHECK(all.log.size() == 4);
  }
  SUBCASE("a key that the editor has no use for comes once") {
    Desk::press(Qt::Key_F6);
    CHECK(all.log == std::vector<Text>{u"down 117 0", u"up 117 0"});
  }
  SUBCASE("a handler that swallows the character") {
    all.Text1.onKeyPress = [](CharEvent& typed) { typed.ch = 0; };
    Desk::type("c");
    CHECK(all.Text1.content() == u"ab");
  }
  SUBCASE("a change that empties the box from within") {
    all.Text1.onChange = [&all] {
      if (all.Text1.content().size() == 3) all.Text1.setText(u"");
    };
    Desk::type("cd");
    CHECK(all.Text1.content() == u"d");
    CHECK(static_cast<QLineEdit&>(desk.widgetOf(all.Text1)).text() == "d");
  }
  SUBCASE("Shift alone is a key; Shift in a chord is none, whichever is let go first") {
    Desk::send(QEvent::KeyPress, Qt::Key_Shift, kShift);
    Desk::send(QEvent::KeyRelease, Qt::Key_Shift, {});
    Desk::letEventsRun();
    CHECK(all.log == std::vector<Text>{u"down 16 0", u"up 16 0"});
    all.log.clear();
    Desk::send(QEvent::KeyPress, Qt::Key_Shift, kShift);
    Desk::send(QEvent::KeyPress, Qt::Key_Control, kShift | kCtrl);
    Desk::send(QEvent::KeyPress, Qt::Key_S, kShift | kCtrl, "\x13");
    Desk::send(QEvent::KeyRelease, Qt::Key_Control, kShift);
    Desk::send(QEvent::KeyRelease, Qt::Key_Shift, {});
    Desk::send(QEvent::KeyRelease, Qt::Key_S, {});
    Desk::letEventsRun();
    CHECK(all.log == std::vector<Text>{u"down 83 3", u"up 83 3"});
  }
  SUBCASE("a catcher of keys that is not seen takes them all the same") {
    all.Catcher.setFocus();
    Desk::type("xy");
    Desk::press(Qt::Key_Backspace, {}, "\b");
    CHECK(all.Catcher.content() == u"x");
  }
}

TEST_CASE("an input method's commit is one change, and many lines keep their line ends") {
  Desk desk;
  auto& all = form<FormOfAll>();
  all.show();
  Desk::letEventsRun();
  const auto commit = [](const QString& text) {
    QInputMethodEvent event;
    event.setCommitString(text);
    QCoreApplication::sendEvent(QApplication::focusWidget(), &event);
  };
  watch(all, all.Text1);
  commit("東京都");
  CHECK(all.log == std::vector<Text>{u"change 東京都 3"});
  all.Rich1.setText(u"一行\r\n二行");
  all.Rich1.setFocus();
  auto& rich = static_cast<QPlainTextEdit&>(desk.widgetOf(all.Rich1));
  CHECK(rich.toPlainText() == "一行\n二行");
  Desk::press(Qt::Key_Down);
  CHECK(all.Rich1.selStart() == 4);
  commit("漢");
  CHECK(all.Rich1.content() == u"一行\r\n漢二行");
  Desk::press(Qt::Key_Return, {}, "\r");
  CHECK(all.Rich1.content() == u"一行\r\n漢\r\n二行");
  CHECK(all.Rich1.selStart() == 7);
}

TEST_CASE("positions in lines parted by CR LF and by LF") {
  const Text model = u"ab\r\n\r\nc";
  const QString native = "ab\n\nc";
  const int pairs[][2] = {{0, 0}, {2, 2}, {4, 3}, {6, 4}, {7, 5}};
  for (const auto& [m, n] : pairs) {
    CAPTURE(m);
    CHECK(nativePosition(model, m) == n);
    CHECK(modelPosition(native, n) == m);
  }
}

TEST_CASE("keys typed during a wait come behind it, in order") {
  Desk desk;
  auto& all = form<FormOfAll>();
  watch(all, all.Text1);
  all.show();
  Desk::letEventsRun();
  QTimer::singleShot(20, [] {
    for (const char16_t* key : {u"a", u"b"}) {
      const int code = Qt::Key_A + (key[0] - u'a');
      Desk::send(QEvent::KeyPress, code, {}, QString::fromUtf16(key));
      Desk::send(QEvent::KeyRelease, code, {}, QString::fromUtf16(key));
    }
  });
  desk.host.waitSeconds(0.1);
  CHECK(all.log.empty());
  Desk::letEventsRun();
  CHECK(all.Text1.content() == u"ab");
}

}  // namespace zelko
