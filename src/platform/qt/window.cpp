#include "platform/qt/window.h"

#include <QCloseEvent>
#include <QLabel>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/qt/guard.h"
#include "platform/qt/layout.h"
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
    auto* bar = new QMenuBar(this);
    menu_ = std::make_unique<MenuBar>(*bar, *form_);
    column->setMenuBar(bar);
  }
  scroll_ = new QScrollArea(this);
  scroll_->setWidgetResizable(true);
  scroll_->setFrameShape(QFrame::NoFrame);
  scroll_->setFocusPolicy(Qt::NoFocus);
  page_ = new QWidget;
  page_->setContentsMargins(kEdge, kEdge, kEdge, kEdge);
  for (Control* control : form_->controls()) {
    views_.push_back(makeView(*control, page_));
    // Sizes are asked for while the rows are laid out.
    pushTo(*views_.back(), Property::caption);
  }
  layOut(
      *page_, *form_, [this](const Control& control) { return viewOf(control); },
      screen()->availableSize().width() - 8 * kEdge);
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

QSize FormWindow::fittingSize() const {
  const int menu = layout()->menuBar() ? layout()->menuBar()->sizeHint().height() : 0;
  const QSize page = page_->layout()->hasHeightForWidth()
                         ? QSize(page_->sizeHint().width(), page_->layout()->heightForWidth(page_->sizeHint().width()))
                         : page_->sizeHint();
  const QSize room = screen()->availableSize() - QSize(2 * kEdge, 6 * kEdge);
  return (page.expandedTo(page_->sizeHint()) + QSize(2 * kEdge, menu + 2 * kEdge)).boundedTo(room);
}

void FormWindow::reveal(bool modal, const QWidget* above) {
  // Its state may have changed while it was hidden.
  for (const auto& view : views_) pushAll(*view);
  menuChanged();
  setWindowModality(modal ? Qt::ApplicationModal : Qt::NonModal);
  setAttribute(Qt::WA_ShowWithoutActivating, above != nullptr);
  resize(fittingSize());
  if (above)
    placeBelow(*above);
  else if (menu_)
    move(screen()->availableGeometry().topLeft());
  show();
}

void FormWindow::placeBelow(const QWidget& above) {
  const QRect room = screen()->availableGeometry();
  const QRect upper = above.frameGeometry();
  const int title = upper.height() - above.height();
  const int least = std::min(sizeHint().height(), room.height() / 3);
  const int top = std::clamp(upper.bottom() + 1, room.top(), std::max(room.top(), room.bottom() - least - title));
  move(upper.left(), top);
  resize(std::clamp(width(), std::min(upper.width(), room.width()), room.width()),
         std::clamp(height(), least, std::max(least, room.bottom() - top - title)));
}

void FormWindow::focusOn(const Control* control) {
  View* view = control ? viewOf(*control) : nullptr;
  QWidget* widget = view ? view->widget : nullptr;
  frame_->surround(widget);
  if (!widget) return setFocus(Qt::OtherFocusReason);
  widget->setFocus(Qt::OtherFocusReason);
  scroll_->ensureWidgetVisible(widget);
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
  if (property == Property::caption || property == Property::visible || property == Property::drawing) growSoon();
}

// A longer text or another control may need more room than the window has.
void FormWindow::growSoon() {
  if (growing_ || !isVisible()) return;
  growing_ = true;
  QTimer::singleShot(0, this, [this] {
    growing_ = false;
    if (form_ && isVisible() && !isMaximized()) resize(size().expandedTo(fittingSize()));
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
    if (view->widget) view->widget->disconnect();
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
