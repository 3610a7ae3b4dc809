#include <doctest/doctest.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QPushButton>
#include <QTimer>

#include "desktop/desk.h"
#include "platform/fault.h"
#include "platform/qt/desktop.h"

namespace zelko {

namespace {

void later(int milliseconds, const std::function<void()>& act) { QTimer::singleShot(milliseconds, qApp, act); }

// When the forms that are on their way to the screen stand there.
constexpr int kSoon = 30;

}  // namespace

TEST_CASE("a modal form takes the keys, and gives the focus back before its caller goes on") {
  Desk desk;
  auto& all = form<FormOfAll>();
  auto& dialog = form<Dialog>();
  bool back = false;
  all.Text1.onKeyDown = [&](KeyEvent& key) {
    if (key.code != key::function(2)) return;
    dialog.showModal();
    back = screen().activeForm() == &all && QApplication::focusWidget() == &desk.widgetOf(all.Text1);
  };
  dialog.Command1.onClick = [] { unload<Dialog>(); };
  all.show();
  Desk::letEventsRun();
  later(kSoon, [&] {
    Desk::type("x");
    CHECK(dialog.Text1.content() == u"x");
    CHECK(desk.host.windowOf(dialog)->isModal());
    Desk::press(Qt::Key_Tab);
    Desk::press(Qt::Key_Space, {}, " ");
  });
  Desk::press(Qt::Key_F2);
  CHECK(back);
  CHECK(loadedForm<Dialog>() == nullptr);
  Desk::type("y");
  CHECK(all.Text1.content() == u"y");
}

TEST_CASE("the end of the program and a fault leave every loop, from wherever they are") {
  struct Row {
    const char* from;
    bool fault;
  };
  for (const auto& [from, fault] : {Row{"key", false}, Row{"key", true}, Row{"timer", true}, Row{"menu", false}}) {
    CAPTURE(from);
    CAPTURE(fault);
    Desk desk;
    const auto fall = [fault = fault] {
      if (fault) throw Fault{u"overflow"};
      throw ProgramEnd{};
    };
    bool wentOn = false;
    const std::string place = from;
    const auto start = [&] {
      auto& all = form<FormOfAll>();
      auto& dialog = form<Dialog>();
      all.Text1.onKeyDown = [&](KeyEvent&) {
        dialog.showModal();
        wentOn = true;
      };
      all.menu().find(u"mnuEND")->command = fall;
      dialog.Text1.onKeyDown = [fall](KeyEvent&) { fall(); };
      all.Timer1.onTimer = fall;
      all.show();
      later(kSoon, [place, &all, &desk] {
        if (place == "timer") return all.Timer1.setInterval(1);
        if (place == "menu") return desk.host.windowOf(all)->menu()->actionOf(*all.menu().find(u"mnuEND"))->trigger();
        later(kSoon, [] { Desk::press(Qt::Key_F2); });
        Desk::press(Qt::Key_F2);
      });
    };
    if (fault)
      CHECK_THROWS_AS(desk.host.run(start), Fault);
    else
      CHECK_THROWS_AS(desk.host.run(start), ProgramEnd);
    CHECK_FALSE(wentOn);
  }
}

TEST_CASE("the program ends when its last form is gone") {
  Desk desk;
  desk.host.run([] {
    form<Dialog>().show();
    later(1, [] { form<Dialog>().closeBox(); });
  });
  CHECK(loadedForm<Dialog>() == nullptr);
}

TEST_CASE("during long work only the progress form lives, and no timer fires for the others") {
  Desk desk;
  auto& all = form<FormOfAll>();
  auto& progress = form<Dialog>();
  bool stopped = false;
  int foreign = 0, repainted = 0;
  progress.liveDuringWork = true;
  progress.Command1.onClick = [&] { stopped = true; };
  all.Timer1.onTimer = [&] { ++foreign; };
  all.Command1.onClick = [&] { ++foreign; };
  all.show();
  all.Timer1.setInterval(1);
  progress.show();
  progress.Command1.setFocus();
  later(30, [&] { static_cast<QPushButton&>(desk.widgetOf(all.Command1)).click(); });
  later(60, [] {
    Desk::send(QEvent::KeyPress, Qt::Key_Space, {}, " ");
    Desk::send(QEvent::KeyRelease, Qt::Key_Space, {}, " ");
  });
  for (int record = 0; record < 100'000'000 && !stopped; ++record) {
    desk.host.letEventsThrough();
    repainted += desk.host.windowOf(progress)->isVisible();
  }
  CHECK(stopped);
  CHECK(repainted > 0);
  CHECK(foreign == 0);
}

TEST_CASE("menus: what is chosen runs, what is highlighted is told, Alt and a letter opens") {
  Desk desk;
  auto& all = form<FormOfAll>();
  std::vector<Text> heard;
  onMenuHighlight = [&heard](const MenuEntry& entry) { heard.push_back(entry.name); };
  all.show();
  Desk::letEventsRun();
  MenuBar& menu = *desk.host.windowOf(all)->menu();
  QAction& read = *menu.actionOf(*all.menu().find(u"mnuREAD"));
  CHECK(read.text() == "読み込み(&O)\tCtrl+O");
  CHECK(read.shortcut().isEmpty());
  SUBCASE("by the mouse") {
    read.trigger();
    Desk::letEventsRun();
    CHECK(all.log == std::vector<Text>{u"read"});
  }
  SUBCASE("by its shortcut, once") {
    Desk::press(Qt::Key_O, Qt::ControlModifier, "\x0f");
    CHECK(all.log == std::vector<Text>{u"read"});
  }
  SUBCASE("by a walk with keys") {
    Desk::press(Qt::Key_F, Qt::AltModifier, "f");
    REQUIRE(QApplication::activePopupWidget());
    CHECK(heard.back() == u"mnuREAD");
    Desk::press(Qt::Key_Down);
    CHECK(heard.back() == u"mnuEND");
    Desk::press(Qt::Key_Up);
    Desk::press(Qt::Key_Return, {}, "\r");
    CHECK(all.log == std::vector<Text>{u"read"});
    CHECK_FALSE(QApplication::activePopupWidget());
    Desk::type("z");
    CHECK(all.Text1.content() == u"z");
  }
  SUBCASE("Esc leaves the menu, and the next key is the box's again") {
    Desk::press(Qt::Key_F, Qt::AltModifier, "f");
    Desk::press(Qt::Key_Escape, {}, "\x1b");
    CHECK_FALSE(QApplication::activePopupWidget());
    CHECK(QApplication::focusWidget() == &desk.widgetOf(all.Text1));
    Desk::type("z");
    CHECK(all.Text1.content() == u"z");
    CHECK(heard == std::vector<Text>{u"mnuREAD"});
  }
  SUBCASE("states follow") {
    all.menu().setChecked(u"mnuREAD", true);
    all.menu().setVisible(u"mnuEND", false);
    CHECK(read.isChecked());
    CHECK_FALSE(menu.actionOf(*all.menu().find(u"mnuEND"))->isVisible());
  }
  onMenuHighlight = nullptr;
}

TEST_CASE("sentences reach the clipboard and the reader") {
  Desk desk;
  std::vector<Text> heard;
  desktopHooks().onSentence = [&heard](TextView sentence) { heard.emplace_back(sentence); };
  Text there;
  CHECK(desk.host.sayOnClipboard(u"アカサ"));
  CHECK(desk.host.clipboardText(there));
  CHECK(there == u"アカサ");
  CHECK(desk.host.setClipboard(u"user"));
  CHECK(heard == std::vector<Text>{u"アカサ"});
  CHECK(desk.host.clearClipboard());
  CHECK(desk.host.clipboardText(there));
  CHECK(there.empty());
  desktopHooks().onSentence = nullptr;
}

TEST_CASE("printing: full-width letters are as wide as their points, pages go to the file, a killed job leaves none") {
  Desk desk;
  const QString file = QDir::temp().filePath(QString("zelko-print-%1.pdf").arg(QCoreApplication::applicationPid()));
  qputenv("ZELKO_PRINT_PDF", file.toUtf8());
  Printer& printer = desk.host.printer();
  REQUIRE(printer.begin());
  const Printer::Font font;
  CHECK(printer.textWidth(font, u"東東東東") == doctest::Approx(4 * 210.0));
  CHECK(printer.textWidth(font, u"Aｱ") == doctest::Approx(210.0));
  CHECK(printer.pageWidth() > 10'000);
  printer.text(1440, 1440, font, u"東京");
  printer.newPage();
  printer.text(1440, 1440, font, u"二");
  printer.end();
  CHECK(QFile(file).size() > 1000);
  QFile::remove(file);
  REQUIRE(printer.begin());
  printer.text(0, 0, font, u"x");
  printer.kill();
  CHECK_FALSE(QFile::exists(file));
  qunsetenv("ZELKO_PRINT_PDF");
}

}  // namespace zelko
