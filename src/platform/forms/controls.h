// The kinds of control that hold no list and no drawing.
#pragma once

#include "platform/forms/control.h"

namespace zelko {

// One line of text, or with ControlKind::richTextBox many lines parted by CR LF. Change fires when the text really
// changes, whoever changed it.
class TextBox : public Control {
 public:
  TextBox(Form& form, TextView name, int index = -1, ControlKind kind = ControlKind::textBox);

  Text text() const override { return text_; }
  const Text& content() const { return text_; }
  // A program's change: the caret goes to the front.
  void setText(TextView text);

  // Positions in characters from 0; the caret stands at one end of the selection.
  int selStart() const { return selStart_; }
  int selLength() const { return selLength_; }
  Text selText() const;
  void setSelection(int start, int length);
  // Replaces the selection, as typing does.
  void replaceSelection(TextView text);
  void moveCaretToEnd();

  // What the native box of a host reports after the user edited it: all at once, then Change.
  void userEdited(TextView text, int selStart, int selLength);
  // An input method commits `text` at the caret: one change.
  void commitText(TextView text);

  bool multiLine() const { return kind() == ControlKind::richTextBox; }
  bool readOnly = false;
  bool invisible = false;  // a catcher of keys that shows nothing

  bool keyDefault(const KeyEvent& key) override;
  bool typeDefault(char16_t ch) override;

 private:
  int caret() const { return caretAtStart_ ? selStart_ : selStart_ + selLength_; }
  void select(int anchor, int caret);
  void moveCaret(int to, bool select);
  int caretAfter(const KeyEvent& key) const;  // -1 for a key that moves no caret
  int lineAway(int from, int direction) const;
  Text fitting(TextView text) const;
  bool clipboardKey(const KeyEvent& key);
  bool copySelection() const;
  bool paste();
  bool erase(const KeyEvent& key);

  Text text_;
  int selStart_ = 0, selLength_ = 0;
  bool caretAtStart_ = false;  // which end of the selection moves
};

class RichTextBox : public TextBox {
 public:
  RichTextBox(Form& form, TextView name, int index = -1) : TextBox(form, name, index, ControlKind::richTextBox) {}
};

class Label : public Control {
 public:
  Label(Form& form, TextView name, TextView caption, int index = -1);
};

class Frame : public Control {
 public:
  Frame(Form& form, TextView name, TextView caption);
};

class Button : public Control {
 public:
  Button(Form& form, TextView name, TextView caption, int index = -1);
  bool isDefault = false;                         // Enter anywhere on the form
  bool isCancel = false;                          // Esc anywhere on the form
  bool keyDefault(const KeyEvent& key) override;  // Space clicks, arrows walk the buttons
};

// Value 0 or 1; Click fires on every change of it, by whomever.
class CheckBox : public Control {
 public:
  CheckBox(Form& form, TextView name, TextView caption, int index = -1);
  int value() const override { return value_; }
  void setValue(int value);
  bool keyDefault(const KeyEvent& key) override;
  void act() override;

 private:
  int value_ = 0;
};

// Value is true for one of the options that share a frame (or, without one, a name); Click fires when it becomes so.
class OptionButton : public Control {
 public:
  OptionButton(Form& form, TextView name, TextView caption, int index = -1, const Frame* frame = nullptr);
  int value() const override { return value_; }
  void setValue(int value);
  bool keyDefault(const KeyEvent& key) override;
  void act() override;
  const Frame* frame() const { return frame_; }

 private:
  bool sharesGroup(const OptionButton& other) const;

  const Frame* frame_;
  int value_ = 0;
};

class Timer : public Control {
 public:
  Timer(Form& form, TextView name);
  int interval() const { return interval_; }  // milliseconds; 0 stands still
  void setInterval(int milliseconds);
  std::function<void()> onTimer;

 private:
  int interval_ = 0;
};

}  // namespace zelko
