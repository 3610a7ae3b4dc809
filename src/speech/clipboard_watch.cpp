#include "speech/clipboard_watch.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QTimer>

namespace zelko {

namespace {

// A program that clears the clipboard before it sets a text makes two events, both showing the text.
constexpr int kSettleMilliseconds = 15;

}  // namespace

bool watchClipboard(int argc, char** argv, const std::function<void(TextView)>& newText) {
  // The last platform needs no display: with it the program can say what is wrong instead of being aborted.
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
    qputenv("QT_QPA_PLATFORM", qEnvironmentVariableIsSet("DISPLAY") ? "xcb;wayland;minimal" : "wayland;minimal");
  const QGuiApplication application(argc, argv);
  if (QGuiApplication::platformName() == "minimal") return false;
  const QClipboard* clipboard = QGuiApplication::clipboard();
  QTimer settle;
  settle.setSingleShot(true);
  QObject::connect(&settle, &QTimer::timeout, [&] {
    const QString text = clipboard->text();
    if (!text.isEmpty())
      newText({reinterpret_cast<const char16_t*>(text.utf16()), static_cast<std::size_t>(text.size())});
  });
  QObject::connect(clipboard, &QClipboard::dataChanged, &settle, [&] { settle.start(kSettleMilliseconds); });
  return QGuiApplication::exec() == 0;
}

}  // namespace zelko
