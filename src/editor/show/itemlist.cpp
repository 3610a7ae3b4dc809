#include "editor/show/itemlist.h"

#include <map>

#include "editor/main/commands.h"
#include "editor/main/state.h"
#include "platform/host.h"
#include "platform/text/number.h"
#include "platform/text/sjis.h"
#include "store/records/records.h"
#include "store/table/cursor.h"
#include "store/table/itemfile.h"
#include "voice/heard.h"
#include "voice/narration.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr int kNameBytes = 30;
constexpr const char16_t* kReminder =
    u"｡ﾔｼﾞﾙｼｷ-ﾃﾞ ｺｳﾓｸﾘｽﾄｦ ｲﾄﾞｳｽﾙﾄ ｺｳﾓｸﾒｲ､ﾊｲﾁ､ﾊﾊﾞｶﾞ ﾖﾐｱｹﾞﾗﾚﾏｽ｡CRｷｰﾃﾞ ｾﾝﾀｸ､ｴｽｹｰﾌﾟｷｰﾃﾞ ﾓﾄﾞﾘﾏｽ｡";

std::map<int, std::function<void(int)>>& listCallers() {
  static std::map<int, std::function<void(int)>> callers;
  return callers;
}

void openList(TextView fileName, std::vector<Text> rows, int marked) {
  frmItemList& list = form<frmItemList>();
  list.Label1.setCaption(fileName);
  list.List1.setEntries(std::move(rows));
  {
    Silence silence;
    list.List1.setListIndex(marked);
  }
  list.showModal();
}

}  // namespace

frmItemList::frmItemList() : Form(kName, u"項目一覧") {
  List1.onDblClick = [this] { frmItemList_Command2_Click(); };
  Command1.onClick = [this] {
    listCaller = 0;
    screen().unload(*this);
  };
  Command2.onClick = [this] { frmItemList_Command2_Click(); };
  Command1.isCancel = true;
  Command2.isDefault = true;
  onClose = [this] { Command1.click(); };
  const auto entry = [this] {
    return u"ｺｳﾓｸﾘｽﾄﾎﾞｯｸｽ"
           u"ｺｳﾓｸｲﾁﾗﾝﾌｫｰﾑがﾋｮｳｼﾞｻﾚﾏｼﾀ｡" +
           Text(u"､") + u"ｺｳﾓｸ数" + decimal(List1.count()) + kReminder;
  };
  List1.onClick = [this] {
    if (List1.listIndex() >= 0 && gateOpens()) talkNow(List1.text() + markPause + u"ｺｳﾓｸﾘｽﾄﾎﾞｯｸｽ");
  };
  Narration(*this)
      .explain([entry] { return markStop + entry(); })
      .say(List1, entry, true)
      .say(Command1, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ")
      .say(Command2, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ");
}

void frmItemList::frmItemList_Command2_Click() {
  const int item = chosen();
  const auto caller = listCallers().find(listCaller);
  const bool taken = item >= 0 && caller != listCallers().end();
  listCaller = 0;
  if (!taken) return screen().unload(*this);
  closeUnheard(*this);  // what the caller does with the item is heard, not where the focus was before
  caller->second(item);
}

Text itemListRow(int item, TextView name, TextView alignment, int width) {
  const Text number = right(u"    " + decimal(item), 4);
  return number + u" " + fromSjis(paddedCell(name, kNameBytes, u"L")) + u" " + Text(alignment) + decimal(width);
}

void showItemList() {
  if (docPath.empty()) {
    host().beep();
    return;
  }
  std::vector<Text> rows;
  for (std::size_t i = 0; i <= static_cast<std::size_t>(itemCount); ++i)
    rows.push_back(itemListRow(static_cast<int>(i), itemName[i], itemLR[i], itemWidth[i]));
  openList(joinName(docDrive, docPath), std::move(rows), curItem);
}

void showOtherItemList(TextView fileName) {
  std::vector<Text> rows;
  for (std::size_t i = 0; i <= static_cast<std::size_t>(otherItemCount); ++i)
    rows.push_back(itemListRow(static_cast<int>(i), otherItemName[i], otherItemLR[i], otherItemWidth[i]));
  openList(fileName, std::move(rows), 0);
}

void registerListCaller(int code, std::function<void(int item)> fill) { listCallers()[code] = std::move(fill); }

void registerItemList() {
  registerForm<frmItemList>();
  registerCommand(u"mnuItemList", [] {
    listCaller = 84;
    showItemList();
  });
}

}  // namespace zelko
