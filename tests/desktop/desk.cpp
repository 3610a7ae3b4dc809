#include "desktop/desk.h"

#include <QApplication>
#include <QWindow>

// How Qt's own tests put a key into the queue of the display.
Q_GUI_EXPORT void qt_handleKeyEvent(QWindow* window, QEvent::Type t, int k, Qt::KeyboardModifiers mods,
                                    const QString& text, bool autorep, ushort count);

namespace zelko {

FormOfAll::FormOfAll() : Form(kName, u"すべての部品") {
  Text1.labelledBy = &Label1;
  Text2.labelledBy = &Label2;
  Text2.place = Place::sameRow;
  Catcher.invisible = true;
  Command1.isDefault = true;
  Command2.setToolTip(u"何もせずに閉じます");
  Combo1.setEntries({u"一", u"二"});
  List1.setEntries({u"りんご", u"みかん", u"ぶどう"});
  Picture1.draw({PictureBox::Stroke::box, 0, 0, 1200, 600, 0, {}});
  Picture1.draw({PictureBox::Stroke::text, 100, 100, 0, 0, 0, u"絵"});
  Grid1.setRows(6);
  Grid1.setCols(4);
  Grid1.provider = [](int row, int col) -> Text {
    if (row == 0) return col == 0 ? u"" : u"項目名";
    return col == 0 ? u"記録" : u"セル";
  };
  Grid1.setMasks({{2, 3, 1, 2, 0xC0C0FF}});
  MenuEntry& file = menu().add(nullptr, u"mnuFILE", u"ﾌｧｲﾙ(&F)");
  menu().add(&file, u"mnuREAD", u"読み込み(&O)", key::letter('O'), shift::Ctrl).command = [this] {
    log.push_back(u"read");
  };
  menu().add(&file, u"", u"-");
  menu().add(&file, u"mnuEND", u"終了(&X)");
}

void Desk::letEventsRun() {
  for (int round = 0; round < 5; ++round) QApplication::processEvents();
}

void Desk::send(QEvent::Type type, int qtKey, Qt::KeyboardModifiers modifiers, const QString& text) {
  QWindow* window = QGuiApplication::focusWindow();
  // Without a display nobody gives the focus back when a menu closes.
  if (!window && screen().activeForm())
    window = static_cast<QtHost&>(zelko::host()).windowOf(*screen().activeForm())->windowHandle();
  if (window) qt_handleKeyEvent(window, type, qtKey, modifiers, text, false, 1);
}

void Desk::press(int qtKey, Qt::KeyboardModifiers modifiers, const QString& text) {
  send(QEvent::KeyPress, qtKey, modifiers, text);
  send(QEvent::KeyRelease, qtKey, modifiers, text);
  letEventsRun();
}

void Desk::type(const char* letters) {
  for (; *letters; ++letters) press(*letters - 'a' + Qt::Key_A, {}, QString(QLatin1Char(*letters)));
}

void saveShot(QWidget& window, const QString& name) {
  const QString folder = qEnvironmentVariable("ZELKO_SHOTS");
  if (!folder.isEmpty()) CHECK(window.grab().save(folder + "/" + name + ".png"));
}

}  // namespace zelko
