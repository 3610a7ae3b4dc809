#include "platform/qt/window.h"

#include <QAbstractScrollArea>
#include <QCloseEvent>
#include <QLabel>
#include <QScreen>
#include <QScrollBar>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/qt/guard.h"
#include "platform/qt/layout.h"
#include "platform/qt/page.h"
#include "platform/qt/qstring.h"

namespace zelko {

namespace {
constexpr int kEdge = 8;  // between the page and its window, so that the focus frame finds room
}

FormWindow::FormWindow(Form& form) : form_(&form) {
  setObjectName(toQt(form.name()));
  build();
  captionChanged();
  for (const auto& view : views_) pushAll(*view);
}

FormWindow::~FormWindow() { forget(); }

void FormWindow::build() {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  if (!form_->menu().empty()) {
    auto* bar = new QWidget(this);
    menu_ = std::make_unique<MenuBar>(*bar, *form_, room().width());
    column->setMenuBar(bar);
  }
  scroll_ = new QScrollArea(this);
  scroll_->setWidgetResizable(true);
  scroll_->setFrameShape(QFrame::NoFrame);
  scroll_->setFocusPolicy(Qt::NoFocus);
  page_ = new QWidget;
  for (Control* control : form_->controls()) {
    views_.push_back(makeView(*control, page_));
    // Sizes are asked for while the rows are laid out.
    pushTo(*views_.back(), Property::caption);
  }
  rows_ = &layOut(
      *page_, *form_, [this](const Control& control) { return viewOf(control); }, room().width() - 6 * kEdge);
  rows_->setContentsMargins(kEdge, kEdge, kEdge, kEdge);
  for (Control* control : form_->controls()) {
    View* named = viewOf(*control);
    auto* label = control->labelledBy ? qobject_cast<QLabel*>(viewOf(*control->labelledBy)->widget) : nullptr;
    if (label && named->widget && !label->buddy()) label->setBuddy(named->widget);
  }
  scroll_->setWidget(page_);
  column->addWidget(scroll_);
  frame_ = new FocusFrame(*page_);
}

View* FormWindow::viewOf(const Control& control) const {
  const auto found =
      std::find_if(views_.begin(), views_.end(), [&](const auto& view) { return &view->control == &control; });
  return found == views_.end() ? nullptr : found->get();
}

View* FormWindow::viewAt(const QWidget* widget) const {
  for (; widget && widget != this; widget = widget->parentWidget()) {
    const auto found =
        std::find_if(views_.begin(), views_.end(), [&](const auto& view) { return view->widget == widget; });
    if (found != views_.end()) return found->get();
  }
  return nullptr;
}

void FormWindow::captionChanged() {
  setWindowTitle(toQt(form_->caption()));
  setAccessibleName(toQt(form_->caption()));
}

// What the screen has for a window, without the frame that the desktop puts round it.
QSize FormWindow::room() const { return screen()->availableSize() - QSize(2 * kEdge, 6 * kEdge); }

QSize FormWindow::fittingSize() const {
  const QSize room(this->room().width(), std::min(this->room().height(), tallest_));
  const QWidget* bar = layout()->menuBar();
  int width = std::max(rows_->sizeHint().width(), bar ? bar->sizeHint().width() : 0);
  width = std::min(width, room.width());
  const int height = rows_->preferredHeight(width) + (bar ? bar->sizeHint().height() : 0);
  if (height <= room.height()) return {width, height};
  // What doesn't fit is scrolled to, beside the bar that scrolls.
  return QSize(width + scroll_->verticalScrollBar()->sizeHint().width() + kEdge, room.height()).boundedTo(room);
}

void FormWindow::reveal(bool modal, FormWindow* above) {
  // Its state may have changed while it was hidden.
  for (const auto& view : views_) pushAll(*view);
  menuChanged();
  setWindowModality(modal ? Qt::ApplicationModal : Qt::NonModal);
  setAttribute(Qt::WA_ShowWithoutActivating, above != nullptr);
  takeSize(fittingSize());
  if (above)
    follow(*above);
  else if (menu_)
    move(screen()->availableGeometry().topLeft());
  show();
  // Grids take their cells over, and with them their size, when events run again.
  growSoon();
}

// Only when its window stands is it known how much room the frame takes that the desktop puts round the one above.
void FormWindow::follow(FormWindow& above) {
  above_ = &above;
  above.installEventFilter(this);
  placeBelow();
  constexpr int kFramed = 250;  // milliseconds
  QTimer::singleShot(kFramed, this, [this] { placeBelow(); });
}

void FormWindow::placeBelow() {
  if (!above_ || !form_) return;
  const QRect room = screen()->availableGeometry();
  const int title = std::max(above_->geometry().top() - above_->frameGeometry().top(), kEdge);
  const int least = std::min(sizeHint().height(), room.height() / 3);
  // The one above gives way where both don't fit; what it shows is scrolled to.
  above_->keepWithin(room.bottom() - least - title - above_->geometry().top());
  const QRect upper = above_->frameGeometry();
  const QSize wanted = fittingSize();
  move(upper.left(), upper.bottom() + 1);
  takeSize({std::clamp(wanted.width(), std::min(upper.width(), room.width()), this->room().width()),
            std::clamp(wanted.height(), least, std::max(least, room.bottom() - upper.bottom() - title - kEdge))});
}

void FormWindow::keepWithin(int height) {
  tallest_ = height;
  if (this->height() > height) takeSize({width(), height});
}

bool FormWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched == above_ && event->type() == QEvent::Resize && isVisible()) placeBelow();
  return false;
}

void FormWindow::focusOn(const Control* control) {
  View* view = control ? viewOf(*control) : nullptr;
  QWidget* widget = view ? view->widget : nullptr;
  frame_->surround(widget);
  if (!widget) return setFocus(Qt::OtherFocusReason);
  widget->setFocus(Qt::OtherFocusReason);
  // The whole of it first: of a list or a text the second call looks at the current line alone.
  showPlace({widget->mapTo(page_, QPoint(0, 0)), widget->size()});
  if (qobject_cast<QAbstractScrollArea*>(widget)) scroll_->ensureWidgetVisible(widget);
}

// All of it; of what is larger than the window its begin, where none of it is seen yet from edge to edge.
void FormWindow::showPlace(const QRect& place) {
  const QRect seen({scroll_->horizontalScrollBar()->value(), scroll_->verticalScrollBar()->value()},
                   scroll_->viewport()->size());
  QPoint aim = place.center();
  QSize margin = place.size() / 2 + QSize(1, 1);
  if (place.width() > seen.width()) {
    aim.setX(place.left() <= seen.left() && seen.right() <= place.right() ? seen.center().x() : place.left());
    margin.setWidth(0);
  }
  if (place.height() > seen.height()) {
    aim.setY(place.top() <= seen.top() && seen.bottom() <= place.bottom() ? seen.center().y() : place.top());
    margin.setHeight(0);
  }
  scroll_->ensureVisible(aim.x(), aim.y(), margin.width(), margin.height());
}

void FormWindow::push(Control& control, Property property) {
  View* view = viewOf(control);
  if (!view) return;
  pushTo(*view, property);
  if (property == Property::caption) {
    for (const auto& named : views_)
      if (named->control.labelledBy == &control && named->widget)
        named->widget->setAccessibleName(accessibleNameOf(named->control));
  }
  if (property == Property::caption || property == Property::visible || property == Property::drawing ||
      property == Property::width)
    growSoon();
}

// A scroll bar that stands narrows the page, and so keeps itself needed: it has to go to be asked for again.
void FormWindow::takeSize(QSize size) {
  scroll_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  resize(size);
  layout()->activate();
  scroll_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
}

// A longer text or another control may need more room than the window has.
void FormWindow::growSoon() {
  if (growing_ || above_ || !isVisible()) return;
  growing_ = true;
  QTimer::singleShot(0, this, [this] {
    growing_ = false;
    if (!form_ || !isVisible() || isMaximized()) return;
    takeSize(size().expandedTo(fittingSize()));
  });
}

void FormWindow::openMenu(const MenuEntry& entry) {
  if (!menu_) return;
  menu_->refresh();
  menu_->open(entry);
}

void FormWindow::forget() {
  if (!form_) return;
  form_ = nullptr;
  hide();
  if (menu_) menu_->detach();
  for (const auto& view : views_) {
    // Only what we connected: Qt itself listens for the end of a widget, for the reader of the screen.
    if (view->widget) view->widget->disconnect(view->widget);
    if (view->detach) view->detach();
  }
  views_.clear();
}

void FormWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (!form_) return;
  guarded([this] {
    if (zelko::screen().takesInput(*form_)) form_->closeBox();
  });
}

}  // namespace zelko
