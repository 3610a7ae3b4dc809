#include "editor/ranges/rangedialog.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "editor/formulas/sums.h"
#include "editor/main/commands.h"
#include "editor/main/filling.h"
#include "editor/main/form1.h"
#include "editor/main/inputbox.h"
#include "editor/main/state.h"
#include "editor/moves/jumps.h"
#include "editor/ranges/range.h"
#include "editor/ranges/rangekeys.h"
#include "editor/ranges/rangeread.h"
#include "editor/show/sheet.h"
#include "editor/show/showcell.h"
#include "parts/ask/typed.h"
#include "platform/forms/routing.h"
#include "platform/host.h"
#include "platform/text/number.h"
#include "store/records/records.h"
#include "store/table/cursor.h"
#include "voice/dialogs.h"
#include "voice/heard.h"
#include "voice/narration.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr TextView kTitles[] = {u"範囲の指定", u"範囲の指定", u"記録範囲の指定", u"項目範囲の指定"};

// What the user can do with the finished range.
constexpr TextView kNextSteps[] = {
    u"", u"ﾀｲｶｸﾊﾝｲ指定ずみ。矢印ｷｰでｺﾋﾟｰ、ctrl+矢印ｷｰで移動、Delｷｰで消去、shiftｷｰで読み上げ。中止の場合はESCを。",
    u"ｷﾞｮｳﾊﾝｲ指定ずみ。上下矢印ｷｰで移動、Insｷｰで挿入、Delｷｰで削除、shiftｷｰで読み上げ。中止の場合はESCを。",
    u"ｺｳﾓｸﾊﾝｲ指定ずみ。左右矢印ｷｰで移動、Insｷｰで挿入、Delｷｰで削除、shiftｷｰで読み上げ。中止の場合はESCを。"};

std::size_t kindIndex() { return static_cast<std::size_t>(std::clamp<int>(rangeKind, 0, 3)); }

struct Question {
  int code, mask, number;
};
constexpr Question kQuestions[] = {
    {'S', shift::ShiftCtrl, 0}, {key::PageDown, shift::Shift, 0}, {'D', shift::ShiftCtrl, 1},
    {'Q', shift::ShiftCtrl, 2}, {'A', shift::ShiftCtrl, 3},       {'M', shift::Alt, 4},
    {'N', shift::Alt, 5},
};

// The number of RangeYOMi that the key asks for; `otherwise` for a key that asks for none.
int questionOf(const KeyEvent& key, int otherwise) {
  const auto row = std::find_if(std::begin(kQuestions), std::end(kQuestions),
                                [&](const Question& q) { return key.is(q.code, q.mask); });
  return row == std::end(kQuestions) ? otherwise : row->number;
}

// A typed corner; false when the table has none of that number.
bool readCorner(const TextBox& box, std::int32_t lowest, std::int32_t highest, std::int32_t& corner) {
  const double typed = typedVal(box.content()).value_or(-1);
  if (typed < lowest || typed > highest) return false;
  corner = static_cast<std::int32_t>(typed);
  return true;
}

// A corner that was typed takes the cursor with it: what reads the range starts from there.
void goToTypedCorner() {
  const bool moves = rangeKind != 3 && curRec != rangeRec2;
  if (moves) autoIdOn = 0;
  if (moves) curRec = rangeRec2;
  if (rangeKind != 2) curItem = rangeItem2;
}

// As the number boxes of the main form do.
void echoNumber(const TextBox& box) {
  if (!Filling::runs()) talkGated(box.content().empty() ? Text(u"ブランク") : box.content());
}

void followCursor() {
  if (rangeKind != 3) rangeRec2 = curRec;
  if (rangeKind != 2) rangeItem2 = curItem;
}

}  // namespace

frmHANI::frmHANI() : Form(kName, kTitles[kindIndex()]) {
  Text1.labelledBy = &Label1;
  Text3.labelledBy = &Label3;
  Text2.place = Text4.place = Place::sameRow;
  Text2.screenName = u"記録(行)";
  Text4.screenName = u"項目(列)";
  Text5.readOnly = true;
  Text5.invisible = true;
  Command2.isDefault = true;
  Command1.isCancel = true;
  for (TextBox* box : {&Text1, &Text2, &Text3, &Text4}) box->onChange = [box] { echoNumber(*box); };
  Text5.onKeyDown = [this](KeyEvent& key) { frmHANI_Text5_KeyDown(key); };
  Text5.onKeyUp = [this](KeyEvent& key) { frmHANI_Text5_KeyUp(key); };
  Command2.onClick = [this] { frmHANI_Command2_Click(); };
  Command1.onClick = [this] { frmHANI_Command1_Click(); };
  onKeyUp = [this](KeyEvent& key) { frmHANI_KeyUp(key); };
  onClose = [this] { frmHANI_Command1_Click(); };
  narrate();
  Text5.setFocus();
}

void frmHANI::narrate() {
  Narration(*this)
      .box(Text1, u"から、" + Label1.caption() + u"ﾃｷｽﾄﾎﾞｯｸｽ")
      .box(Text2, u"まで、" + Label1.caption() + u"ﾃｷｽﾄﾎﾞｯｸｽ")
      .box(Text3, u"から、" + Label3.caption() + u"ﾃｷｽﾄﾎﾞｯｸｽ")
      .box(Text4, u"まで、" + Label3.caption() + u"ﾃｷｽﾄﾎﾞｯｸｽ")
      .say(Command2, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ")
      .say(Command1, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ");
  Text5.onGotFocus = [this] {
    if (!leaving_) talkGated(caption() + markStop + Label6.caption());
  };
}

void frmHANI::choose() {
  setCaption(kTitles[kindIndex()]);
  Text3.setEnabled(rangeKind != 2);
  Text4.setEnabled(rangeKind != 2);
  Text1.setEnabled(rangeKind != 3);
  Text2.setEnabled(rangeKind != 3);
  fillBoxes();
  choosing_ = true;
  mode = u"HTYU";
  passRelease(*this);  // the release of the key that opened it says the range
  showModal();
}

void frmHANI::fillBoxes() {
  const Filling filling;
  Text1.setText(decimal(rangeRec1));
  Text2.setText(decimal(rangeRec2));
  Text3.setText(decimal(rangeItem1));
  Text4.setText(decimal(rangeItem2));
}

// --- Keys ----------------------------------------------------------------------------------------------------

void frmHANI::frmHANI_Text5_KeyDown(KeyEvent& key) {
  if (!choosing_) return;
  if (jumpKey(key)) {
    answerKey(0);
    key.swallow();
  } else if (key.is(key::Insert, shift::Ctrl)) {
    key.swallow();
    clip();
  } else if (const int code = sumKeyOf(key)) {
    key.swallow();
    sum(code);
  } else if (moveWhileChoosing(key)) {
    followCursor();
    fillBoxes();
    key.swallow();
  }
}

bool frmHANI::jumpKey(const KeyEvent& key) {
  if (key.is('H', shift::Ctrl)) {
    const Text answer =
        talkAsk(u"第何項目に飛びますか？（なお、＋－付きで数値を指定すると、今の項目からの相対指定になります",
                u"指定項目へ移動", {});
    if (!trimmed(answer).empty()) curItem = static_cast<std::int16_t>(targetOf(answer, curItem, 0, itemCount));
    return true;
  }
  if (!key.is('J', shift::Ctrl)) return false;
  const Text answer =
      talkAsk(u"第何記録に飛びますか？（なお、＋－付きで数値を指定すると、今の記録からの相対指定になります",
              u"指定記録へ移動", {});
  if (trimmed(answer).empty()) return true;
  autoIdOn = 0;
  curRec = targetOf(answer, curRec, 1, recCount());
  return true;
}

void frmHANI::frmHANI_Text5_KeyUp(KeyEvent& key) {
  if (choosing_) answerKey(questionOf(key, 0));
}

void frmHANI::frmHANI_KeyUp(KeyEvent& key) {
  if (activeControl() == &Text5) return;
  const int number = questionOf(key, -1);
  if (number < 3) return;  // the box or button repeats its own sentence
  RangeYOMi(number);
  key.swallow();
}

// The view follows the cursor, and the mask lies below the view: hence shown twice.
void frmHANI::catchUp() {
  loadCache(curRec);
  showUnheard();
  followCursor();
  rangeMask(rangeRec1, rangeRec2, rangeItem1, rangeItem2, rangeColour());
  showUnheard();
  fillBoxes();
}

void frmHANI::answerKey(int number) {
  catchUp();
  Text5.setFocus();
  RangeYOMi(number);
}

void frmHANI::clip() {
  catchUp();
  leaving_ = true;
  orderRange();
  runCommand(u"mnuClip");
  const Silence silence;  // the copied text is being read
  frmHANI_Command1_Click();
}

void frmHANI::sum(int code) {
  catchUp();
  if (!sumFitsRange(code)) return host().beep();
  leaving_ = true;
  if (isPlainSum(code) && sumKeyOnRange(code) && agentOn != 1) {
    const Silence silence;  // a sentence would take the place of the sum on the clipboard
    return frmHANI_Command1_Click();
  }
  nextIsHeard();
  frmHANI_Command1_Click();
  if (!isPlainSum(code)) sumKey(code);  // a formula works in the input box
}

// --- The end -------------------------------------------------------------------------------------------------

bool frmHANI::takeBoxes() {
  std::int32_t item1 = 0, item2 = 0, rec1 = 0, rec2 = 0;
  const std::int32_t records = recCount();
  const bool known = readCorner(Text1, 1, records, rec1) && readCorner(Text2, 1, records, rec2) &&
                     readCorner(Text3, 0, itemCount, item1) && readCorner(Text4, 0, itemCount, item2);
  if (!known) return false;
  rangeRec1 = rec1;
  rangeRec2 = rec2;
  rangeItem1 = static_cast<std::int16_t>(item1);
  rangeItem2 = static_cast<std::int16_t>(item2);
  return true;
}

void frmHANI::frmHANI_Command2_Click() {
  if (!takeBoxes()) {
    fillBoxes();
    return host().beep();
  }
  goToTypedCorner();
  orderRange();
  loadCache(curRec);
  rangeMask(rangeRec1, rangeRec2, rangeItem1, rangeItem2, rangeColour());
  const Text next(kNextSteps[kindIndex()]);
  {
    const Silence silence;  // the next step is told in place of the cell
    close();
  }
  talkS(mainForm(), next);
}

void frmHANI::frmHANI_Command1_Click() {
  loadCache(curRec);
  hideRangeMask();
  dropRange();
  close();
}

void frmHANI::close() {
  showUnheard();
  mode.clear();
  choosing_ = false;
  unload<frmHANI>();
  focusInputBox();
}

void beginRange(std::int32_t rec1, std::int32_t rec2, std::int16_t item1, std::int16_t item2) {
  rangeMask(rec1, rec2, item1, item2, rangeColour());
  dispAll(curItem);
  form<frmHANI>().choose();
}

}  // namespace zelko
