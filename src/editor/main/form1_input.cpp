// The input box of the main form: what happens while the user types.
#include "editor/main/filling.h"
#include "editor/main/form1.h"
#include "editor/main/inputbox.h"
#include "editor/main/state.h"
#include "editor/moves/commit.h"
#include "editor/moves/moves.h"
#include "editor/show/sheet.h"
#include "parts/cells.h"
#include "platform/host.h"
#include "platform/text/sjis.h"
#include "store/table/cursor.h"
#include "voice/heard.h"
#include "voice/names.h"
#include "voice/talk.h"

namespace zelko {
namespace {

std::size_t currentWidth() { return static_cast<std::size_t>(itemWidth[static_cast<std::size_t>(curItem)]); }

// An edit that shortens the text fills no cell: a cell brought back for editing may be longer than the limit.
bool hasFilledCell(const Text& text) {
  std::size_t bytes = sjisLength(text);
  if (bytes < sjisLength(lastInput)) return false;
  if (bytes >= currentWidth()) return true;
  return inputLimit != 0 && sjisLength(trimmed(text)) >= static_cast<std::size_t>(inputLimit);
}

// The character that went over the end of the cell; half a character that would be left goes with it.
Text withoutOverhang(Text text) {
  std::size_t wanted = sjisLength(text) - 2;
  while (!text.empty() && sjisLength(text) > wanted) text.pop_back();
  return text;
}

void leaveFullCell(Form1& main) {
  if (inputLimit == 0 && sjisLength(main.txtinputbox.content()) > currentWidth()) {
    host().beep();
    setInputSilently(withoutOverhang(main.txtinputbox.text()));
  }
  commitCell();
  {
    const HeldAnnouncement held;
    emptyInputBox();
    nextItem();
  }
  announceCell();
}

// One typed or erased character is named, a longer run is said as text.
Text echoOf(const Text& text) {
  Text words = diffTalk(lastInput, text);
  int longer = static_cast<int>(text.size()) - lastInputLen;
  if (words.empty() || (longer != 1 && longer != -1)) return words;
  return charName(left(words, 1)) + mid(words, 2);
}

void echo(const Text& text) {
  if (moveFlag == 1 || text == lastInput || !gateOpens()) return;
  if (inputDrop == 1) return emptyInputBox();
  talkNow(echoOf(text));
}

}  // namespace

void Form1::txtinputbox_Change() {
  showTyping(txtinputbox.content());
  if (!Filling::runs() && hasFilledCell(txtinputbox.content())) leaveFullCell(*this);
  echo(txtinputbox.text());
  lastInput = txtinputbox.text();
  lastInputLen = static_cast<int>(lastInput.size());
}

void Form1::txtinputbox_KeyPress(CharEvent& event) {
  if (event.ch != key::Enter) return;
  event.ch = 0;
  MoveScope move;
  if (!txtinputbox.content().empty()) commitCell();
  nextItem();
  lastInput.clear();
  lastInputLen = 0;
}

void Form1::txtinputbox_GotFocus() {
  if (itemOnlyReturn != 1) return talkReturn(u"", txtREC.content(), txtItemnum.content());
  itemOnlyReturn = 0;
  nextIsHeard();
  talkCtl(txtItemnum.content());
}

}  // namespace zelko
