// The way of keys, commits and clicks from Qt into the model, before any widget sees them.
#pragma once

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QObject>
#include <memory>
#include <unordered_map>
#include <vector>

#include "platform/qt/keycodes.h"
#include "platform/qt/view.h"
#include "platform/qt/window.h"

namespace zelko {

class InputFilter : public QObject {
 public:
  explicit InputFilter(std::function<View*(const Control&)> viewOf);
  // From hold() on, keys and commits wait until deliverHeld(); then they come in their order, where the focus is now.
  void hold() { ++holding_; }
  void deliverHeld();

 protected:
  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  bool handle(FormWindow& window, QWidget& receiver, QEvent& event);
  bool keyPressed(QKeyEvent& event);
  void pressed(QKeyEvent& event);
  bool keyReleased(const QKeyEvent& event);
  bool modifierReleased(int code);
  bool committed(QInputMethodEvent& event);
  bool mouse(FormWindow& window, QWidget& receiver, const QMouseEvent& event);
  void focusedByMouse(FormWindow& window, QWidget& receiver);
  // Lets the native editor of the active control have an event, then reports what it did.
  void giveToEditor(View& view, QEvent& event);
  void settleActivation();

  std::function<View*(const Control&)> viewOf_;
  // The code that each key which is down went down with: it may be another one when Shift or NumLock has changed since.
  std::unordered_map<int, int> down_;
  int aloneModifier_ = 0;  // Shift, Ctrl or Alt went down and nothing else did yet
  std::vector<std::unique_ptr<QEvent>> held_;
  int holding_ = 0;
  bool delivering_ = false, settling_ = false, composing_ = false;
};

}  // namespace zelko
