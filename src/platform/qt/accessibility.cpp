#include "platform/qt/accessibility.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include "platform/qt/desktop.h"
#include "platform/qt/view.h"

namespace zelko {

namespace {

// A tile is chosen like a button.
QAccessibleInterface* tileInterface(const QString&, QObject* object) {
  auto* widget = qobject_cast<QWidget*>(object);
  return widget && isTile(*widget) ? new QAccessibleWidget(widget, QAccessible::Button) : nullptr;
}

bool isHeard(QAccessible::Event type) {
  switch (type) {
    case QAccessible::Focus:
    case QAccessible::Selection:
    case QAccessible::SelectionAdd:
    case QAccessible::SelectionRemove:
    case QAccessible::SelectionWithin:
    case QAccessible::TextInserted:
    case QAccessible::TextRemoved:
    case QAccessible::TextUpdated:
    case QAccessible::TextCaretMoved:
    case QAccessible::TextSelectionChanged:
    case QAccessible::ValueChanged:
    case QAccessible::NameChanged:
    case QAccessible::DescriptionChanged:
    case QAccessible::Alert:
    case QAccessible::PopupMenuStart:
    case QAccessible::MenuStart:
      return true;
    default:
      return false;
  }
}

void passOn(QAccessibleEvent* event) {
  if (!isToldToScreenReader(event->type())) return;
  // Without a handler the event goes the usual way.
  QAccessible::installUpdateHandler(nullptr);
  QAccessible::updateAccessibility(event);
  QAccessible::installUpdateHandler(passOn);
}

}  // namespace

bool isToldToScreenReader(QAccessible::Event type) {
  const auto& speaks = desktopHooks().speaks;
  return !isHeard(type) || !speaks || !speaks();
}

void prepareAccessibility() {
  QAccessible::installFactory(tileInterface);
  QAccessible::installUpdateHandler(passOn);
}

}  // namespace zelko
