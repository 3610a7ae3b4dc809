#include "platform/qt/inputfilter.h"

#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QTextFormat>
#include <QTimer>
#include <utility>

#include "platform/forms/composition.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "platform/forms/keys.h"
#include "platform/forms/mouse.h"
#include "platform/forms/routing.h"
#include "platform/host.h"
#include "platform/qt/guard.h"
#include "platform/qt/qstring.h"

namespace zelko {

namespace {

// Windows change places a moment after they were told to; what the user did stands longer than this.
constexpr int kSettleMilliseconds = 150;

// One number for a key from its press to its release.
int physicalKey(const QKeyEvent& event, const Keystroke& stroke) {
  return event.nativeScanCode() ? static_cast<int>(event.nativeScanCode()) : -stroke.code;
}

bool isMouse(QEvent::Type type) {
  return type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease || type == QEvent::MouseButtonDblClick;
}

// The stretch that the input method lays a ground under is the one being chosen; the rest is only underlined.
Composition compositionOf(const QInputMethodEvent& event) {
  Composition shown{fromQt(event.preeditString()), 0, 0};
  for (const QInputMethodEvent::Attribute& part : event.attributes()) {
    const bool ground = part.type == QInputMethodEvent::TextFormat &&
                        part.value.value<QTextFormat>().background().style() != Qt::NoBrush;
    if (!ground) continue;
    if (shown.length == 0) shown.start = part.start;
    shown.length = part.start + part.length - shown.start;
  }
  return shown;
}

bool isTyped(QEvent::Type type) {
  return type == QEvent::KeyPress || type == QEvent::KeyRelease || type == QEvent::InputMethod;
}

// Esc in a menu of the bar leaves the menus altogether; Qt would stay on the bar, where the next Esc is unheard.
bool closesMenu(const QKeyEvent& key) {
  auto* menu = key.key() == Qt::Key_Escape ? qobject_cast<QMenu*>(QApplication::activePopupWidget()) : nullptr;
  auto* bar = menu ? qobject_cast<QMenuBar*>(menu->parentWidget()) : nullptr;
  if (!bar) return false;
  menu->close();
  bar->setActiveAction(nullptr);
  return true;
}

bool actsByClick(ControlKind kind) { return kind == ControlKind::label || kind == ControlKind::pictureBox; }

}  // namespace

InputFilter::InputFilter(std::function<View*(const Control&)> viewOf) : viewOf_(std::move(viewOf)) {}

bool InputFilter::eventFilter(QObject* receiver, QEvent* event) {
  if (event->type() == QEvent::ApplicationDeactivate) {
    down_.clear();
    forgetPresses();
    aloneModifier_ = 0;
    return false;
  }
  if (!receiver->isWidgetType() || delivering_) return false;
  if (event->type() == QEvent::KeyPress && closesMenu(static_cast<QKeyEvent&>(*event))) return true;
  auto& widget = static_cast<QWidget&>(*receiver);
  auto* window = dynamic_cast<FormWindow*>(widget.window());
  // Menus and open lists keep their keys while they are open.
  if (!window || QApplication::activePopupWidget() || qobject_cast<QMenuBar*>(receiver)) return false;
  return handle(*window, widget, *event);
}

bool InputFilter::handle(FormWindow& window, QWidget& receiver, QEvent& event) {
  if (holding_ > 0 && isTyped(event.type())) {
    held_.emplace_back(event.clone());
    return true;
  }
  switch (event.type()) {
    case QEvent::ShortcutOverride:
      event.accept();
      return true;
    case QEvent::KeyPress:
      return keyPressed(static_cast<QKeyEvent&>(event));
    case QEvent::KeyRelease:
      return keyReleased(static_cast<QKeyEvent&>(event));
    case QEvent::InputMethod:
      return committed(static_cast<QInputMethodEvent&>(event));
    case QEvent::FocusIn:
      if (static_cast<QFocusEvent&>(event).reason() == Qt::MouseFocusReason) focusedByMouse(window, receiver);
      return false;
    case QEvent::WindowActivate:
      if (&receiver == &window) settleActivation();
      return false;
    default:
      return isMouse(event.type()) && mouse(window, receiver, static_cast<QMouseEvent&>(event));
  }
}

bool InputFilter::keyPressed(QKeyEvent& event) {
  pressed(event);
  // An editor that had no use for it must not make it climb on to its parents, and through here again.
  event.accept();
  return true;
}

void InputFilter::pressed(QKeyEvent& event) {
  const Keystroke stroke = keystrokeOf(event);
  if (stroke.isModifier()) {
    if (!event.isAutoRepeat()) aloneModifier_ = stroke.mask == 0 ? stroke.code : 0;
    return;
  }
  aloneModifier_ = 0;
  if (stroke.code == 0) return;
  down_[physicalKey(event, stroke)] = stroke.code;
  bool used = true;
  guarded([&] { used = routeKeyDown(stroke.code, stroke.mask, stroke.ch); });
  if (used) return;
  const Control* control = screen().activeControl();
  View* view = control ? viewOf_(*control) : nullptr;
  if (!view || !view->nativeEdit()) {
    guarded([&] {
      Control* catcher = screen().activeControl();
      if (catcher && !catcher->keyDefault({stroke.code, stroke.mask}) && stroke.ch) catcher->typeDefault(stroke.ch);
    });
  } else if (editorMayHave(stroke, control->kind() == ControlKind::richTextBox)) {
    giveToEditor(*view, event);
  }
}

bool InputFilter::keyReleased(const QKeyEvent& event) {
  if (event.isAutoRepeat()) return true;
  const Keystroke stroke = keystrokeOf(event);
  if (stroke.isModifier()) return modifierReleased(stroke.code);
  const auto pressed = down_.find(physicalKey(event, stroke));
  if (pressed == down_.end()) return true;  // it went down somewhere else
  const int held = pressed->second;
  down_.erase(pressed);
  guarded([held] { routeKeyUp(held); });
  return true;
}

// A chord sends no event of its modifiers; one that was pressed alone is a key like any other, once it is clear that
// nothing follows it.
bool InputFilter::modifierReleased(int code) {
  if (std::exchange(aloneModifier_, 0) != code) return true;
  guarded([code] {
    routeKeyDown(code, shift::None, 0);
    routeKeyUp(code);
  });
  return true;
}

void InputFilter::giveToEditor(View& view, QEvent& event) {
  const QPointer<QWidget> editor = view.widget;
  view.delivering = delivering_ = true;
  QCoreApplication::sendEvent(editor, &event);
  view.delivering = delivering_ = false;
  guarded([&view] { view.report(); });
}

bool InputFilter::committed(QInputMethodEvent& event) {
  const Control* control = screen().activeControl();
  View* view = control && screen().takesInput(control->form()) ? viewOf_(*control) : nullptr;
  if (!view || !view->nativeEdit()) return true;
  const bool composed = std::exchange(composing_, !event.preeditString().isEmpty());
  if (composed || composing_) guarded([shown = compositionOf(event)] { compositionChanged(shown); });
  giveToEditor(*view, event);
  return true;
}

void InputFilter::deliverHeld() {
  if (--holding_ > 0) return;
  for (const auto& event : std::exchange(held_, {})) {
    if (event->type() == QEvent::KeyPress) keyPressed(static_cast<QKeyEvent&>(*event));
    if (event->type() == QEvent::KeyRelease) keyReleased(static_cast<QKeyEvent&>(*event));
    if (event->type() == QEvent::InputMethod) committed(static_cast<QInputMethodEvent&>(*event));
  }
}

bool InputFilter::mouse(FormWindow& window, QWidget& receiver, const QMouseEvent& event) {
  aloneModifier_ = 0;
  if (!window.form() || !screen().takesInput(*window.form())) return true;
  View* view = window.viewAt(&receiver);
  if (!view || event.button() != Qt::LeftButton) return false;
  const MouseModifiers held(maskOf(event.modifiers()));
  Control& control = view->control;
  if (actsByClick(control.kind())) {
    if (event.type() == QEvent::MouseButtonPress) guarded([&control] { control.click(); });
    if (event.type() == QEvent::MouseButtonDblClick) guarded([&control] { control.doubleClick(); });
    return true;
  }
  if (!view->nativeEdit() || event.type() == QEvent::MouseButtonPress) return false;
  // The caret has moved when the editor had its event.
  const std::unique_ptr<QMouseEvent> moved(event.clone());
  view->delivering = delivering_ = true;
  QCoreApplication::sendEvent(&receiver, moved.get());
  view->delivering = delivering_ = false;
  guarded([view, &event] {
    view->report();
    if (event.type() == QEvent::MouseButtonRelease) fire(view->control.onClick);
    if (event.type() == QEvent::MouseButtonDblClick) fire(view->control.onDblClick);
  });
  return true;
}

void InputFilter::focusedByMouse(FormWindow& window, QWidget& receiver) {
  View* view = window.viewAt(&receiver);
  // Lists and grids take the focus with their click.
  if (!view || !view->nativeEdit() || view->control.hasFocus()) return;
  guarded([view] {
    if (screen().takesInput(view->control.form())) view->control.setFocus();
  });
}

void InputFilter::settleActivation() {
  if (std::exchange(settling_, true)) return;
  QTimer::singleShot(kSettleMilliseconds, this, [this] {
    settling_ = false;
    auto* window = dynamic_cast<FormWindow*>(QApplication::activeWindow());
    if (!window || !window->form() || window->form() == screen().activeForm()) return;
    guarded([window] {
      Form& chosen = *window->form();
      if (screen().takesInput(chosen) && chosen.activeControl()) return chosen.activate();
      Form* active = screen().activeForm();
      if (active) host().focusMoved(*active, active->activeControl());
    });
  });
}

}  // namespace zelko
