#include "tablejobs/replace/formatform.h"

#include <span>

#include "editor/main/commands.h"
#include "files/start/help.h"
#include "parts/job/job.h"
#include "platform/host.h"
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

constexpr TextView kInvalid = u"invalid!!";

constexpr TextView kNumberFormats[] = {u"#####.##",   u"##,##0.00", u"00000.00", u"Currency",   u"Fixed", u"Percent",
                                       u"Scientific", u"Standard",  u"On/Off",   u"True/False", u"Yes/No"};
constexpr TextView kTextFormats[] = {
    u"& &", u"&  &", u"&   &", u"&    &", u"&     &", u"&      &", u"<", u">", u"@ @ @ @ @ @ @ @ @", u"@@ @@ @@ @@"};
constexpr TextView kDateFormats[] = {u"General Date", u"Long Date",           u"Long Time",  u"Medium Date",
                                     u"Medium Time",  u"Short Date",          u"Short Time", u"d-mmm",
                                     u"d-mmmm h:mm",  u"dddd, mmmm dd, yyyy", u"g ee/mm/dd", u"ggg e年m月d日 aaaa",
                                     u"h:mm:ss a/p",  u"hh:mm AM/P",          u"m/d/yy",     u"mmmm-yy",
                                     u"yy/mm/dd"};

std::span<const TextView> formatsOf(FormatKind kind) {
  switch (kind) {
    case FormatKind::number:
      return kNumberFormats;
    case FormatKind::text:
      return kTextFormats;
    case FormatKind::date:
      break;
  }
  return kDateFormats;
}

Text scopeWords() {
  if (rangeKind != 0) return u"。指定範囲のﾃﾞｰﾀを書き換えます";
  return u"。全記録の項目" + decimal(curItem) + itemName[static_cast<std::size_t>(curItem)] + u"を書き換えます";
}

}  // namespace

frmFMT::frmFMT() : Form(kName, u"データフォーマットの取得") {
  Text1.labelledBy = &Label2;
  Text2.labelledBy = &Label3;
  Combo1.screenName = u"書式の一覧";
  Text2.readOnly = true;
  for (Control* control :
       {static_cast<Control*>(&Label2), static_cast<Control*>(&Label3), static_cast<Control*>(&Option1),
        static_cast<Control*>(&Combo1), static_cast<Control*>(&Command1)})
    control->place = Place::newRow;
  Option1.setValue(1);
  frmFMT_Option_Click();
  wire();
  narrate();
}

void frmFMT::wire() {
  for (OptionButton* option : {&Option1, &Option2, &Option3}) option->onClick = [this] { frmFMT_Option_Click(); };
  Combo1.onClick = [this] { frmFMT_Combo1_Click(); };
  Text1.onChange = [this] { frmFMT_Text1_Change(); };
  Command1.onClick = [this] { frmFMT_Command1_Click(); };
  Command2.onClick = [this] { screen().unload(*this); };
  Command3.onClick = [] { showHelpFile(u"formatヘルプ.txt"); };
  Command4.onClick = [this] { frmFMT_Command4_Click(); };
  Command1.isDefault = true;
  Command2.isCancel = true;
}

void frmFMT::narrate() {
  Narration voice(*this);
  voice.explain([this] { return markStop + Label1.caption() + scopeWords(); })
      .box(Text1, [this] { return u"書式入力" + markPause + u"実行例" + Text2.content() + u"ﾃｷｽﾄﾎﾞｯｸｽ"; })
      .box(Text2, u"実行例ﾃｷｽﾄﾎﾞｯｸｽ");
  for (OptionButton* option : {&Option1, &Option2, &Option3})
    voice.say(*option, [option] { return option->caption() + u"ｵﾌﾟｼｮﾝﾎﾞﾀﾝ"; });
  voice.list(Combo1, u"書式ｺﾝﾎﾞﾎﾞｯｸｽ");
  for (Button* button : {&Command1, &Command2, &Command4, &Command3}) voice.say(*button, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ");
}

FormatKind frmFMT::kind() const {
  if (Option2.value() == 1) return FormatKind::text;
  return Option3.value() == 1 ? FormatKind::date : FormatKind::number;
}

void frmFMT::frmFMT_Option_Click() {
  const auto formats = formatsOf(kind());
  Combo1.setEntries({formats.begin(), formats.end()});
  showSample();
}

void frmFMT::frmFMT_Combo1_Click() {
  if (Combo1.listIndex() < 0) return;
  const Silence silence;
  Text1.setText(Combo1.text());
  Text1.moveCaretToEnd();
}

void frmFMT::frmFMT_Text1_Change() {
  talkRichChange(Text1, previous_);
  showSample();
}

void frmFMT::showSample() {
  if (trimmed(Text1.content()).empty()) return Text2.setText({});
  Text2.setText(formatSample(kind(), Text1.content(), host().now()).value_or(Text(kInvalid)));
}

void frmFMT::frmFMT_Command4_Click() {
  if (Combo1.listIndex() < 0) Combo1.setListIndex(0);
  Combo1.setFocus();
}

void frmFMT::frmFMT_Command1_Click() {
  const Text pattern = Text1.content();
  if (!formatSample(kind(), pattern, host().now())) {
    host().beep();
    Text1.setFocus();
    return talkBehindDialog(trimmed(pattern).empty() ? Text(u"書式を入力して下さい。") : Text(kInvalid));
  }
  if (!beginJob(true, true)) return;
  std::int64_t unread = 0;
  CellRun run;
  run.work = caption();
  run.scope = scopeOf(1, recCount(), currentItemOnly());
  run.change = [&, wanted = kind()](std::string_view cell) -> std::optional<std::string> {
    const Text old = trimmed(fromSjis(cell));
    const auto now = formattedCell(wanted, old, pattern);
    if (!now) ++unread;
    if (!now || *now == old) return std::nullopt;
    return toSjis(*now);
  };
  const CellRunResult result = runOverCells(run);
  screen().unload(*this);
  if (!endCellRun(result)) return;
  Text said = u"書き換え終了" + markStop + decimal(result.changed) + u"件書き換え";
  if (unread > 0) said += markPause + decimal(unread) + u"件わ、ブランクか読めないﾃﾞｰﾀなので、そのままです";
  if (result.cut > 0) said += markPause + decimal(result.cut) + u"件わ、項目幅に切りました";
  talkBehindDialog(result.stopped ? u"中止しました。ここまでに、" + said.substr(said.find(markStop) + 1) : said);
}

void registerFormatForm() {
  registerForm<frmFMT>();
  registerCommand(u"mnuF", [] {
    if (!refusedAsReadOnly()) form<frmFMT>().showModal();
  });
}

}  // namespace zelko
