#include "editor/ranges/targetdialog.h"

#include "editor/main/form1.h"
#include "editor/main/inputbox.h"
#include "editor/main/state.h"
#include "editor/moves/commit.h"
#include "editor/ranges/datamove.h"
#include "editor/ranges/range.h"
#include "editor/ranges/rangekeys.h"
#include "editor/ranges/targetpointer.h"
#include "editor/rewrites/rewrites.h"
#include "editor/show/sheet.h"
#include "editor/show/showcell.h"
#include "platform/text/number.h"
#include "store/records/records.h"
#include "store/table/cursor.h"
#include "voice/dialogs.h"
#include "voice/heard.h"
#include "voice/narration.h"
#include "voice/talk.h"

namespace zelko {

namespace {

// The destination mask at the cursor.
void showTarget(Pointing what) {
  const RangeBlock block = heldBlock();
  const auto lastItem = static_cast<std::int16_t>(curItem + block.item2 - block.item1);
  if (what == Pointing::items) {
    targetMask(block.rec1, block.rec2, curItem, curItem, targetColour());
  } else if (what == Pointing::records) {
    targetMask(curRec, curRec, block.item1, block.item2, targetColour());
  } else {
    targetMask(curRec, curRec + block.rec2 - block.rec1, curItem, lastItem, targetColour());
  }
}

bool targetIsInside(std::int32_t first, std::int32_t last) { return moveTo >= first && moveTo <= last; }

// The rewrites bring their own sentences; the box that gets the focus in between has nothing to say.
void closeBeforeRewrite() {
  hideTargetMask();
  if (auto* dialog = loadedForm<frmMSSG>()) closeUnheard(*dialog);
  nextIsHeard();  // the cell that is there at the end
}

void endWork() {
  mode.clear();
  hideTargetMask();
  if (rangeKind != 0) dropRangeAndShow();
}

}  // namespace

frmMSSG::frmMSSG() : Form(kName, u"移動") {
  Text2.readOnly = true;
  Text2.labelledBy = &Label1;
  Command1.isDefault = true;
  Command2.isCancel = true;
  Text2.onKeyDown = [this](KeyEvent& key) { frmMSSG_Text2_KeyDown(key); };
  Command1.onClick = [this] { frmMSSG_Command1_Click(); };
  Command2.onClick = moveCancel;
  onClose = moveCancel;
  Narration(*this)
      .explain([this] { return markStop + Label1.caption(); })
      .say(Text2, [this] { return pointed_.empty() ? Label1.caption() : pointed_; })
      .say(Command1, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ")
      .say(Command2, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ");
}

// Spoken past the gate: of a held key the last place is the one that counts.
void frmMSSG::frmMSSG_Text2_KeyDown(KeyEvent& key) {
  Text sentence;
  if (!movePointer(pointing, key, sentence)) return;
  key.swallow();
  if (sentence.empty()) return;
  pointed_ = sentence;
  autoIdOn = 0;
  showUnheard();
  showTarget(pointing);
  Text2.setText(decimal(moveTo));
  talkNow(sentence);
}

void frmMSSG::frmMSSG_Command1_Click() {
  if (pointing == Pointing::records) return moveRecordsThere();
  if (pointing == Pointing::items) return moveItemsThere();
  moveDataThere();
}

void frmMSSG::moveRecordsThere() {
  const RangeBlock block = heldBlock();
  if (targetIsInside(block.rec1, block.rec2)) return showOK(u"移動点と移動記録範囲と重なっています", u"移動点の再設定");
  talkNow(Text(u"記録の移動実行中．．．．"));
  const std::int32_t target = moveTo;
  closeBeforeRewrite();
  moveRecords(block.rec1, block.rec2, target, docPath, docDrive);
  endWork();
}

void frmMSSG::moveItemsThere() {
  const RangeBlock block = heldBlock();
  if (targetIsInside(block.item1, block.item2))
    return showOK(u"移動点と移動項目範囲と重なっています", u"移動点の再設定");
  const auto target = static_cast<std::int16_t>(moveTo);
  closeBeforeRewrite();
  moveItems(block.item1, block.item2, target);
  endWork();
}

void frmMSSG::moveDataThere() {
  const bool moves = pointing == Pointing::cellsToMove;
  if (moves) talkNow(Text(u"ﾃﾞｰﾀ移動実行中．．．．"));
  copyBlock(heldBlock(), curRec, curItem, moves);
  moveCancel();
  showTitle();
}

void pointAtTarget(Pointing what, const PointingWords& words) {
  mode = words.mode;
  autoIdOn = 0;
  loadCache(curRec);
  showUnheard();
  frmMSSG& dialog = form<frmMSSG>();
  dialog.pointing = what;
  dialog.setCaption(words.title);
  dialog.Label1.setCaption(words.sentence);
  dialog.Command1.setCaption(words.button);
  dialog.Text2.setText(decimal(moveTo));
  showTarget(what);
  nextIsHeard();  // the sentence of the opening
  dialog.showModal();
}

void moveCancel() {
  hideTargetMask();
  hideRangeMask();
  dropRange();
  loadCache(curRec);
  showUnheard();
  emptyInputBox();
  showTyping({});
  mode.clear();
  unload<frmMSSG>();
  Form1& main = mainForm();
  main.txtinputbox.setEnabled(true);
  main.txtinputbox.setFocus();
}

}  // namespace zelko
