#include "platform/qt/darkmode.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QPalette>

namespace zelko {

namespace {

// The settings of the desktop, as it shows them to every program: 1 asks for dark windows.
bool desktopIsDark() {
  // Without a running bus, asking would start one that outlives this program.
  if (!qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS")) return false;
  auto question = QDBusMessage::createMethodCall("org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop",
                                                 "org.freedesktop.portal.Settings", "Read");
  question << "org.freedesktop.appearance"
           << "color-scheme";
  constexpr int kMilliseconds = 300;
  const QDBusMessage answer = QDBusConnection::sessionBus().call(question, QDBus::Block, kMilliseconds);
  if (answer.type() != QDBusMessage::ReplyMessage || answer.arguments().isEmpty()) return false;
  QVariant value = answer.arguments().constFirst();
  while (value.canConvert<QDBusVariant>()) value = value.value<QDBusVariant>().variant();
  return value.toUInt() == 1;
}

QPalette darkPalette() {
  QPalette palette(QColor(0x5C, 0x5C, 0x5C), QColor(0x38, 0x38, 0x38));
  palette.setColor(QPalette::Base, QColor(0x08, 0x08, 0x08));
  palette.setColor(QPalette::AlternateBase, QColor(0x28, 0x28, 0x28));
  palette.setColor(QPalette::Highlight, QColor(0xFF, 0xD8, 0x00));
  palette.setColor(QPalette::HighlightedText, Qt::black);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
    palette.setColor(role, Qt::white);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    palette.setColor(QPalette::Disabled, role, QColor(0xA0, 0xA0, 0xA0));
  return palette;
}

}  // namespace

void followDarkMode() {
  const bool light = qGray(QApplication::palette().color(QPalette::Window).rgb()) > 127;
  if (light && desktopIsDark()) QApplication::setPalette(darkPalette());
}

}  // namespace zelko
