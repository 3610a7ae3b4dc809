// Text boxes: the native editor edits, the model knows.
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTextBlock>
#include <QTextCursor>
#include <algorithm>
#include <limits>

#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "platform/qt/guard.h"
#include "platform/qt/look.h"
#include "platform/qt/qstring.h"
#include "platform/qt/view.h"

namespace zelko {

namespace {

struct Edited {
  Text text;
  int start = 0, length = 0;
};

void reportTo(TextBox& box, const Edited& now) {
  if (now.text == box.content() && now.start == box.selStart() && now.length == box.selLength()) return;
  box.userEdited(now.text, now.start, now.length);
}

// What changed outside a key or a commit: the mouse, a reader of the screen.
void reportUnlessDelivering(View& view) {
  if (view.delivering) return;
  guarded([&view] { view.report(); });
}

Edited editedLine(const QLineEdit& edit) {
  if (edit.hasSelectedText()) return {fromQt(edit.text()), edit.selectionStart(), edit.selectionLength()};
  return {fromQt(edit.text()), edit.cursorPosition(), 0};
}

void pushLine(QLineEdit& edit, const TextBox& box) {
  const QSignalBlocker quiet(edit);
  edit.setReadOnly(box.readOnly);
  const QString text = toQt(box.content());
  if (edit.text() != text) edit.setText(text);
  const Edited shown = editedLine(edit);
  if (shown.start == box.selStart() && shown.length == box.selLength()) return;
  if (box.selLength() > 0)
    edit.setSelection(box.selStart(), box.selLength());
  else
    edit.setCursorPosition(box.selStart());
}

void makeLine(View& view, TextBox& box, QWidget* parent) {
  auto* edit = new QLineEdit(parent);
  edit->setContextMenuPolicy(Qt::NoContextMenu);
  edit->setMaxLength(std::numeric_limits<int>::max());
  edit->setFocusPolicy(Qt::ClickFocus);
  view.widget = edit;
  view.push = [edit, &box](Property property) {
    if (property == Property::text || property == Property::selection) pushLine(*edit, box);
  };
  view.report = [edit, &box] { reportTo(box, editedLine(*edit)); };
  QObject::connect(edit, &QLineEdit::textChanged, edit, [&view] { reportUnlessDelivering(view); });
}

// The raw text: a no-break space stays what it is.
QString nativeText(const QPlainTextEdit& edit) {
  QString text = edit.document()->toRawText();
  text.replace(QChar::ParagraphSeparator, u'\n');
  return text.replace(QChar::LineSeparator, u'\n');
}

QString linesByLf(TextView text) {
  QString lines = toQt(text);
  lines.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  return lines.replace(u'\r', u'\n');
}

Edited editedLines(const QPlainTextEdit& edit, const TextBox& box) {
  const QString text = nativeText(edit);
  const QTextCursor cursor = edit.textCursor();
  Edited now;
  // Untouched, it keeps its own line ends, whatever they are.
  now.text =
      text == linesByLf(box.content()) ? box.content() : fromQt(QString(text).replace(u'\n', QLatin1String("\r\n")));
  now.start = modelPosition(text, cursor.selectionStart());
  now.length = modelPosition(text, cursor.selectionEnd()) - now.start;
  return now;
}

void pushLines(QPlainTextEdit& edit, const TextBox& box) {
  const QSignalBlocker quiet(edit);
  edit.setTextInteractionFlags(box.readOnly ? Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard
                                            : Qt::TextEditorInteraction);
  const QString text = linesByLf(box.content());
  if (nativeText(edit) != text) edit.setPlainText(text);
  const int start = nativePosition(box.content(), box.selStart());
  const int end = nativePosition(box.content(), box.selStart() + box.selLength());
  QTextCursor cursor = edit.textCursor();
  if (cursor.selectionStart() == start && cursor.selectionEnd() == end) return;
  cursor.setPosition(start);
  cursor.setPosition(end, QTextCursor::KeepAnchor);
  edit.setTextCursor(cursor);
  edit.ensureCursorVisible();
}

// A text to read beside the controls, not a box to go to.
bool isHint(const TextBox& box) { return box.multiLine() && box.readOnly && !box.tabStop; }

bool isAlone(const TextBox& box) {
  const auto& all = box.form().controls();
  return std::none_of(all.begin(), all.end(), [&box](const Control* c) {
    return c != &box && (c->kind() == ControlKind::richTextBox || c->kind() == ControlKind::textBox);
  });
}

}  // namespace

bool isLongText(const TextBox& box) { return box.multiLine() && !isHint(box) && isAlone(box); }

namespace {

// As tall as the lines it is asked to show, whatever the font; a hint as tall as its text.
class Lines : public QPlainTextEdit {
 public:
  Lines(const TextBox& box, QWidget* parent) : QPlainTextEdit(parent), hint_(isHint(box)) {
    constexpr int kTall = 12;
    rows_ = isAlone(box) ? kTall : 1;
    if (hint_) {
      setFrameShape(QFrame::NoFrame);
      viewport()->setAutoFillBackground(false);
      QSizePolicy policy = sizePolicy();
      policy.setHeightForWidth(true);
      setSizePolicy(policy);
    }
    if (hint_ || rows_ > 1) return;
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  }
  QSize sizeHint() const override {
    constexpr int kColumns = 40;
    const int width = fontMetrics().horizontalAdvance(u'0') * kColumns;
    if (!hint_) return {width, heightOf(rows_)};
    const int text = fontMetrics().boundingRect({}, 0, toPlainText()).width() + 2 * edge();
    const int wide = std::min(text, width);
    return {wide, heightForWidth(wide)};
  }
  int heightForWidth(int width) const override {
    if (!hint_) return -1;
    const QRect room(0, 0, width - 2 * edge(), 1 << 20);
    const int measured = fontMetrics().boundingRect(room, Qt::TextWrapAnywhere, toPlainText()).height();
    // Lines that mix Japanese and Latin fonts are a little higher than they are measured.
    return measured + measured / 8 + edge();
  }
  QSize minimumSizeHint() const override { return {fontMetrics().horizontalAdvance(u'0') * 10, heightOf(1)}; }

 private:
  int edge() const { return fontMetrics().height() / 2; }
  int heightOf(int rows) const { return fontMetrics().lineSpacing() * rows + edge(); }

  bool hint_;
  int rows_;
};

void makeLines(View& view, TextBox& box, QWidget* parent) {
  auto* edit = new Lines(box, parent);
  edit->setContextMenuPolicy(Qt::NoContextMenu);
  edit->setFocusPolicy(Qt::ClickFocus);
  if (isLongText(box)) edit->setFont(evenlySpaced(edit->font()));
  view.widget = edit;
  view.push = [edit, &box](Property property) {
    if (property == Property::text || property == Property::selection) pushLines(*edit, box);
    if (property == Property::text && isHint(box)) edit->updateGeometry();
  };
  view.report = [edit, &box] { reportTo(box, editedLines(*edit, box)); };
  QObject::connect(edit, &QPlainTextEdit::textChanged, edit, [&view] { reportUnlessDelivering(view); });
}

}  // namespace

void makeTextView(View& view, QWidget* parent) {
  auto& box = static_cast<TextBox&>(view.control);
  if (box.invisible) return;
  if (box.multiLine())
    makeLines(view, box, parent);
  else
    makeLine(view, box, parent);
}

}  // namespace zelko
