#include "stats/frame/datacheck.h"

#include <map>

#include "editor/moves/moves.h"
#include "platform/host.h"
#include "stats/frame/cellkinds.h"
#include "stats/frame/datacheckform.h"
#include "store/table/table.h"
#include "voice/heard.h"
#include "voice/narration.h"
#include "voice/talk.h"

namespace zelko {

namespace {

// By the name of the form, what the table was like when it was hidden.
std::map<Text, Text>& keptForms() {
  static std::map<Text, Text> forms;
  return forms;
}

Text tableAsItIs() {
  Text table = docPath;
  for (int item = 0; item <= itemCount; ++item) table += u'\n' + itemName[static_cast<std::size_t>(item)];
  return table;
}

}  // namespace

bool takeKeptForm(TextView formName) {
  const auto kept = keptForms().find(Text(formName));
  if (kept == keptForms().end()) return false;
  const bool sameTable = kept->second == tableAsItIs();
  keptForms().erase(kept);
  return sameTable;
}

DataCheckButton::DataCheckButton(Form& form, RangeTest test, std::function<std::vector<std::int16_t>()> items)
    : Button(form, u"CommandCheck", u"ﾃﾞｰﾀの確認"), test_(test), items_(std::move(items)) {
  onClick = [this] { check(); };
  Narration(form).say(*this, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ");
}

void DataCheckButton::check() {
  const auto items = items_();
  if (items.empty()) {
    host().beep();
    return talkNow(u"項目が指定されていません");
  }
  if (!beginAnalysis(test_)) return;
  const auto cells = countCells(items);
  if (!cells) return talkBehindDialog(u"確認を終わりました");
  const auto place = showDataCheck(*cells);
  if (!place) return;
  keptForms()[form().name()] = tableAsItIs();
  {
    const Silence silence;
    goTo(place->record, place->item);
  }
  nextIsHeard();
  form().hide();
}

}  // namespace zelko
