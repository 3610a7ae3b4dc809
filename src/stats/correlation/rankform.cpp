#include "stats/correlation/rankform.h"

#include <set>

#include "editor/main/commands.h"
#include "parts/ask/typed.h"
#include "parts/disk/filewords.h"
#include "parts/grid/cellfault.h"
#include "parts/report/resultfolder.h"
#include "platform/host.h"
#include "platform/text/number.h"
#include "stats/frame/analysis.h"
#include "stats/frame/outputfolder.h"
#include "store/table/table.h"
#include "voice/dialogs.h"
#include "voice/heard.h"
#include "voice/names.h"
#include "voice/narration.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr TextView kWhat = u" ｽﾍﾟｱﾏﾝ順位相関：指定項目(複数可)間の順位相関係数を算出します.(N<=500こと)";
constexpr TextView kMayChange = u"KEKKA.TXTのﾃﾞﾚｸﾄは変更できます｡";

// Appended is what the question is for; a file that will lose what it holds is called so.
bool confirmed(const Text& folder, bool anew) {
  const TextView how = anew ? u"に新規出力されます.いいですね。？" : u"に追加出力されます.いいですね。？";
  return askOK(Text(kWhat) + u"\r" + u"結果は" + pathIn(folder, u"KEKKA.TXT") + Text(how) + Text(kMayChange),
               u"KEKKA.TXT確認");
}

}  // namespace

frmRS::frmRS() : Form(kName, u"ｽﾍﾟｱﾏﾝ順位相関係数") {
  Text1.labelledBy = &Label5;
  Text2.labelledBy = &Label6;
  Text3.labelledBy = &Label7;
  Text4.labelledBy = &Label8;
  for (Control* control :
       {static_cast<Control*>(&Label2), static_cast<Control*>(&Label5), static_cast<Control*>(&Label6),
        static_cast<Control*>(&Label3), static_cast<Control*>(&Label7), static_cast<Control*>(&Label8),
        static_cast<Control*>(&Check1), static_cast<Control*>(&Label4), static_cast<Control*>(&Drive1),
        static_cast<Control*>(&File1), static_cast<Control*>(&Check2), static_cast<Control*>(&Command1)})
    control->place = Place::newRow;
  for (TextBox* box : {&Text1, &Text3}) box->setText(u"1");
  for (TextBox* box : {&Text2, &Text4}) box->setText(decimal(itemCount));
  File1.setPattern(u"*.txt");
  boxes_.open(resultFolder());
  boxes_.words = resultFolderWords();
  boxes_.onFolderChanged = [this] { showFolder(); };
  showFolder();
  wire();
  narrate();
}

void frmRS::wire() {
  wireBox(Text1, u"ｸﾞﾙｰﾌﾟ1項目の先頭項目番号を入力してください");
  wireBox(Text2, u"ｸﾞﾙｰﾌﾟ1項目の最終項目番号を入力してください");
  wireBox(Text3, u"ｸﾞﾙｰﾌﾟ２の項目の先頭項目番号を入力してください");
  wireBox(Text4, u"ｸﾞﾙｰﾌﾟ２項目の最終項目番号を入力してください");
  File1.onClick = [this] { boxes_.sayMarkedFile(); };
  Command1.onClick = [this] { frmRS_Command1_Click(); };
  Command2.onClick = [this] { frmRS_Command2_Click(); };
  Command3.onClick = [this] { boxes_.makeFolderHere(); };
  Command1.isDefault = true;
  Command2.isCancel = true;
  onClose = [this] { frmRS_Command2_Click(); };
}

// What was typed comes first; what the box is for is cut off by the next key.
void frmRS::wireBox(TextBox& box, TextView request) {
  box.onChange = [&box, request, previous = box.content()]() mutable {
    const Text before = std::exchange(previous, box.content());
    const Text over = typedOver(before, box.content());
    talkGated((over.empty() ? diffText(before, box.content()) : over) + markStop + Text(request));
  };
  box.onGotFocus = [&box] { markWhole(box); };
}

void frmRS::narrate() {
  Narration voice(*this);
  voice.explain([this] { return markStop + Label1.caption() + u"0のﾃﾞｰﾀわ常に除かれます。" + Label9.caption(); });
  for (TextBox* box : {&Text1, &Text2, &Text3, &Text4}) voice.box(*box, [this, box] { return boxSentence(*box); });
  voice.check(Check1, u"ﾁｪｯｸﾎﾞｯｸｽ").check(Check2, u"ﾁｪｯｸﾎﾞｯｸｽ");
  boxes_.narrate(voice);
  boxes_.narrateFiles(voice);
  for (Button* button : {&Command1, &Command2, &Command3}) voice.say(*button, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ");
}

void frmRS::showFolder() { Label9.setCaption(resultFolderLabel(u"結果は", Dir1.path())); }

Text frmRS::boxSentence(const TextBox& box) const {
  const auto item = typedItem(box.content(), 1);
  const Text name = item ? trimmed(itemName[static_cast<std::size_t>(*item)]) + markPause : Text();
  return name + box.labelledBy->caption() + u"ﾃｷｽﾄﾎﾞｯｸｽ";
}

std::vector<std::int16_t> frmRS::chosenItems() const {
  std::set<std::int16_t> items;
  for (const auto& [first, last] : {std::pair(&Text1, &Text2), std::pair(&Text3, &Text4)}) {
    const auto from = typedItem(first->content(), 1), to = typedItem(last->content(), 1);
    if (from && to)
      for (std::int16_t item = *from; item <= *to; ++item) items.insert(item);
  }
  return {items.begin(), items.end()};
}

void frmRS::refuse(TextBox& box) {
  host().beep();
  {
    const Silence silence;
    box.setFocus();
    markWhole(box);
  }
  nextIsHeard();
  talkS(*this, boxSentence(box));
}

std::optional<ItemRun> frmRS::itemsFrom(TextBox& first, TextBox& last) {
  const auto from = typedItem(first.content(), 1), to = typedItem(last.content(), 1);
  if (!from || (to && *from > *to)) {
    refuse(first);
  } else if (!to) {
    refuse(last);
  } else {
    return ItemRun{*from, *to};
  }
  return std::nullopt;
}

void frmRS::frmRS_Command1_Click() {
  const auto group1 = itemsFrom(Text1, Text2);
  if (!group1) return;
  const auto group2 = itemsFrom(Text3, Text4);
  if (!group2) return;
  const bool anew = Check2.value() == 1;
  if (!confirmed(Dir1.path(), anew) || !beginAnalysis(RangeTest::bothEnds)) return;
  runSpearman(*this, *group1, *group2, Dir1.path(), anew);
}

void frmRS::frmRS_Command2_Click() {
  analysisMode = u"BREAK";
  screen().unload(*this);
}

void registerRankForm() {
  registerForm<frmRS>();
  registerCommand(u"mnuRS", [] {
    analysisMode = u"RS";
    showAnalysisForm<frmRS>();
    analysisMode.clear();
  });
}

}  // namespace zelko
