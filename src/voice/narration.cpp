#include "voice/narration.h"

#include "platform/host.h"
#include "voice/cellhooks.h"
#include "voice/heard.h"
#include "voice/names.h"
#include "voice/talk.h"

namespace zelko {

namespace {

// The gate comes before the sentence is made: neither a silent run nor a burst of events pays for it.
void speak(const Form& form, const Sentence& sentence) {
  if (gateOpens()) talkNow(composed(&form, sentence()));
}

Sentence fixed(TextView text) {
  return [kept = Text(text)] { return kept; };
}

void speakOnFocus(Control& control, const Sentence& sentence, bool waits) {
  appendHandler(control.onGotFocus, [&control, sentence, waits] {
    if (talkMode == 0) return;
    if (waits) waitPastGate();
    speak(control.form(), sentence);
  });
}

bool isExplainKey(const KeyEvent& key) {
  return key.mask == shift::ShiftCtrl && (key.code == key::A || key.code == 97);
}

// The keys that every form answers wherever its focus is.
void answerFormKeys(KeyEvent& key) {
  if (key.is(key::letter('N'), shift::Alt)) {
    cellHooks.talkCell();
    key.swallow();
  } else if (key.is(key::letter('M'), shift::Alt)) {
    cellHooks.talkRange();
    key.swallow();
  } else if (key.is(key::function(11), shift::Shift)) {
    host().beep();  // a form that shows a distribution has taken it before
  } else if (key.is(key::Insert, shift::Ctrl)) {
    Text copied;
    if (host().clipboardText(copied)) userClip = copied;
  }
}

void talkState(const CheckBox& box) {
  if (!gateOpens()) return;
  ++composedSentences;
  talkNow(Text(box.value() == 1 ? u"チェック" : u"ノーチェック") + markPause + box.caption() + u"ﾁｪｯｸﾎﾞｯｸｽ");
}

void talkMark(const ListBox& list, const Text& description) {
  if (list.listIndex() < 0 || !gateOpens()) return;
  ++composedSentences;
  talkNow(list.text() + markPause + description);
}

const MenuEntry& barOf(const MenuEntry& entry) { return entry.parent ? barOf(*entry.parent) : entry; }

// The name of the menu stands in front where the walk has come to another one.
void talkMenuEntry(const MenuEntry& entry) {
  static const MenuEntry* lastBar = nullptr;
  if (entry.isSeparator() || !gateOpens()) return;
  ++composedSentences;
  const MenuEntry& bar = barOf(entry);
  Text sentence;
  if (&bar != &entry && &bar != lastBar) sentence = bar.captionWithoutMarks() + markPause;
  lastBar = &bar;
  sentence += entry.captionWithoutMarks();
  const Text shortcut = entry.shortcutText();
  if (!shortcut.empty()) sentence += markPause + shortcut;
  if (entry.checked) sentence += markPause + u"チェック";
  if (!entry.enabled) sentence += markPause + u"使用不可";
  if (!entry.children.empty()) sentence += markPause + u"サブメニュー";
  talkNow(sentence);
}

}  // namespace

Narration& Narration::explain(Sentence text) {
  Form& form = form_;
  appendHandler(form.onKeyDown, [&form, text](KeyEvent& key) {
    if (!isExplainKey(key)) return;
    speak(form, [&] { return form.caption() + text(); });
    key.swallow();
  });
  appendHandler(form.onKeyUp, answerFormKeys);
  return *this;
}

Narration& Narration::explain(TextView text) { return explain(fixed(text)); }

Narration& Narration::say(Control& control, Sentence sentence, bool waits) {
  speakOnFocus(control, sentence, waits);
  appendHandler(control.onKeyUp, [&control, sentence](KeyEvent& key) {
    if (isRepeatKey(key)) speak(control.form(), sentence);
  });
  return *this;
}

Narration& Narration::say(Control& control, TextView sentence, bool waits) {
  return say(control, fixed(sentence), waits);
}

Narration& Narration::box(TextBox& box, Sentence description, bool waits) {
  speakOnFocus(box, description, waits);
  appendHandler(box.onKeyUp, [description](KeyEvent& key) {
    const bool wanted = talkMode != 0 && isRepeatKey(key);
    talkTextKey(key.code, key.mask, 0, wanted ? description() : Text());
  });
  return *this;
}

Narration& Narration::box(TextBox& textBox, TextView description, bool waits) {
  return box(textBox, fixed(description), waits);
}

Narration& Narration::check(CheckBox& box, TextView description) {
  // The new state is news, also right behind the sentence of a box that a click has given the focus.
  appendHandler(box.onClick, [&box] {
    nextIsHeard();
    talkState(box);
  });
  return say(box, description);
}

Narration& Narration::list(ListBox& list, TextView description) {
  appendHandler(list.onClick, [&list, kept = Text(description)] { talkMark(list, kept); });
  return say(list, description);
}

void appendHandler(std::function<void()>& event, std::function<void()> action) {
  if (!event) {
    event = std::move(action);
    return;
  }
  event = [before = std::move(event), action = std::move(action)] {
    before();
    action();
  };
}

void appendHandler(std::function<void(KeyEvent&)>& event, std::function<void(KeyEvent&)> action) {
  if (!event) {
    event = std::move(action);
    return;
  }
  event = [before = std::move(event), action = std::move(action)](KeyEvent& key) {
    before(key);
    if (key.code != 0) action(key);
  };
}

bool isRepeatKey(const KeyEvent& key) {
  return key.is(key::PageDown, shift::Shift) || key.is(key::letter('S'), shift::ShiftCtrl);
}

void narrateMenus() { onMenuHighlight = talkMenuEntry; }

}  // namespace zelko
