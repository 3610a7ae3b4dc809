// The line editor: what keys do to a text where no native box edits it.
#include <algorithm>

#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "platform/host.h"

namespace zelko {
namespace {

bool isLeadSurrogate(char16_t ch) { return ch >= 0xD800 && ch < 0xDC00; }
bool isTrailSurrogate(char16_t ch) { return ch >= 0xDC00 && ch < 0xE000; }

// Whether the caret can stand before position `at`: not inside a line end or a pair.
bool isStop(const Text& text, std::size_t at) {
  if (at == 0 || at >= text.size()) return true;
  if (text[at - 1] == u'\r' && text[at] == u'\n') return false;
  return !(isLeadSurrogate(text[at - 1]) && isTrailSurrogate(text[at]));
}

int stopAfter(const Text& text, int from) {
  if (from >= static_cast<int>(text.size())) return static_cast<int>(text.size());
  return from + (isStop(text, static_cast<std::size_t>(from) + 1) ? 1 : 2);
}

int stopBefore(const Text& text, int from) {
  if (from <= 0) return 0;
  return from - (isStop(text, static_cast<std::size_t>(from) - 1) ? 1 : 2);
}

bool isBlank(char16_t ch) { return ch == u' ' || ch == u'　' || ch == u'\t' || ch == u'\r' || ch == u'\n'; }

int wordAfter(const Text& text, int from) {
  auto at = static_cast<std::size_t>(from);
  while (at < text.size() && !isBlank(text[at])) ++at;
  while (at < text.size() && isBlank(text[at])) ++at;
  return static_cast<int>(at);
}

int wordBefore(const Text& text, int from) {
  auto at = static_cast<std::size_t>(from);
  while (at > 0 && isBlank(text[at - 1])) --at;
  while (at > 0 && !isBlank(text[at - 1])) --at;
  return static_cast<int>(at);
}

int lineStart(const Text& text, int from) {
  auto at = static_cast<std::size_t>(from);
  while (at > 0 && text[at - 1] != u'\n') --at;
  return static_cast<int>(at);
}

int lineEnd(const Text& text, int from) {
  std::size_t at = text.find(kLineEnd, static_cast<std::size_t>(from));
  return static_cast<int>(at == Text::npos ? text.size() : at);
}

}  // namespace

TextBox::TextBox(Form& form, TextView name, int index, ControlKind kind) : Control(form, kind, name, index) {
  tabStop = true;
}

void TextBox::setText(TextView text) {
  if (text_ == text) return;
  text_ = text;
  selStart_ = selLength_ = 0;
  changed(Property::text);
  fire(onChange);
}

Text TextBox::selText() const {
  return text_.substr(static_cast<std::size_t>(selStart_), static_cast<std::size_t>(selLength_));
}

void TextBox::setSelection(int start, int length) {
  int size = static_cast<int>(text_.size());
  start = std::clamp(start, 0, size);
  length = std::clamp(length, 0, size - start);
  caretAtStart_ = false;
  if (selStart_ == start && selLength_ == length) return;
  selStart_ = start;
  selLength_ = length;
  changed(Property::selection);
}

void TextBox::moveCaretToEnd() { setSelection(static_cast<int>(text_.size()), 0); }

void TextBox::replaceSelection(TextView text) {
  if (selText() == text) return setSelection(selStart_ + selLength_, 0);
  text_.replace(static_cast<std::size_t>(selStart_), static_cast<std::size_t>(selLength_), text);
  selStart_ += static_cast<int>(text.size());
  selLength_ = 0;
  changed(Property::text);
  changed(Property::selection);
  fire(onChange);
}

void TextBox::userEdited(TextView text, int selStart, int selLength) {
  Screen::HandlerScope scope;
  bool differs = text_ != text;
  if (differs) text_ = text;
  int size = static_cast<int>(text_.size());
  selStart_ = std::clamp(selStart, 0, size);
  selLength_ = std::clamp(selLength, 0, size - selStart_);
  if (differs) fire(onChange);
}

void TextBox::commitText(TextView text) {
  Screen::HandlerScope scope;
  if (!readOnly) replaceSelection(fitting(text));
}

// One line takes a text up to its line end; many lines take every line end as CR LF.
Text TextBox::fitting(TextView text) const {
  if (!multiLine()) return Text(text.substr(0, text.find_first_of(u"\r\n")));
  Text lines;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] != u'\r' && text[at] != u'\n') {
      lines += text[at];
      continue;
    }
    if (text[at] == u'\r' && at + 1 < text.size() && text[at + 1] == u'\n') ++at;
    lines += kLineEnd;
  }
  return lines;
}

bool TextBox::keyDefault(const KeyEvent& key) {
  if (key.mask & shift::Alt) return false;
  if (clipboardKey(key) || erase(key)) return true;
  int to = caretAfter(key);
  if (to < 0) return false;
  moveCaret(to, (key.mask & shift::Shift) != 0);
  return true;
}

bool TextBox::typeDefault(char16_t ch) {
  if (readOnly) return false;
  if (ch == key::Enter && multiLine()) {
    replaceSelection(kLineEnd);
    return true;
  }
  if (ch < u' ' || ch == 0x7F) return false;
  replaceSelection(TextView(&ch, 1));
  return true;
}

void TextBox::select(int anchor, int caret) {
  setSelection(std::min(anchor, caret), std::abs(anchor - caret));
  caretAtStart_ = caret < anchor;
}

void TextBox::moveCaret(int to, bool selecting) {
  int anchor = caretAtStart_ ? selStart_ + selLength_ : selStart_;
  select(selecting ? anchor : to, to);
}

int TextBox::lineAway(int from, int direction) const {
  int start = lineStart(text_, from);
  int column = from - start;
  int target;
  if (direction < 0) {
    if (start == 0) return from;
    target = lineStart(text_, start - 2);
  } else {
    int end = lineEnd(text_, from);
    if (end == static_cast<int>(text_.size())) return from;
    target = end + 2;
  }
  int to = std::min(target + column, lineEnd(text_, target));
  return isStop(text_, static_cast<std::size_t>(to)) ? to : to - 1;
}

int TextBox::caretAfter(const KeyEvent& key) const {
  bool whole = (key.mask & shift::Ctrl) != 0;
  bool plainCollapse = key.mask == shift::None && selLength_ > 0;
  int size = static_cast<int>(text_.size());
  switch (key.code) {
    case key::Left:
      if (plainCollapse) return selStart_;
      return whole ? wordBefore(text_, caret()) : stopBefore(text_, caret());
    case key::Right:
      if (plainCollapse) return selStart_ + selLength_;
      return whole ? wordAfter(text_, caret()) : stopAfter(text_, caret());
    case key::Home:
      return whole ? 0 : lineStart(text_, caret());
    case key::End:
      return whole || !multiLine() ? size : lineEnd(text_, caret());
    case key::Up:
      return multiLine() ? lineAway(caret(), -1) : -1;
    case key::Down:
      return multiLine() ? lineAway(caret(), 1) : -1;
    default:
      return -1;
  }
}

bool TextBox::clipboardKey(const KeyEvent& key) {
  using namespace key;
  if (key.is(letter('A'), shift::Ctrl)) {
    select(0, static_cast<int>(text_.size()));
    return true;
  }
  if (key.is(letter('C'), shift::Ctrl) || key.is(Insert, shift::Ctrl)) return copySelection();
  if (key.is(letter('V'), shift::Ctrl) || key.is(Insert, shift::Shift)) return paste();
  if (!key.is(letter('X'), shift::Ctrl) && !key.is(Delete, shift::Shift)) return false;
  if (copySelection() && !readOnly) replaceSelection(u"");
  return true;
}

bool TextBox::copySelection() const { return selLength_ > 0 && host().setClipboard(selText()); }

bool TextBox::paste() {
  Text text;
  if (readOnly || !host().clipboardText(text)) return false;
  replaceSelection(fitting(text));
  return true;
}

bool TextBox::erase(const KeyEvent& key) {
  if (readOnly || (key.mask != shift::None && key.mask != shift::Ctrl)) return false;
  if (key.code != key::Backspace && key.code != key::Delete) return false;
  if (selLength_ == 0) {
    bool word = key.mask == shift::Ctrl;
    int at = selStart_;
    int to = key.code == key::Delete ? (word ? wordAfter(text_, at) : stopAfter(text_, at))
                                     : (word ? wordBefore(text_, at) : stopBefore(text_, at));
    if (to == at) return false;
    // No selection is shown on the way: it would be a state that a Change handler could see.
    selStart_ = std::min(at, to);
    selLength_ = std::abs(at - to);
  }
  replaceSelection(u"");
  return true;
}

}  // namespace zelko
