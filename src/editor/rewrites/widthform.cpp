#include "editor/rewrites/widthform.h"

#include <utility>

#include "editor/moves/moves.h"
#include "editor/rewrites/rewrites.h"
#include "editor/rewrites/trialwidth.h"
#include "platform/text/number.h"
#include "store/records/records.h"
#include "store/table/cursor.h"
#include "voice/heard.h"
#include "voice/narration.h"
#include "voice/talk.h"

namespace zelko {

frmFLN::frmFLN() : Form(kName, u"項目幅の変更") {
  Text1.readOnly = true;
  Command4.isDefault = true;
  Command5.isCancel = true;
  wire();
  narrate();
  showRuler();
}

void frmFLN::wire() {
  const auto takes = [](const std::array<std::int16_t, kMaxItems>& widths) {
    previewWidths(widths);
    sayWidth(curItem);
  };
  Command1.onClick = [] { widenItem(curItem); };
  Command2.onClick = [] { narrowItem(curItem); };
  Command3.onClick = [takes] { takes(itemWidthLoaded); };
  Command4.onClick = [this] { frmFLN_Command4_Click(); };
  Command5.onClick = [this] { frmFLN_Command5_Click(); };
  Command6.onClick = [this, takes] { takes(widthsAtStart_); };
  onClose = [this] { frmFLN_Command5_Click(); };
  onKeyDown = [this](KeyEvent& key) { frmFLN_KeyDown(key); };
}

void frmFLN::narrate() {
  Narration voice(*this);
  voice.explain([this] { return markStop + sentence(); });
  voice.box(Text1, [this] { return sentence() + u"項目幅操作テキストボックス"; });
  for (Button* button : {&Command1, &Command2, &Command3, &Command4, &Command5, &Command6})
    voice.say(*button, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ");
  // Behind the sentence of the opening, which is heard first.
  appendHandler(Text1.onGotFocus, [this] { takeFirstStep(); });
}

void frmFLN::takeFirstStep() {
  const int step = std::exchange(firstStep, 0);
  if (step == 0) return;
  waitPastGate();
  step > 0 ? widenItem(curItem) : narrowItem(curItem);
}

Text frmFLN::sentence() const {
  const auto i = static_cast<std::size_t>(curItem);
  return u"現在項目" + decimal(curItem) + markStop + trimmed(itemName[i]) + u"Width" + decimal(itemWidth[i]) +
         u"の項目幅操作中です。ｺﾝﾄﾛｰﾙｽﾍﾟｰｽで現在の項目幅縮小、ｼﾌﾄｽﾍﾟｰｽで拡大、CRで確定、エスケープで元通りです。";
}

void frmFLN::showRuler() { Text1.setText(cellOfRow(rowOf(curRec), curItem)); }

void frmFLN::frmFLN_KeyDown(KeyEvent& key) {
  const bool wider = key.is(key::Space, shift::Shift);
  if (!wider && !key.is(key::Space, shift::Ctrl)) return;
  key.swallow();
  (wider ? Command1 : Command2).onClick();
}

// The main form below is given back the table as it is on disk before it gets the focus.
void frmFLN::close() {
  itemWidth = itemWidthLoaded;
  computeItemStart();
  loadCache(curRec);
  screen().unload(*this);
}

void frmFLN::frmFLN_Command4_Click() {
  const auto chosen = itemWidth;
  const bool changed = chosen != itemWidthLoaded;
  close();
  if (changed) {
    itemWidth = chosen;
    applyWidth();
    return;
  }
  reloadCur();
  talkNow(u"書き換え終了");
}

void frmFLN::frmFLN_Command5_Click() {
  close();
  reloadCur();
}

void changeWidth(int step) {
  mode = u"chfln";
  frmFLN& width = form<frmFLN>();
  width.firstStep = step;
  previewWidths(itemWidth);
  width.showModal();
}

}  // namespace zelko
