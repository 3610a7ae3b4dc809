#include "platform/qt/clipboard.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QMimeData>
#include <QString>
#include <cstdio>

#include "platform/qt/guard.h"
#include "platform/qt/qstring.h"

namespace zelko {

namespace {

// When another program took the clipboard after the last event that we saw, the display refuses ours, and nothing but
// a warning tells of it.
int refusals = 0;
QtMessageHandler handlerBefore = nullptr;

void countRefusals(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  if (message.contains(QLatin1String("Cannot set X11 selection owner"))) {
    ++refusals;
  } else if (handlerBefore) {
    handlerBefore(type, context, message);
  } else {
    std::fprintf(stderr, "%s\n", qPrintable(message));
  }
}

void letDisplayTell() {
  constexpr int kMilliseconds = 1;
  const WorkScope nothingStarts;
  QElapsedTimer clock;
  clock.start();
  do {
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, kMilliseconds);
  } while (clock.elapsed() < kMilliseconds);
}

template <class Change>
bool untilTaken(const Change& change) {
  constexpr int kTries = 20;
  for (int attempt = 0; attempt < kTries; ++attempt) {
    const int before = refusals;
    change(*QGuiApplication::clipboard());
    if (refusals == before) return true;
    letDisplayTell();
  }
  return false;
}

}  // namespace

void watchClipboardRefusals() {
  if (!handlerBefore) handlerBefore = qInstallMessageHandler(countRefusals);
}

bool readClipboard(Text& out) {
  const QMimeData* data = QGuiApplication::clipboard()->mimeData();
  // A picture, or something else that has no text.
  if (data && !data->hasText() && !data->formats().isEmpty()) return false;
  out = data ? fromQt(data->text()) : Text();
  return true;
}

bool emptyClipboard() {
  return untilTaken([](QClipboard& clipboard) { clipboard.clear(); });
}

bool putOnClipboard(TextView text) {
  const QString wanted = toQt(text);
  return untilTaken([&wanted](QClipboard& clipboard) { clipboard.setText(wanted); });
}

}  // namespace zelko
