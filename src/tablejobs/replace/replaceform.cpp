#include "tablejobs/replace/replaceform.h"

#include "editor/main/commands.h"
#include "editor/moves/moves.h"
#include "parts/job/job.h"
#include "parts/keys/enterkey.h"
#include "platform/text/number.h"
#include "platform/text/sjis.h"
#include "store/records/records.h"
#include "store/table/cursor.h"
#include "store/table/readonly.h"
#include "tablejobs/replace/cellrun.h"
#include "voice/dialogs.h"
#include "voice/names.h"
#include "voice/narration.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr TextView kExplanation =
    u"。検索文字列テキストボックスの文字を、置換文字列テキストボックスの文字に置き換えます。"
    u"チェックボックスのキャプションの後読み部が、チェックした場合の条件です。"
    u"範囲指定がある場合わ、その範囲だけを置き換えます。範囲指定がない場合わ、今の記録から記録末へ、"
    u"または先頭へ置き換えます。逐次置換では、見つかるごとに、置き換えるかどうかを聞きます。";

Text questionFor(std::int32_t record, int item, const Text& old) {
  return u"見つかりました!記録" + decimal(record) + u"。項目" + decimal(item) + u" " + old + u"。置換しますか?";
}

}  // namespace

frmREPLACE::frmREPLACE() : Form(kName, u"文字列の置換"), savedRecord_(curRec), savedItem_(curItem) {
  mode = u"srch";
  RichTextBox1.labelledBy = &Label1;
  RichTextBox2.labelledBy = &Label2;
  for (Control* control :
       {static_cast<Control*>(&Label2), static_cast<Control*>(&Command3), static_cast<Control*>(&Label3),
        static_cast<Control*>(&Check1), static_cast<Control*>(&Check3), static_cast<Control*>(&Check5),
        static_cast<Control*>(&Command1)})
    control->place = Place::newRow;
  wire();
  narrate();
}

void frmREPLACE::wire() {
  RichTextBox1.onChange = [this] { talkRichChange(RichTextBox1, previousSearch_); };
  RichTextBox2.onChange = [this] { talkRichChange(RichTextBox2, previousWith_); };
  for (TextBox* box : {&RichTextBox1, &RichTextBox2}) onEnter(*box, [this] { frmREPLACE_Command3_Click(); });
  for (CheckBox* check : {&Check1, &Check2, &Check3, &Check4, &Check5, &Check6}) toggleOnEnter(*check);
  Command3.onClick = [this] { frmREPLACE_Command3_Click(); };
  Command1.onClick = [this] { frmREPLACE_Command1_Click(); };
  Command4.onClick = [this] { frmREPLACE_Command4_Click(); };
  Command3.isDefault = true;
  Command4.isCancel = true;
  onClose = [this] { frmREPLACE_Command4_Click(); };
}

void frmREPLACE::narrate() {
  Narration voice(*this);
  voice.explain([this] { return Text(kExplanation) + scopeWords(); })
      .box(RichTextBox1, u"検索文字列ﾃｷｽﾄﾎﾞｯｸｽ")
      .box(RichTextBox2, u"置換文字列ﾃｷｽﾄﾎﾞｯｸｽ")
      .say(Command3, [this] { return scopeWords() + u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ"; });
  for (CheckBox* check : {&Check1, &Check2, &Check3, &Check4, &Check5, &Check6}) voice.check(*check, u"ﾁｪｯｸﾎﾞｯｸｽ");
  for (Button* button : {&Command1, &Command4}) voice.say(*button, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ");
}

ReplaceRule frmREPLACE::rule() const {
  return {.search = asStored(RichTextBox1.content()),
          .with = RichTextBox2.content(),
          .equal = Check2.value() == 1,
          .caseCounts = Check3.value() == 1,
          .wholeCell = Check4.value() == 1};
}

Text frmREPLACE::scopeWords() const {
  const Text items = Check1.value() == 1 ? Text(u"全項目") : u"項目" + decimal(curItem);
  if (rangeKind != 0) return markStop + (rangeKind == 2 ? u"指定範囲の記録の" + items : Text(u"指定範囲")) + u"を置換";
  return markStop + items + u"を、記録" + decimal(curRec) + (Check6.value() == 1 ? u"から先頭へ" : u"から記録末へ") +
         u"置換";
}

void frmREPLACE::frmREPLACE_Command3_Click() {
  const ReplaceRule wanted = rule();
  if (wanted.changesNothing()) {
    return showOK(
        (wanted.caseCounts ? Text() : Text(u"大小文字を区別しないなら、")) + u"検索文字列と置換文字列が同じです",
        u"テキストエラー");
  }
  if (!beginJob(true, true)) return;
  CellRun run;
  run.work = run.title = caption();
  const bool backward = Check6.value() == 1, asks = Check5.value() == 0;
  const auto items = Check1.value() == 1 ? allItems() : currentItemOnly();
  run.scope = backward ? scopeOf(1, curRec, items, true) : scopeOf(curRec, recCount(), items);
  run.change = [&](std::string_view cell) -> std::optional<std::string> {
    if (!isHit(wanted, trimmed(fromSjis(cell)))) return std::nullopt;
    return replaceCell(wanted, cell);
  };
  if (asks) {
    run.question = [](std::int32_t record, int item, const Text& old, const Text&) {
      return questionFor(record, item, old);
    };
  }
  finish(runOverCells(run), asks);
}

void frmREPLACE::finish(const CellRunResult& result, bool asked) {
  const bool ended = endCellRun(result);
  mode = u"srch";
  if (!ended) return;
  const Text counted = decimal(result.changed) + u"件ありました。作業終了します。CRｷｰをたたいてください。";
  showOK(asked && !result.stopped ? Text(u"置換終了しました｡") : counted, u"置換終了");
  sayWhatWasCut(result);
}

void frmREPLACE::frmREPLACE_Command1_Click() {
  {
    const Silence silence;
    goTo(std::min(savedRecord_, recCount() + 1), savedItem_);
  }
  frmREPLACE_Command4_Click();
}

void frmREPLACE::frmREPLACE_Command4_Click() {
  mode.clear();
  screen().unload(*this);
}

void registerReplaceForm() {
  registerForm<frmREPLACE>();
  registerCommand(u"mnuREPLACE", [] {
    if (refusedAsReadOnly()) return;
    form<frmREPLACE>().showModal();
  });
}

}  // namespace zelko
