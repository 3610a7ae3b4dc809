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
#include "voice/narration.h"
#include "voice/talk.h"

namespace zelko {

namespace {

void showSilently() {
  const Silence silence;
  showCell(static_cast<float>(curRec), curItem, {}, {});
  dispAll(curItem);
}

bool targetIsInside(std::int32_t first, std::int32_t last) { return moveTo >= first && moveTo <= last; }

// The rewrites bring their own sentences; the box that gets the focus in between has nothing to say.
void closeBeforeRewrite() {
  const Silence silence;
  hideTargetMask();
  unload<frmMSSG>();
  talkLast = 0;  // the cell that is there at the end is always heard
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
  if (!movePointer(key, sentence)) return;
  key.swallow();
  if (sentence.empty()) return;
  pointed_ = sentence;
  autoIdOn = 0;
  showSilently();
  moveTarget();
  Text2.setText(decimal(moveTo));
  talkNow(sentence);
}

void frmMSSG::frmMSSG_Command1_Click() {
  if (mode == u"moverecord") return moveRecordsThere();
  if (mode == u"moveitem") return moveItemsThere();
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
  const bool moves = mode == u"move";
  if (moves) talkNow(Text(u"ﾃﾞｰﾀ移動実行中．．．．"));
  copyBlock(heldBlock(), curRec, curItem, moves);
  moveCancel();
  showTitle();
}

void pointAtTarget(const PointingWords& words) {
  commitBox();
  autoIdOn = 0;
  loadCache(curRec);
  showSilently();
  frmMSSG& dialog = form<frmMSSG>();
  dialog.setCaption(words.title);
  dialog.Label1.setCaption(words.sentence);
  dialog.Command1.setCaption(words.button);
  dialog.Text2.setText(decimal(moveTo));
  moveTarget();
  talkLast = 0;  // the sentence of the opening is always heard
  dialog.showModal();
}

void moveTarget() {
  const RangeBlock block = heldBlock();
  const auto lastItem = static_cast<std::int16_t>(curItem + block.item2 - block.item1);
  if (mode == u"moveitem") {
    targetMask(block.rec1, block.rec2, curItem, curItem, targetColour());
  } else if (mode == u"moverecord") {
    targetMask(curRec, curRec, block.item1, block.item2, targetColour());
  } else {
    targetMask(curRec, curRec + block.rec2 - block.rec1, curItem, lastItem, targetColour());
  }
}

void moveCancel() {
  hideTargetMask();
  hideRangeMask();
  dropRange();
  loadCache(curRec);
  showSilently();
  emptyInputBox();
  showTyping({});
  mode.clear();
  unload<frmMSSG>();
  Form1& main = mainForm();
  main.txtinputbox.setEnabled(true);
  main.txtinputbox.setFocus();
}

}  // namespace zelko
