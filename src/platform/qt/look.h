// How everything looks: large type, the colours of the desktop, and a frame that shows where the focus is.
#pragma once

#include <QFont>
#include <QPointer>
#include <QWidget>

class QApplication;

namespace zelko {

// Type of at least 14 points, Japanese fonts in place of those that the printing forms name, and menus that open by
// Alt and a letter only.
void dress(QApplication& application);

// The same size of type, a full-width character as wide as two others: for what is put into columns by blanks.
QFont evenlySpaced(QFont font);

// A thick frame round the control that has the focus.
class FocusFrame : public QWidget {
 public:
  explicit FocusFrame(QWidget& page);
  // Null hides it.
  void surround(QWidget* target);

 protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent*) override;

 private:
  void follow();
  QPointer<QWidget> target_;
};

}  // namespace zelko
