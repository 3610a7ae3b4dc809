#include "platform/qt/look.h"

#include <QApplication>
#include <QEvent>
#include <QFont>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleOption>
#include <algorithm>

namespace zelko {

namespace {

constexpr double kLeastPoints = 14;
constexpr int kThick = 4;

class Style : public QProxyStyle {
 public:
  using QProxyStyle::QProxyStyle;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    // Alt alone would take the focus away to the menu bar, unheard.
    if (hint == SH_MenuBar_AltKeyNavigation) return 0;
    if (hint == SH_UnderlineShortcut) return 1;
    // A menu taller than the screen scrolls; a second column would be cut off, and Right would lead into it.
    if (hint == SH_Menu_Scrollable) return 1;
    return QProxyStyle::styleHint(hint, option, widget, data);
  }
  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
    const int height = widget ? widget->fontMetrics().height() : 0;
    // Marks and the caret grow with the type, or they'd be lost beside it.
    if (metric == PM_TextCursorWidth) return std::max(2, height / 10);
    if (metric == PM_IndicatorHeight || metric == PM_IndicatorWidth || metric == PM_ExclusiveIndicatorHeight ||
        metric == PM_ExclusiveIndicatorWidth)
      return std::max(QProxyStyle::pixelMetric(metric, option, widget), height * 3 / 4);
    return QProxyStyle::pixelMetric(metric, option, widget);
  }
  // The lines round boxes, buttons and marks are as plain as the text.
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const bool framed = element == PE_FrameLineEdit || element == PE_Frame || element == PE_PanelButtonCommand ||
                        element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton;
    if (!framed || option->rect.isEmpty()) return;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const bool enabled = option->state.testFlag(State_Enabled);
    painter->setPen(
        QPen(option->palette.color(enabled ? QPalette::Active : QPalette::Disabled, QPalette::WindowText), 1.5));
    painter->setBrush(Qt::NoBrush);
    const QRectF line = QRectF(option->rect).adjusted(1, 1, -1, -1);
    if (element == PE_IndicatorRadioButton)
      painter->drawEllipse(line);
    else
      painter->drawRoundedRect(line, 2, 2);
    painter->restore();
  }
  // Captions that mix Japanese and Latin fonts are a little wider than they are measured.
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                         const QWidget* widget) const override {
    QSize out = QProxyStyle::sizeFromContents(type, option, size, widget);
    if (type == CT_MenuItem && widget) out.rwidth() += 3 * widget->fontMetrics().height();
    return out;
  }
};

const QStringList kEvenlySpaced = {"IPAGothic", "Noto Sans Mono CJK JP", "monospace"};

void substituteFonts() {
  const auto gothic = QStringList{"IPAGothic", "Noto Sans Mono CJK JP"};
  const auto mincho = QStringList{"IPAMincho", "Noto Serif CJK JP"};
  for (const char16_t* name : {u"ＭＳ ゴシック", u"MS Gothic"})
    QFont::insertSubstitutions(QString::fromUtf16(name), gothic);
  for (const char16_t* name : {u"ＭＳ 明朝", u"MS Mincho"})
    QFont::insertSubstitutions(QString::fromUtf16(name), mincho);
}

}  // namespace

void dress(QApplication& application) {
  substituteFonts();
  application.setStyle(new Style);
  QFont font = QApplication::font();
  font.setPointSizeF(std::max(kLeastPoints, font.pointSizeF()));
  QApplication::setFont(font);
}

QFont evenlySpaced(QFont font) {
  font.setFamilies(kEvenlySpaced);
  return font;
}

FocusFrame::FocusFrame(QWidget& page) : QWidget(&page) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setFocusPolicy(Qt::NoFocus);
  hide();
}

void FocusFrame::surround(QWidget* target) {
  if (target_ != target) {
    if (target_) target_->removeEventFilter(this);
    target_ = target;
    if (target_) target_->installEventFilter(this);
  }
  follow();
}

void FocusFrame::follow() {
  if (!target_ || !target_->isVisibleTo(parentWidget())) return hide();
  const QRect around(target_->mapTo(parentWidget(), QPoint(0, 0)), target_->size());
  setGeometry(around.adjusted(-kThick, -kThick, kThick, kThick) & parentWidget()->rect());
  raise();
  show();
}

bool FocusFrame::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
    case QEvent::Hide:
      follow();
      break;
    default:
      break;
  }
  return QWidget::eventFilter(watched, event);
}

bool FocusFrame::event(QEvent* event) {
  if (event->type() == QEvent::WindowActivate || event->type() == QEvent::WindowDeactivate) update();
  return QWidget::event(event);
}

// The keys go to one window only: the others show no focus.
void FocusFrame::paintEvent(QPaintEvent*) {
  if (!window()->isActiveWindow()) return;
  QPainter painter(this);
  const QColor text = palette().color(QPalette::WindowText);
  // Blue is seen on white, and yellow on black.
  painter.setPen(QPen(qGray(text.rgb()) < 128 ? QColor(0x00, 0x40, 0xD0) : QColor(0xFF, 0xD8, 0x00), kThick));
  painter.drawRect(rect().adjusted(kThick / 2, kThick / 2, -kThick / 2, -kThick / 2));
}

}  // namespace zelko
