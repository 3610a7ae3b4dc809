#include "platform/qt/desktop.h"

#include <QApplication>
#include <QMessageBox>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "platform/fault.h"
#include "platform/files/files.h"
#include "platform/forms/form.h"
#include "platform/qt/accessibility.h"
#include "platform/qt/darkmode.h"
#include "platform/qt/keeper.h"
#include "platform/qt/look.h"
#include "platform/qt/qstring.h"
#include "platform/qt/qthost.h"

namespace zelko {

namespace {

constexpr int kFaultStatus = 3, kNoDisplayStatus = 1;

// The text stays on the screen, and its sentence on the clipboard, until the user has taken notice of it.
void tellFault(QtHost& host, TextView text) {
  host.sayOnClipboard(text);
  QMessageBox box(QMessageBox::Critical, QStringLiteral("Zelko"), toQt(text), QMessageBox::Ok);
  constexpr int kLongestMilliseconds = 30'000;
  QTimer::singleShot(kLongestMilliseconds, &box, &QDialog::accept);
  box.exec();
}

// A display that cannot be reached is fatal for Qt, and it would end the program as a crash.
void tellNoDisplay(QtMsgType type, const QMessageLogContext&, const QString& message) {
  if (type != QtFatalMsg) return;
  std::fprintf(stderr, "zelko: the display cannot be reached; --replay SCRIPT plays a session without one\n%s\n",
               qPrintable(message.section(u'\n', 0, 0)));
  std::_Exit(kNoDisplayStatus);
}

// The one object that every window needs.
std::unique_ptr<QApplication> reachDisplay(int& argc, char** argv) {
  const QtMessageHandler before = qInstallMessageHandler(tellNoDisplay);
  auto application = std::make_unique<QApplication>(argc, argv);
  qInstallMessageHandler(before);
  return application;
}

int runProgram(QtHost& host, const std::function<void()>& startProgram) {
  try {
    host.run(startProgram);
  } catch (const ProgramEnd&) {
    return 0;
  } catch (const Fault& fault) {
    closeAll();
    tellFault(host, fault.text);
    return kFaultStatus;
  }
  return 0;
}

}  // namespace

DesktopHooks& desktopHooks() {
  static DesktopHooks hooks;
  return hooks;
}

int runDesktop(int argc, char** argv, const std::function<void()>& startProgram) {
  const std::unique_ptr<QApplication> application = reachDisplay(argc, argv);
  QApplication::setApplicationName(QStringLiteral("zelko"));
  dress(*application);
  followDarkMode();
  prepareAccessibility();
  QtHost host;
  setHost(&host);
  const int status = runProgram(host, startProgram);
  fire(desktopHooks().onEnd);
  host.closeWindows();
  screen().reset();
  leaveClipboard();
  return status;
}

}  // namespace zelko
