#include "tablejobs/replace/convertform.h"

#include "editor/main/commands.h"
#include "parts/job/job.h"
#include "parts/keys/enterkey.h"
#include "platform/text/number.h"
#include "platform/text/sjis.h"
#include "store/records/records.h"
#include "store/table/cursor.h"
#include "store/table/readonly.h"
#include "voice/dialogs.h"
#include "voice/heard.h"
#include "voice/narration.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr TextView kExplanation =
    u"。チェックした変換を、範囲指定がある場合わその範囲に、ない場合わ全記録に行います。"
    u"変換わ、スペース削除、小文字、大文字、全角、半角、カナ全角、カナ半角の順に行われます。"
    u"編集対象チェックボックスがノーチェックの場合、いまの項目だけが変換されます。"
    u"連続変換にチェックすると、１件ごとの問い合わせをしません。";

Text questionFor(std::int32_t record, int item, const Text& old, const Text& becomes) {
  return u"ぎょう" + decimal(record) + u"項目" + decimal(item) + u" " + old + u".該当します。変換しますか。" + becomes +
         u" になります";
}

}  // namespace

frmEOCR::frmEOCR() : Form(kName, u"英数ｶﾅ部変換とﾃﾞｰﾀ中の空白部の削除") {
  for (Control* control :
       {static_cast<Control*>(&Check3), static_cast<Control*>(&Check5), static_cast<Control*>(&Check7),
        static_cast<Control*>(&Check1), static_cast<Control*>(&Command1)})
    control->place = Place::newRow;
  wire();
  narrate();
}

void frmEOCR::wire() {
  for (CheckBox* check : {&Check2, &Check3, &Check4, &Check5, &Check6, &Check7, &Check8, &Check1, &Check9})
    toggleOnEnter(*check);
  Command1.onClick = [this] { frmEOCR_Command1_Click(); };
  Command2.onClick = [this] { screen().unload(*this); };
  Command1.isDefault = true;
  Command2.isCancel = true;
}

void frmEOCR::narrate() {
  Narration voice(*this);
  voice.explain(kExplanation);
  for (CheckBox* check : {&Check2, &Check3, &Check4, &Check5, &Check6, &Check7, &Check8, &Check9})
    voice.check(*check, u"ﾁｪｯｸﾎﾞｯｸｽ");
  Check1.onClick = [this] { frmEOCR_Check1_Click(); };
  voice.say(Check1, u"編集対象ﾁｪｯｸﾎﾞｯｸｽ");
  for (Button* button : {&Command1, &Command2}) voice.say(*button, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ");
}

void frmEOCR::frmEOCR_Check1_Click() {
  talkGated(u"編集対象" + markPause + (Check1.value() == 1 ? Text(u"全項目") : u"項目" + decimal(curItem)));
}

Conversions frmEOCR::conversions() const {
  return {.removeBlanks = Check2.value() == 1,
          .lowerCase = Check7.value() == 1,
          .upperCase = Check8.value() == 1,
          .fullWidth = Check4.value() == 1,
          .halfWidth = Check3.value() == 1,
          .fullKana = Check6.value() == 1,
          .halfKana = Check5.value() == 1};
}

void frmEOCR::frmEOCR_Command1_Click() {
  const Conversions wanted = conversions();
  if (!wanted.any()) return showOK(u"チｪックボックスをチェックしてください", caption());
  if (!beginJob(true, true)) return;
  if (recCount() == 0) return showOK(u"全く未記入です", caption());
  CellRun run;
  run.work = run.title = caption();
  run.scope = scopeOf(1, recCount(), Check1.value() == 1 ? allItems() : currentItemOnly());
  run.change = [&](std::string_view cell) -> std::optional<std::string> {
    const Text old = fromSjis(cell), now = converted(wanted, old);
    if (now == old) return std::nullopt;
    return toSjis(now);
  };
  if (Check9.value() == 0) run.question = questionFor;
  const CellRunResult result = runOverCells(run);
  if (!endCellRun(result)) return;
  if (result.stopped) return talkBehindDialog(u"中止しました。" + decimal(result.changed) + u"件変換しました。");
  showOK(u"編集終わりました", u"編集終わり確認");
  sayWhatWasCut(result);
}

void registerConvertForm() {
  registerForm<frmEOCR>();
  registerCommand(u"mnuEOCR", [] {
    if (!refusedAsReadOnly()) form<frmEOCR>().showModal();
  });
}

}  // namespace zelko
