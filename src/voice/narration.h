// How the controls of a form speak: declared once, at the end of a form's constructor.
#pragma once

#include <functional>

#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "platform/forms/grid.h"
#include "platform/forms/lists.h"
#include "platform/text/text.h"

namespace zelko {

using Sentence = std::function<Text()>;

// Declares the narration of one form. Each procedure wraps the handlers that the control has by then, so the form's own
// handlers are set first. A sentence may be a text or a function that composes it when it is needed.
class Narration {
 public:
  explicit Narration(Form& form) : form_(form) {}

  // Shift+Ctrl+A says the caption and this; the form also answers Alt+N, Alt+M and keeps the user's clipboard on
  // Ctrl+Insert.
  Narration& explain(Sentence text);
  Narration& explain(TextView text);

  // GotFocus and the repeat keys (Shift+PageDown, Shift+Ctrl+S) say the sentence through talkS, which adds content,
  // caption or state by the control word in it. `waits`: talkGap is waited first, so that it is heard behind the form's
  // own sentence.
  Narration& say(Control& control, Sentence sentence, bool waits = false);
  Narration& say(Control& control, TextView sentence, bool waits = false);
  // A text box: as say, and its key-up runs talkTextKey.
  Narration& box(TextBox& box, Sentence description, bool waits = false);
  Narration& box(TextBox& box, TextView description, bool waits = false);
  // A check box: as say, and its click says the new state.
  Narration& check(CheckBox& box, TextView description);
  // A list: as say, and a move of its mark says the entry and the sentence behind it.
  Narration& list(ListBox& list, TextView description);

 private:
  Form& form_;
};

// Puts `action` behind what `event` holds already; for keys only while the key was not swallowed.
void appendHandler(std::function<void()>& event, std::function<void()> action);
void appendHandler(std::function<void(KeyEvent&)>& event, std::function<void(KeyEvent&)> action);

// True for the keys that repeat what was missed: Shift+PageDown and Shift+Ctrl+S.
bool isRepeatKey(const KeyEvent& key);

// Says each entry of a menu that is walked by key: caption, shortcut, "使用不可", submenu. Wired once at the start.
void narrateMenus();

}  // namespace zelko
