#include "platform/qt/qthost.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QDateTime>
#include <QDesktopServices>
#include <QTimer>
#include <QUrl>
#include <algorithm>
#include <utility>

#include "platform/forms/form.h"
#include "platform/qt/clipboard.h"
#include "platform/qt/desktop.h"
#include "platform/qt/qstring.h"
#include "platform/qt/strokes.h"
#include "platform/serialport.h"

namespace zelko {

namespace {

// Keys that were held back during a wait would else be looked at with the next unrelated event.
void wakeUp() { QAbstractEventDispatcher::instance()->wakeUp(); }

}  // namespace

QtHost::QtHost()
    : filter_([this](const Control& control) -> View* {
        FormWindow* window = windowOf(control.form());
        return window ? window->viewOf(control) : nullptr;
      }) {
  watchClipboardRefusals();
  QApplication::setQuitOnLastWindowClosed(false);
  qApp->installEventFilter(&filter_);
}

QtHost::~QtHost() {
  qApp->removeEventFilter(&filter_);
  closeWindows();
}

void QtHost::closeWindows() {
  waiting_.clear();
  for (const auto& [form, window] : std::exchange(windows_, {})) delete window;
}

void QtHost::run(const std::function<void()>& startProgram) {
  GuardedLoop loop;
  loops_.push_back(&loop);
  guarded(startProgram);
  if (screen().shown().empty())
    rethrowKept();
  else
    loop.run();
  loops_.pop_back();
}

FormWindow* QtHost::windowOf(const Form& form) const {
  const auto found = windows_.find(&form);
  return found == windows_.end() ? nullptr : found->second;
}

// Whether the form takes the focus is known only when it does: a form that is shown beside another never says so.
void QtHost::formShown(Form& form) {
  auto& window = windows_[&form];
  if (!window) window = new FormWindow(form);
  waiting_.push_back(&form);
  QTimer::singleShot(0, &filter_, [this] { guarded([this] { revealWaiting(); }); });
}

void QtHost::revealWaiting() {
  for (Form* form : std::exchange(waiting_, {})) reveal(*form, false);
}

void QtHost::reveal(Form& form, bool withFocus) {
  FormWindow* window = windowOf(form);
  if (!window || !form.visible()) return;
  const Form* active = screen().activeForm();
  FormWindow* above = !withFocus && active && active != &form ? windowOf(*active) : nullptr;
  // Beneath a modal form every other window is dead: what is shown on top of one must be modal too.
  window->reveal(form.modal() || !modalLoops_.empty(), above);
  // Some desktops activate every new window.
  if (above) focusMoved(screen().activeForm() ? *screen().activeForm() : form, screen().activeControl());
}

void QtHost::formHidden(Form& form) {
  std::erase(waiting_, &form);
  if (FormWindow* window = windowOf(form)) window->hide();
  if (!modalLoops_.empty() && modalLoops_.back() == &form) loops_.back()->quit();
  QTimer::singleShot(0, &filter_, [this] { endWhenNothingIsShown(); });
}

void QtHost::endWhenNothingIsShown() {
  if (!screen().shown().empty()) return;
  if (!screen().handlerRuns()) return loops_.empty() ? void() : loops_.front()->quit();
  // The handler that hid the last form may yet show another.
  constexpr int kLater = 100;
  QTimer::singleShot(kLater, &filter_, [this] { endWhenNothingIsShown(); });
}

void QtHost::formForgotten(Form& form) {
  std::erase(waiting_, &form);
  FormWindow* window = windowOf(form);
  if (!window) return;
  windows_.erase(&form);
  window->forget();
  // Qt may stand in one of its widgets.
  window->deleteLater();
}

void QtHost::formCaptionChanged(Form& form) {
  if (FormWindow* window = windowOf(form)) window->captionChanged();
}

void QtHost::controlChanged(Control& control, Property property) {
  if (FormWindow* window = windowOf(control.form())) window->push(control, property);
}

void QtHost::menuChanged(Form& form) {
  if (FormWindow* window = windowOf(form)) window->menuChanged();
}

bool QtHost::opensMenu(Form& form, MenuEntry& entry) {
  FormWindow* window = windowOf(form);
  if (!window || !window->isVisible()) return false;
  window->openMenu(entry);
  return true;
}

void QtHost::focusMoved(Form& form, Control* control) {
  FormWindow* window = windowOf(form);
  if (!window) return;
  if (std::erase(waiting_, &form) > 0) reveal(form, true);
  if (QApplication::activeWindow() != window) {
    window->raise();
    window->activateWindow();
  }
  window->focusOn(control);
}

void QtHost::runModal(Form& form) {
  GuardedLoop loop;
  loops_.push_back(&loop);
  modalLoops_.push_back(&form);
  // A question in the midst of long work takes input like any other.
  const int workDepth = std::exchange(screen().workDepth, 0);
  const auto leave = [&] {
    screen().workDepth = workDepth;
    loops_.pop_back();
    modalLoops_.pop_back();
  };
  try {
    if (form.visible()) loop.run(QEventLoop::DialogExec);
  } catch (...) {
    leave();
    throw;
  }
  leave();
  // The window below has the focus again before its form goes on.
  const WorkScope nothingStarts;
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  wakeUp();
  rethrowKept();
}

void QtHost::letEventsThrough() {
  constexpr auto kEvery = std::chrono::milliseconds(20);
  const auto now = Clock::now();
  if (now < nextLook_) return;
  {
    const WorkScope onlyLiveForms;
    QCoreApplication::processEvents();
  }
  nextLook_ = Clock::now() + kEvery;
  rethrowKept();
}

void QtHost::waitSeconds(double seconds) {
  {
    const WorkScope nothingStarts;
    filter_.hold();
    QEventLoop loop;
    QTimer::singleShot(std::chrono::milliseconds(static_cast<std::int64_t>(seconds * 1000) + 1), Qt::PreciseTimer,
                       &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
  }
  QTimer::singleShot(0, &filter_, [this] { filter_.deliverHeld(); });
  wakeUp();
  rethrowKept();
}

float QtHost::dayTimer() { return static_cast<float>(QTime::currentTime().msecsSinceStartOfDay()) / 1000.0F; }

DateTime QtHost::now() {
  const QDateTime when = QDateTime::currentDateTime();
  const QDate date = when.date();
  const QTime time = when.time();
  return {date.year(), date.month(), date.day(), time.hour(), time.minute(), time.second()};
}

std::uint32_t QtHost::randomBits() { return static_cast<std::uint32_t>(random_()); }

void QtHost::beep() { QApplication::beep(); }

bool QtHost::saveImage(const PictureBox& picture, TextView path) { return savePng(picture, path); }

bool QtHost::clipboardText(Text& out) { return readClipboard(out); }
bool QtHost::clearClipboard() { return emptyClipboard(); }
bool QtHost::setClipboard(TextView text) { return putOnClipboard(text); }

bool QtHost::sayOnClipboard(TextView sentence) {
  // The reader of our own needs no clipboard.
  fire(desktopHooks().onSentence, sentence);
  return putOnClipboard(sentence);
}

bool QtHost::openLink(TextView link) { return QDesktopServices::openUrl(QUrl(toQt(link))); }

std::unique_ptr<SerialPort> QtHost::openSerial(int port, TextView device) {
  return openSerialDevice(serialDevice(port, toUtf8(device)));
}

bool QtCharacter::load(TextView file) {
  fire(desktopHooks().onAgentFile, file);
  return true;
}
void QtCharacter::unload() { stop(); }
void QtCharacter::stop() { fire(desktopHooks().onAgentStop); }
void QtCharacter::speak(TextView text) { fire(desktopHooks().onAgent, text); }

}  // namespace zelko
