// Every form of the program, as it is seen in small and in large type.
#include <doctest/doctest.h>

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QScrollBar>

#include "app/wiring.h"
#include "desktop/desk.h"
#include "platform/qt/accessibility.h"
#include "platform/qt/desktop.h"
#include "voice/talk.h"

namespace zelko {

namespace {

void loadAllForms() {
  static const bool wired = (wireProgram(), true);
  REQUIRE(wired);
  REQUIRE(formTypes().size() > 15);
}

QRect onPage(const QWidget& widget, const QWidget& page) { return {widget.mapTo(&page, QPoint(0, 0)), widget.size()}; }

// The text of a label or a hint needs no more room than it has.
bool textFits(const QWidget& widget) {
  if (const auto* label = qobject_cast<const QLabel*>(&widget))
    return label->heightForWidth(label->width()) <= label->height();
  // A hint is nothing that one scrolls.
  const auto* text = qobject_cast<const QPlainTextEdit*>(&widget);
  if (text && text->frameShape() == QFrame::NoFrame && text->verticalScrollBar()->maximum() > 0) return false;
  return widget.height() >= widget.minimumSizeHint().height() && widget.width() >= widget.minimumSizeHint().width();
}

// What a control is, for a reader of the screen: never just a place on the window.
bool hasRole(QWidget& widget) {
  const QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&widget);
  return interface && interface->role() != QAccessible::Client && interface->role() != QAccessible::NoRole;
}

void checkPlaces(const Form& form, const FormWindow& window) {
  const QWidget& page = *window.findChild<QScrollArea*>()->widget();
  CHECK(page.width() <= window.width());
  CHECK(window.frameGeometry().width() <= window.screen()->availableSize().width());
  CHECK(window.frameGeometry().height() <= window.screen()->availableSize().height());
  std::vector<std::pair<const Control*, QRect>> placed;
  for (const Control* control : form.controls()) {
    const View* view = window.viewOf(*control);
    if (!view->widget || !view->widget->isVisible()) continue;
    CAPTURE(toUtf8(control->fullName()));
    const QRect place = onPage(*view->widget, page);
    CHECK(page.rect().contains(place));
    CHECK(textFits(*view->widget));
    if (control->takesFocus()) {
      CHECK_FALSE(view->widget->accessibleName().isEmpty());
      CHECK(hasRole(*view->widget));
    }
    if (control->kind() == ControlKind::frame) continue;  // its options lie in it
    for (const auto& [other, there] : placed) {
      CAPTURE(toUtf8(other->fullName()));
      CHECK_FALSE(place.intersects(there));
    }
    placed.emplace_back(control, place);
  }
}

// No entry is hidden behind a ">>".
void checkMenuBar(const FormWindow& window) {
  for (const QMenuBar* bar : window.findChildren<QMenuBar*>())
    for (QAction* action : bar->actions())
      if (action->isVisible()) CHECK(bar->rect().contains(bar->actionGeometry(action)));
}

// Tab brings every control that takes the focus into view.
void checkFocusIsSeen(Form& form, const FormWindow& window) {
  const QWidget& seen = *window.findChild<QScrollArea*>()->viewport();
  for (Control* control : form.controls()) {
    const View* view = window.viewOf(*control);
    if (!control->takesFocus() || !view->widget) continue;
    CAPTURE(toUtf8(control->fullName()));
    control->setFocus();
    if (!control->hasFocus()) continue;  // its form passes the focus on
    Desk::letEventsRun();
    const QRect place(view->widget->mapTo(&seen, QPoint(0, 0)), view->widget->size());
    CHECK((seen.rect().contains(place) || place.height() > seen.height()));
  }
}

// What a dialog asks is put into it by its caller: here something long.
void fillEmptyLabels(Form& form) {
  for (Control* control : form.controls())
    if (control->kind() == ControlKind::label && control->caption().empty())
      control->setCaption(u"項目移動の範囲を開始項目番号と終了項目番号で入れてください。CRで実行、ESCで中止です。");
}

}  // namespace

TEST_CASE("in every form nothing overlaps or is cut off, in small or large type, and the focus is seen") {
  const QFont usual = QApplication::font();
  for (const int percent : {100, 200}) {
    CAPTURE(percent);
    QFont font = usual;
    font.setPointSizeF(usual.pointSizeF() * percent / 100);
    QApplication::setFont(font);
    Desk desk;
    loadAllForms();
    for (const FormType& type : formTypes()) {
      CAPTURE(toUtf8(type.name));
      screen().reset();
      desk.host.closeWindows();
      Form& form = type.load();
      const Silence silence;
      fillEmptyLabels(form);
      form.show();
      Desk::letEventsRun();
      FormWindow& window = *desk.host.windowOf(form);
      saveShot(window, QString("%1-%2").arg(QString::fromUtf8(toUtf8(type.name).c_str())).arg(percent));
      checkPlaces(form, window);
      checkMenuBar(window);
      checkFocusIsSeen(form, window);
    }
  }
  QApplication::setFont(usual);
}

TEST_CASE("while the program speaks itself, a reader of the screen is told of windows only") {
  bool speaks = true;
  desktopHooks().speaks = [&] { return speaks; };
  CHECK_FALSE(isToldToScreenReader(QAccessible::Focus));
  CHECK(isToldToScreenReader(QAccessible::StateChanged));
  speaks = false;
  CHECK(isToldToScreenReader(QAccessible::Focus));
  desktopHooks().speaks = {};
}

}  // namespace zelko
