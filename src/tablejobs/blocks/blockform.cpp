#include "tablejobs/blocks/blockform.h"

#include "parts/grid/cellfault.h"
#include "parts/ranges/rangetext.h"
#include "platform/host.h"
#include "platform/text/number.h"
#include "store/table/table.h"
#include "voice/dialogs.h"
#include "voice/names.h"
#include "voice/narration.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr TextView kExplanation =
    u"記録と項目のブロックを指定するフォームです。ブロックは、数字ひとつか、ふたつの数字をマイナスでつないで書き、"
    u"ブロックとブロックの間は、スラッシュで区切ります。例えば、10-15/80-100/3　は、10から15、80から100、それに3です。"
    u"書いた順に取り出されます。空白は入れません。記録範囲が空なら全記録、項目範囲が空なら全項目です。";

}  // namespace

FrmBROCK::FrmBROCK() : Form(kName, u"多記録、項目ﾌﾞﾛｯｸ指定") {
  Label1.setCaption(kExplanation);
  Text1.labelledBy = &Label2;
  Text2.labelledBy = &Label3;
  for (Control* control :
       {static_cast<Control*>(&Label2), static_cast<Control*>(&Label3), static_cast<Control*>(&Command1)})
    control->place = Place::newRow;
  Text1.onChange = [this] { FrmBROCK_Change(Text1, lastRecords_); };
  Text2.onChange = [this] { FrmBROCK_Change(Text2, lastItems_); };
  Command1.onClick = [this] { FrmBROCK_Command1_Click(); };
  Command2.onClick = [this] { FrmBROCK_Command2_Click(); };
  Command1.isDefault = true;
  Command2.isCancel = true;
  onActivate = [this] { FrmBROCK_Activate(); };
  onClose = [this] { FrmBROCK_Command2_Click(); };
  Narration(*this)
      .explain(markStop + Text(kExplanation))
      .box(Text1, Label2.caption() + u"ﾃｷｽﾄﾎﾞｯｸｽ")
      .box(Text2, Label3.caption() + u"ﾃｷｽﾄﾎﾞｯｸｽ")
      .say(Command1, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ")
      .say(Command2, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ");
}

void FrmBROCK::FrmBROCK_Activate() {
  if (opened_) return;
  opened_ = true;
  if (talkMode != 0) waitSec(talkGap);
  talkS(*this, caption() + markStop + Text(kExplanation));
}

void FrmBROCK::FrmBROCK_Change(TextBox& box, Text& previous) {
  if (filling_)
    previous = box.content();
  else
    talkRichChange(box, previous);
}

// False after the message; the box has the focus again.
bool FrmBROCK::isRange(TextBox& box, int kind, TextView title) {
  const Text range = trimmed(box.content());
  if (range.empty()) return true;
  if (range != box.content()) {
    filling_ = true;
    box.setText(range);
    filling_ = false;
  }
  Text rest = range, message;
  checkRangeText(rest, message, kind);
  if (message.empty()) return true;
  tellCellFault({{}, message, Text(title)}, box);
  return false;
}

void FrmBROCK::FrmBROCK_Command1_Click() {
  if (!isRange(Text1, kRecordRange, u"記録ﾌﾞﾛｯｸ指定のあやまり")) return;
  if (!isRange(Text2, kItemRange, u"項目ﾌﾞﾛｯｸ指定のあやまり")) return;
  if (trimmed(Text2.content()).empty()) {
    filling_ = true;
    Text2.setText(decimal(firstItem) + u"-" + decimal(itemCount));
    filling_ = false;
    host().beep();
    // What was assumed is heard, and the button is pressed once more.
    talkBehindDialog(Label3.caption() + markPause + Text2.content() + u"。OKなら再度CRをﾀﾀｲﾃｸﾀﾞｻｲ");
    return;
  }
  const BlockRanges ranges{trimmed(Text1.content()), trimmed(Text2.content())};
  if (use) return use(ranges);
  screen().unload(*this);
}

void FrmBROCK::FrmBROCK_Command2_Click() { screen().unload(*this); }

}  // namespace zelko
