#include "editor/moves/commit.h"

#include "editor/main/form1.h"
#include "editor/moves/moves.h"
#include "platform/text/number.h"
#include "store/records/records.h"
#include "store/table/cursor.h"
#include "voice/talk.h"

namespace zelko {

void commitCell() {
  setCell(currentRow(), curItem, form<Form1>().txtinputbox.content());
  dispAll(curItem);
}

void commitBox() {
  MoveScope move;
  bool holdsText = !trimmed(form<Form1>().txtinputbox.content()).empty();
  if (holdsText) commitCell();
  flushRec();
  if (holdsText) emptyInputBox();
}

void setInputSilently(TextView text) {
  if (Form1* main = loadedForm<Form1>()) {
    Silence silence;
    Form1::Filling filling(*main);
    main->txtinputbox.setText(text);
  }
  lastInput = text;
  lastInputLen = static_cast<int>(text.size());
}

void emptyInputBox() { setInputSilently(u""); }

// Emptied first: the text is heard whole, not as a change of what stood there, and again when it is the same.
void fillInputBox(TextView text) {
  Form1& main = form<Form1>();
  emptyInputBox();
  Form1::Filling filling(main);
  main.txtinputbox.setText(text);
}

void focusInputBox() { form<Form1>().txtinputbox.setFocus(); }

void caretEnd(TextView) {
  auto* box = dynamic_cast<TextBox*>(screen().activeControl());
  if (!box) return;
  caretGuard = true;
  box->moveCaretToEnd();
  caretGuard = false;
}

void stampId() {
  Text number = trimmed(str(autoIdValue));
  setCell(currentRow(), 0, number);
  if (curItem == 0) idText = number;
}

}  // namespace zelko
