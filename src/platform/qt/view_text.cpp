// Text boxes: the native editor edits, the model knows.
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTextBlock>
#include <QTextCursor>
#include <algorithm>
#include <limits>

#include "platform/controls.h"
#include "platform/form.h"
#include "platform/qt/guard.h"
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

// As tall as the lines it is asked to show, whatever the font.
class Lines : public QPlainTextEdit {
 public:
  Lines(int rows, QWidget* parent) : QPlainTextEdit(parent), rows_(rows) {}
  QSize sizeHint() const override {
    constexpr int kColumns = 40;
    const QFontMetrics metrics = fontMetrics();
    return {metrics.horizontalAdvance(u'0') * kColumns, metrics.lineSpacing() * rows_ + metrics.height()};
  }
  QSize minimumSizeHint() const override {
    const QFontMetrics metrics = fontMetrics();
    return {metrics.horizontalAdvance(u'0') * 10, metrics.lineSpacing() + metrics.height()};
  }

 private:
  int rows_;
};

// A box that a form is made for is tall; one among others shows a name or a memo.
int rowsOf(const TextBox& box) {
  constexpr int kTall = 12, kLow = 2;
  const auto& all = box.form().controls();
  const auto another = [&box](const Control* c) {
    return c != &box && (c->kind() == ControlKind::richTextBox || c->kind() == ControlKind::textBox);
  };
  return std::any_of(all.begin(), all.end(), another) ? kLow : kTall;
}

void makeLines(View& view, TextBox& box, QWidget* parent) {
  auto* edit = new Lines(rowsOf(box), parent);
  edit->setContextMenuPolicy(Qt::NoContextMenu);
  edit->setFocusPolicy(Qt::ClickFocus);
  view.widget = edit;
  view.push = [edit, &box](Property property) {
    if (property == Property::text || property == Property::selection) pushLines(*edit, box);
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
