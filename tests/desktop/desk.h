// A desk to try forms on: a host with real windows, keys that go the way of real ones, and two forms.
#pragma once

#include <doctest/doctest.h>

#include <QKeyEvent>
#include <QString>
#include <vector>

#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "platform/forms/grid.h"
#include "platform/forms/keys.h"
#include "platform/forms/lists.h"
#include "platform/qt/qthost.h"

namespace zelko {

// A form with a control of every kind.
class FormOfAll : public Form {
 public:
  static constexpr TextView kName = u"FormOfAll";
  FormOfAll();

  Label Label1{*this, u"Label1", u"データ入力(&D)"};
  TextBox Text1{*this, u"Text1"};
  Label Label2{*this, u"Label2", u"記録番号 "};
  TextBox Text2{*this, u"Text2"};
  TextBox Catcher{*this, u"Catcher"};
  Label Label3{*this, u"Label3", u"長い説明の文が、窓の幅いっぱいに折り返されて表示されます。何も重なりません。"};
  RichTextBox Rich1{*this, u"Rich1"};
  CheckBox Check1{*this, u"Check1", u"読み上げ機能を使う"};
  Frame Frame1{*this, u"Frame1", u"並び"};
  OptionButton Option1{*this, u"Option1", u"昇順", 0, &Frame1};
  OptionButton Option2{*this, u"Option1", u"降順", 1, &Frame1};
  ComboBox Combo1{*this, u"Combo1"};
  ListBox List1{*this, u"List1"};
  PictureBox Picture1{*this, u"Picture1"};
  Grid Grid1{*this, u"Grid1"};
  Timer Timer1{*this, u"Timer1"};
  Button Command1{*this, u"Command1", u"実行(&U)"};
  Button Command2{*this, u"Command2", u"中止(ESC)"};
  std::vector<Text> log;
};

// A dialog with one box and one button.
class Dialog : public Form {
 public:
  static constexpr TextView kName = u"Dialog";
  Dialog() : Form(kName, u"確認") {}
  TextBox Text1{*this, u"Text1"};
  Button Command1{*this, u"Command1", u"了解"};
};

// A picture of the window, where ZELKO_SHOTS names a folder for them.
void saveShot(QWidget& window, const QString& name);

class Desk {
 public:
  Desk() { setHost(&host); }
  ~Desk() {
    host.closeWindows();
    screen().reset();
  }

  // Sends a key as the display does: to the window, through the queue.
  static void send(QEvent::Type type, int qtKey, Qt::KeyboardModifiers modifiers = {}, const QString& text = {});
  static void press(int qtKey, Qt::KeyboardModifiers modifiers = {}, const QString& text = {});
  static void type(const char* letters);
  static void letEventsRun();
  QWidget& widgetOf(const Control& control) const { return *host.windowOf(control.form())->viewOf(control)->widget; }

  QtHost host;
};

}  // namespace zelko

template <>
struct doctest::StringMaker<zelko::Text> {
  static String convert(const zelko::Text& text) { return zelko::toUtf8(text).c_str(); }
};

template <>
struct doctest::StringMaker<std::vector<zelko::Text>> {
  static String convert(const std::vector<zelko::Text>& texts) {
    zelko::Text all;
    for (const auto& text : texts) all += u"[" + text + u"] ";
    return zelko::toUtf8(all).c_str();
  }
};
