#include "platform/qt/view.h"

#include <QCheckBox>
#include <QFontMetrics>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <algorithm>

#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "platform/qt/guard.h"
#include "platform/qt/page.h"
#include "platform/qt/qstring.h"

namespace zelko {

namespace {

constexpr int kLongestLabelLine = 48;   // characters
constexpr int kLongestButtonLine = 20;  // characters

// A long caption stands in several lines, parted where it names two things, else in the middle.
QString folded(QString caption) {
  if (caption.size() <= kLongestButtonLine) return caption;
  const qsizetype slash = caption.indexOf(u'/');
  const qsizetype cut = slash >= 0 && slash + 1 < caption.size() ? slash + 1 : caption.size() / 2;
  return folded(caption.left(cut)) + u'\n' + folded(caption.mid(cut));
}

// A text that asks for a line as long as it is, within bounds, and wraps where there is less room.
class Caption : public QLabel {
 public:
  explicit Caption(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
  }
  void show(QString text) {
    // A path may wrap, too.
    setText(text.replace(u'/', QStringLiteral("/\u200B")));
  }
  QSize sizeHint() const override {
    const QFontMetrics metrics = fontMetrics();
    const int longest = metrics.horizontalAdvance(u'0') * kLongestLabelLine;
    const int wide = std::min(metrics.boundingRect({}, 0, text()).width() + metrics.height() / 2, longest);
    return {wide, heightForWidth(wide)};
  }
  QSize minimumSizeHint() const override {
    return {std::min(sizeHint().width(), fontMetrics().horizontalAdvance(u'0') * 8), fontMetrics().height()};
  }
};

void makeLabel(View& view, QWidget* parent) {
  auto* label = new Caption(parent);
  view.widget = label;
  view.push = [&view, label](Property property) {
    if (property != Property::caption) return;
    label->show(shownCaption(view.control.caption()));
  };
}

// A click on a button never moves the native focus or state by itself: the model says what became of it.
void makeButton(View& view, QAbstractButton* button) {
  button->setFocusPolicy(Qt::TabFocus);
  button->setAutoExclusive(false);
  view.widget = button;
  view.push = [&view, button](Property property) {
    if (property == Property::caption) button->setText(folded(toQt(view.control.caption())));
    if (property == Property::value && button->isCheckable()) button->setChecked(view.control.value() != 0);
  };
  QObject::connect(button, &QAbstractButton::clicked, button, [&view] {
    guarded([&view] {
      view.push(Property::value);  // back to what the model has, before it decides
      if (screen().takesInput(view.control.form())) view.control.click();
    });
  });
}

void makeFrame(View& view, QWidget* parent) {
  auto* group = new QGroupBox(parent);
  view.widget = group;
  view.push = [&view, group](Property property) {
    if (property == Property::caption) group->setTitle(shownCaption(view.control.caption()));
  };
}

void makeTimer(View& view, QWidget* parent) {
  auto* timer = new QTimer(parent);
  auto& control = static_cast<Timer&>(view.control);
  view.push = [&control, timer](Property property) {
    if (property != Property::interval && property != Property::enabled) return;
    if (control.enabled() && control.interval() > 0)
      timer->start(control.interval());
    else
      timer->stop();
  };
  view.detach = [timer] { timer->stop(); };
  QObject::connect(timer, &QTimer::timeout, timer, [&control] {
    if (!screen().takesInput(control.form())) return;
    guarded([&control] { fire(control.onTimer); });
  });
}

void showColours(QWidget& widget, const Control& control) {
  const auto colour = [](Colour c) { return QColor(c & 0xFF, (c >> 8) & 0xFF, (c >> 16) & 0xFF); };
  QPalette palette;
  if (control.backColour() != kDesktopColour) {
    const QColor back = colour(control.backColour());
    // Letters stay readable on a coloured ground, also where the desktop's own are light.
    const QColor letters = qGray(back.rgb()) > 127 ? Qt::black : Qt::white;
    for (const auto role : {QPalette::Window, QPalette::Base, QPalette::Button}) palette.setColor(role, back);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
      palette.setColor(role, letters);
  }
  if (control.foreColour() != kDesktopColour) {
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
      palette.setColor(role, colour(control.foreColour()));
  }
  widget.setAutoFillBackground(control.backColour() != kDesktopColour);
  widget.setPalette(palette);
}

void showWidth(QWidget& widget, const Control& control) {
  const int frame = widget.fontMetrics().height();
  askForWidth(widget, control.width() > 0 ? static_cast<int>(control.width() * pixelsPerTwip(widget)) + frame : 0);
}

void makeKind(View& view, QWidget* parent) {
  switch (view.control.kind()) {
    case ControlKind::textBox:
    case ControlKind::richTextBox:
      return makeTextView(view, parent);
    case ControlKind::label:
      return makeLabel(view, parent);
    case ControlKind::checkBox:
      return makeButton(view, new QCheckBox(parent));
    case ControlKind::optionButton:
      return makeButton(view, new QRadioButton(parent));
    case ControlKind::commandButton:
      return makeButton(view, new QPushButton(parent));
    case ControlKind::comboBox:
      return makeComboView(view, parent);
    case ControlKind::listBox:
    case ControlKind::driveBox:
    case ControlKind::folderBox:
    case ControlKind::fileBox:
      return makeListView(view, parent);
    case ControlKind::pictureBox:
      return makePictureView(view, parent);
    case ControlKind::grid:
      return makeGridView(view, parent);
    case ControlKind::timer:
      return makeTimer(view, parent);
    case ControlKind::frame:
      return makeFrame(view, parent);
  }
}

}  // namespace

std::unique_ptr<View> makeView(Control& control, QWidget* parent) {
  auto view = std::make_unique<View>(control);
  makeKind(*view, parent);
  if (view->widget) view->widget->setObjectName(toQt(control.fullName()));
  return view;
}

namespace {

QString wordFor(ControlKind kind) {
  switch (kind) {
    case ControlKind::driveBox:
      return QStringLiteral("ドライブ");
    case ControlKind::folderBox:
      return QStringLiteral("フォルダ");
    case ControlKind::fileBox:
      return QStringLiteral("ファイル");
    case ControlKind::listBox:
    case ControlKind::comboBox:
      return QStringLiteral("一覧");
    case ControlKind::grid:
      return QStringLiteral("表");
    case ControlKind::pictureBox:
      return QStringLiteral("図");
    default:
      return QStringLiteral("文");
  }
}

}  // namespace

QString accessibleNameOf(const Control& control) {
  if (control.labelledBy && !control.labelledBy->caption().empty()) return shownCaption(control.labelledBy->caption());
  if (!control.screenName.empty()) return toQt(control.screenName);
  const QString caption = shownCaption(control.caption());
  return caption.isEmpty() ? wordFor(control.kind()) : caption;
}

double pixelsPerTwip(const QWidget& widget) {
  constexpr double kTwipsOfDigit = 120;
  return widget.fontMetrics().horizontalAdvance(u'0') / kTwipsOfDigit;
}

void pushTo(View& view, Property property) {
  if (view.push) view.push(property);
  if (!view.widget) return;
  QWidget& widget = *view.widget;
  switch (property) {
    case Property::caption:
      return widget.setAccessibleName(accessibleNameOf(view.control));
    case Property::enabled:
      return widget.setEnabled(view.control.enabled());
    case Property::visible:
      return widget.setVisible(view.control.visible());
    case Property::colour:
      return showColours(widget, view.control);
    case Property::width:
      return showWidth(widget, view.control);
    case Property::toolTip:
      widget.setToolTip(toQt(view.control.toolTip()));
      return widget.setAccessibleDescription(toQt(view.control.toolTip()));
    default:
      return;
  }
}

void pushAll(View& view) {
  for (const Property property :
       {Property::caption, Property::toolTip, Property::text, Property::value, Property::entries, Property::listIndex,
        Property::cells, Property::drawing, Property::colour, Property::width, Property::enabled, Property::visible,
        Property::interval})
    pushTo(view, property);
}

}  // namespace zelko
