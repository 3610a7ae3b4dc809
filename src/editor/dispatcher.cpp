#include "editor/dispatcher.h"

#include "editor/commit.h"
#include "editor/exit.h"
#include "editor/form1.h"
#include "editor/moves.h"
#include "editor/sheet.h"
#include "store/cursor.h"

namespace zelko {
namespace {

void leaveOrEmpty(const TextBox& box) {
  if (box.content().empty()) return askToLeave();
  fillInputBox(u"");
}

}  // namespace

void inputKeyDown(KeyEvent& event) {
  if (caretGuard || mode == u"HTYU" || event.mask != shift::None) return;
  const TextBox& box = form<Form1>().txtinputbox;
  bool blank = trimmed(box.content()).empty();
  MoveScope move;
  if (event.code == key::Down) {
    commitBox();
    nextRec(curItem);
  } else if (event.code == key::Up) {
    commitBox();
    prevRec(curItem);
  } else if (event.code == key::Right && blank) {
    nextItem();
  } else if (event.code == key::Left && blank) {
    prevItem();
  } else if (event.code == key::Esc) {
    moveFlag = 0;
    leaveOrEmpty(box);
  } else {
    return;
  }
  event.swallow();
}

void inputKeyUp(KeyEvent&) {}

}  // namespace zelko
