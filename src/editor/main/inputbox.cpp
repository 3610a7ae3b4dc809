#include "editor/main/inputbox.h"

#include "editor/main/filling.h"
#include "editor/main/form1.h"
#include "editor/main/state.h"
#include "voice/talk.h"

namespace zelko {

Text inputText() {
  const Form1* main = loadedForm<Form1>();
  return main ? main->txtinputbox.content() : Text();
}

void setInputSilently(TextView text) {
  if (Form1* main = loadedForm<Form1>()) {
    const Silence silence;
    const Filling filling;
    main->txtinputbox.setText(text);
  }
  lastInput = text;
  lastInputLen = static_cast<int>(text.size());
}

void emptyInputBox() { setInputSilently(u""); }

// Emptied first: the text is heard whole, not as a change of what stood there, and again when it is the same.
void fillInputBox(TextView text) {
  emptyInputBox();
  const Filling filling;
  if (Form1* main = loadedForm<Form1>()) main->txtinputbox.setText(text);
}

void focusInputBox() {
  if (Form1* main = loadedForm<Form1>()) main->txtinputbox.setFocus();
}

void caretEnd(TextView) {
  auto* box = dynamic_cast<TextBox*>(screen().activeControl());
  if (!box) return;
  caretGuard = true;
  box->moveCaretToEnd();
  caretGuard = false;
}

}  // namespace zelko
