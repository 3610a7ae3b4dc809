#include <algorithm>
#include <iterator>

#include "editor/main/dispatcher.h"
#include "editor/main/form1.h"
#include "editor/main/state.h"
#include "editor/show/spitem.h"
#include "parts/cells.h"
#include "platform/text/number.h"
#include "store/records/records.h"
#include "store/table/cursor.h"
#include "store/table/itemfile.h"
#include "voice/describe.h"
#include "voice/names.h"
#include "voice/talk.h"

namespace zelko {

namespace {

const Form1& main() { return mainForm(); }
const Text& boxText() { return main().txtinputbox.content(); }

Text inputState() {
  if (boxText().empty())
    return u"ｲﾏ ﾆｭｳﾘｮｸﾎﾞｯｸｽﾆﾜ ｹﾞﾝｺｳｶﾞｱﾘﾏｾﾝ。CRﾀﾞｹｦﾀﾀｸﾄ ｷｿﾞﾝﾃﾞｰﾀﾜ ｶｷｶﾜﾗﾅｲﾃﾞ、ｼﾞｺｳﾓｸﾆ ｶｷｺﾐｺｳﾓｸｶﾞ ｲﾄﾞｳｼﾏｽ" +
           bytesLeft(boxText());
  Text sentence = boxText() + bytesLeft(boxText());
  if (main().txtinputbox.selLength() > 0) sentence += u"ﾆｭｳﾘｮｸﾎﾞｯｸｽﾅｲｹﾞﾝｺｳｦ ﾖﾐｱｹﾞﾏｼﾀ､ｵﾄｺｺﾞｴﾜ ｾﾝﾀｸｻﾚﾀ ﾃｷｽﾄﾌﾞﾃﾞｽ";
  return sentence;
}

Text existingCell() {
  const Text cell = currentCell();
  if (cell.empty()) return u"ｲﾏﾉ ｺｳﾓｸ ﾜ ﾐｷﾆｭｳﾃﾞｽ" + markStop;
  return u"ｲﾏﾉ ｺｳﾓｸﾉ ｷｿﾞﾝﾃﾞｰﾀｦ ﾖﾐｱｹﾞﾏｼﾀ" + markStop + cell;
}

Text entryState() {
  return main().Label11.caption() + u"ｷﾆｭｳｺｳﾓｸわ" + u".IDｺｳﾓｸ." + main().Label13.caption() + u"." +
         main().Label8.caption();
}

Text itemReport() {
  const auto i = static_cast<std::size_t>(curItem);
  return u"ｺｳﾓｸ" + decimal(curItem) + u"," + trimmed(itemName[i]) + itemLR[i] + u"。" + u"ｺｳﾓｸﾊﾊﾞ" +
         decimal(itemWidth[i]) + u"。";
}

Text recordReport() { return u"ｷﾞｮｳ" + decimal(curRec) + markStop; }

Text fileReport() {
  return joinName(docDrive, docPath) + u"。ｷﾛｸｽｳ" + decimal(recCount()) + markStop + u".ﾋｮｳﾒﾓ" +
         main().RichTextBox2.content();
}

Text alwaysDisplayed() {
  if (spItem == kNoItem) return u"常時表示項目はありません" + markStop;
  return spItemCaption() + markStop + left(spItemCell(), 20);
}

struct Question {
  int code, mask;
  Text (*sentence)();
};

constexpr Question kQuestions[] = {
    {'S', shift::ShiftCtrl, inputState},           {key::PageDown, shift::Shift, inputState},
    {'D', shift::ShiftCtrl, existingCell},         {'E', shift::ShiftCtrl, entryState},
    {key::PageDown, shift::ShiftCtrl, entryState}, {'R', shift::ShiftCtrl, itemReport},
    {key::PageUp, shift::Ctrl, itemReport},        {'W', shift::ShiftCtrl, recordReport},
    {key::PageUp, shift::Shift, recordReport},     {'Q', shift::ShiftCtrl, fileReport},
    {key::PageUp, shift::ShiftCtrl, fileReport},   {'G', shift::Alt, alwaysDisplayed},
};

// The blanks that the key which restored a limit, and the one that had put it aside, left behind.
void clearLimitBlank() {
  Form1& form1 = mainForm();
  if (inputLimit == 0 || !trimmed(boxText()).empty()) return;
  Silence silence;
  form1.txtinputbox.setText({});
}

// The keys of the caret, the selection and the shift key alone; false for another key.
bool caretKey(const KeyEvent& key) {
  const bool leftRight = key.code == key::Left || key.code == key::Right;
  if (leftRight && key.mask == shift::Shift && !boxText().empty()) {
    talkSelection(main().txtinputbox, key.code);
    return true;
  }
  if (leftRight && key.mask == shift::None) {
    if (!boxText().empty() && gateOpens()) talkCaretChar();
    return true;
  }
  if (key.is(key::function(12), shift::None)) {
    talkCaret();
    return true;
  }
  if (key.code == key::Shift && (key.mask & ~shift::Shift) == 0) {
    if (rangeKind != 0) return true;  // it is being read
    talkGated(trimmed(boxText()).empty() ? Text(u"ブランク") : boxText());
    return true;
  }
  return false;
}

}  // namespace

void inputKeyUp(KeyEvent& key) {
  if (main().txtinputbox.selLength() == 0) selPrev = 0;
  if (key.is(key::Space, shift::None) || key.is(key::End, shift::None)) clearLimitBlank();
  if (answersDescription(main().txtinputbox, key, currentCell()) || caretKey(key)) return;
  const auto question = std::find_if(std::begin(kQuestions), std::end(kQuestions),
                                     [&](const Question& q) { return key.is(q.code, q.mask); });
  if (question != std::end(kQuestions) && gateOpens()) talkNow(question->sentence());
}

}  // namespace zelko
