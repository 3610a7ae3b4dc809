#include "tablejobs/extract/form2.h"

#include "editor/main/commands.h"
#include "editor/main/inputbox.h"
#include "editor/show/itemlist.h"
#include "editor/show/sheet.h"
#include "editor/show/showcell.h"
#include "parts/job/job.h"
#include "platform/host.h"
#include "platform/text/number.h"
#include "store/records/walk.h"
#include "store/table/cursor.h"
#include "tablejobs/extract/form7.h"
#include "voice/dialogs.h"
#include "voice/heard.h"
#include "voice/names.h"
#include "voice/narration.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr int kListCode = 85;  // of Form7 in the list of the items

constexpr TextView kExplanation =
    u"検索文字列を含む記録を探し、その記録だけを抽出し,新しいﾌｧｲﾙを作ります｡"
    u"検索文字列テキストﾎﾞｯｸｽに文字を入力し、チェックﾎﾞｯｸｽで検索条件を設定して、検索ﾎﾞﾀﾝを押して下さい。"
    u"そのあと、出力ﾌｧｲﾙ名を聞いてきます。現項目のみ検索・全項目を検索チェックﾎﾞｯｸｽがノーチェックの時は、"
    u"今の項目だけを探します。すべて後読み項目が、チェックした場合の検索条件です。"
    u"なお逐一確認・自動抽出チェックﾎﾞｯｸｽがノーチェックの時は、抽出するかスキップかを聞いてくるので、"
    u"抽出またはskipﾎﾞﾀﾝを押して下さい。";

// The form over the editor, with nothing selected there.
template <class F>
void openExtraction(bool storesBox, TextView preset) {
  if (!beginJob(false, storesBox)) return;
  hideRangeMask();
  dropRange();
  showUnheard();
  F& dialog = form<F>();
  if constexpr (requires { dialog.preset(preset); }) dialog.preset(preset);
  waitPastGate();
  dialog.showModal();
}

}  // namespace

ExtractionRules Form2::rules() {
  ExtractionRules rules;
  rules.ready = [this] { return ready(); };
  rules.passes = [this](const WalkedRecord& record) { return itemThatHits(record); };
  rules.automatic = [this] { return Check4.value() == 1; };
  rules.head = [this] { return allItems_ ? Text(u"全項目についての検索") : u"項目" + decimal(item_) + u"の検索"; };
  rules.onSkip = [this] {
    if (Check1.value() == 1) curItem = 0;
  };
  rules.closingWord = u"検索置換の終了";
  return rules;
}

Form2::Form2()
    : Form(kName, u"検索文字列を含む記録の抽出"),
      extraction_({*this, Text1, Command1, Command2, Command4, Command3, Label5, Label4}, rules()) {
  mode = u"srch";
  Text1.labelledBy = &Label1;
  for (Control* control :
       {static_cast<Control*>(&Label2), static_cast<Control*>(&Check1), static_cast<Control*>(&Check2),
        static_cast<Control*>(&Check3), static_cast<Control*>(&Check4), static_cast<Control*>(&Label3),
        static_cast<Control*>(&Command1), static_cast<Control*>(&Label5)})
    control->place = Place::newRow;
  Command1.isDefault = true;
  Text1.onChange = [this] { talkRichChange(Text1, previous_); };
  narrate();
}

void Form2::narrate() {
  Narration voice(*this);
  voice.explain(markStop + Text(kExplanation));
  voice.box(Text1, [] {
    return u"検索文字列ﾃｷｽﾄﾎﾞｯｸｽ､現項目" + decimal(curItem) + trimmed(itemName[static_cast<std::size_t>(curItem)]);
  });
  for (CheckBox* box : {&Check1, &Check2, &Check3, &Check4}) voice.check(*box, u"ﾁｪｯｸﾎﾞｯｸｽ");
  voice.say(Command1, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ").say(Command3, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ");
  voice.say(Command2, [this] { return extraction_.stopSentence(); });
  voice.say(Command4, [this] { return extraction_.candidateSentence(); });
}

void Form2::preset(TextView text) {
  const Silence silence;
  Text1.setText(text);
  Text1.moveCaretToEnd();
  previous_ = text;
  Text1.setFocus();
}

// An empty text stands in every cell: only a cell that equals it can be meant.
bool Form2::ready() {
  const SearchTerms terms = {trimmed(Text1.content()), Check2.value() == 1, {Check3.value() == 1, false}};
  if (terms.what.empty() && !terms.whole) {
    host().beep();
    Text1.setFocus();
    return false;
  }
  if (!matcher_ || terms != terms_) matcher_.emplace(terms);
  terms_ = terms;
  allItems_ = Check1.value() == 1;
  if (!allItems_) item_ = curItem;
  return true;
}

std::optional<std::int16_t> Form2::itemThatHits(const WalkedRecord& record) const {
  const std::string_view bytes = allItems_ ? record.bytes() : record.cellBytes(item_);
  if (!matcher_->mayHit(bytes)) return std::nullopt;
  if (!allItems_) return matcher_->hits(record.cell(item_)) ? std::optional(item_) : std::nullopt;
  for (std::int16_t item = 0; item <= itemCount; ++item)
    if (matcher_->hits(record.cell(item))) return item;
  return std::nullopt;
}

void registerExtraction() {
  registerForm<Form7>();
  registerForm<Form2>();
  registerExtractionOutput();
  registerListCaller(kListCode, [](int item) {
    if (Form7* there = loadedForm<Form7>()) there->takeItem(item);
  });
  registerCommand(u"mnuMFIND", [] { openExtraction<Form7>(true, {}); });
  registerCommand(u"mnuFIND", [] {
    const Text typed = inputText();
    emptyInputBox();
    openExtraction<Form2>(false, typed);
  });
}

}  // namespace zelko
